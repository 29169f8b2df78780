#include "data/writing/unit_writers.h"

#include <utility>

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

SaveOutcome saveUnit(FileOperations& files, BackupKeeper& backups, const std::string& base, Category category,
                     const SquadRecord& record) {
    std::optional<std::string> text = unitFileText(category, record);
    if (!text) {
        return {};
    }
    const std::string path = dataFilePath(base, category, record.fileName);
    if (auto failure = replaceDataFile(files, backups, base, path, *text)) {
        return {.result = SaveResult::Failed, .failure = std::move(*failure)};
    }
    return {.result = SaveResult::Saved, .content = std::move(*text)};
}

} // namespace varrocade
