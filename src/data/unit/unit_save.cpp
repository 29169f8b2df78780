#include "data/unit/unit_writers.h"
#include "platform/messages.h"

namespace varrocade {

std::optional<std::string> unitFileText(Category category, const SquadRecord& record) {
    switch (category) {
    case Category::Vehicles:
        return vehicleFileText(record);
    case Category::AtGuns:
    case Category::Infantry:
        return squadFileText(record);
    case Category::Aircraft:
        return aircraftFileText(record);
    case Category::Weapons:
        break;
    }
    return std::nullopt;
}

SaveResult saveUnit(FileOperations& files, BackupKeeper& backups, const std::string& base, Category category,
                    const SquadRecord& record) {
    const std::optional<std::string> text = unitFileText(category, record);
    if (!text) {
        return SaveResult::NothingToSave;
    }
    const std::string path = dataFilePath(base, category, record.fileName);
    if (const auto failure = replaceDataFile(files, backups, base, path, *text)) {
        debugLine("ERROR: " + failure->path + ": " + failure->reason);
        showCouldNotSave(path);
        return SaveResult::Failed;
    }
    return SaveResult::Saved;
}

} // namespace varrocade
