#include "mod/mod_settings.h"

#include "mod/mod_fields.h"
#include "mod/mod_text_edit.h"

#include <tuple>

namespace varrocade {

std::optional<ModSettings> loadModSettings(const std::string& modFolder) {
    std::string content;
    if (!readWholeFile(modFolder + std::string(ModFileName), content)) {
        return std::nullopt;
    }
    return readModSettings(content);
}

std::optional<FileFailure> saveModSettings(FileOperations& files, BackupKeeper& backups,
                                           const std::string& modFolder, const ModSettings& settings,
                                           std::string_view opened) {
    const std::string path = modFolder + std::string(ModFileName);
    std::string former;
    if (files.exists(path) && !files.read(path, former)) {
        return FileFailure{path, files.lastError()};
    }
    const std::string_view source = former.empty() ? opened : std::string_view(former);
    const std::string text = source.empty() ? modSettingsText(settings) : editedModText(source, settings);
    return text == former ? std::nullopt : replaceDataFile(files, backups, modFolder, path, text);
}

ModSettings joinedSettings(const ModSettings& opened, const ModSettings& present, const ModSettings& wanted,
                           std::vector<std::string>& conflicts) {
    ModSettings joined = wanted;
    const auto join = [&](auto member, std::string_view label) {
        const bool isOurs = wanted.*member != opened.*member;
        const bool isTheirs = present.*member != opened.*member;
        if (isTheirs && !isOurs) {
            joined.*member = present.*member;
        } else if (isTheirs && wanted.*member != present.*member) {
            conflicts.emplace_back(label);
        }
    };
    std::apply([&](const auto&... fields) { (join(fields.member, fields.label), ...); },
               fieldsOf<ModSettings>);
    join(&ModSettings::credits, "Credits");
    join(&ModSettings::colours, "Colours");
    join(&ModSettings::nationalities, "Nationalities");
    return joined;
}

} // namespace varrocade
