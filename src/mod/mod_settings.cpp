#include "mod/mod_settings.h"

#include "mod/mod_text_edit.h"

namespace varrocade {

std::optional<ModSettings> loadModSettings(const std::string& modFolder) {
    std::string content;
    if (!readWholeFile(modFolder + std::string(ModFileName), content)) {
        return std::nullopt;
    }
    return readModSettings(content);
}

std::optional<FileFailure> saveModSettings(FileOperations& files, BackupKeeper& backups,
                                           const std::string& modFolder, const ModSettings& settings) {
    const std::string path = modFolder + std::string(ModFileName);
    std::string former;
    if (files.exists(path) && !files.read(path, former)) {
        return FileFailure{path, files.lastError()};
    }
    const std::string text = former.empty() ? modSettingsText(settings) : editedModText(former, settings);
    return text == former ? std::nullopt : replaceDataFile(files, backups, modFolder, path, text);
}

} // namespace varrocade
