#include "mod/changes/revert.h"

#include "data/each_field.h"
#include "data/format/texts.h"
#include "data/game_files.h"
#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <any>
#include <type_traits>
#include <utility>

namespace varrocade {

namespace {

template <typename Record>
bool copyValue(Record& to, const Record& from, std::string_view path) {
    std::any value;
    forEachField(from, [&](const FieldPlace& place, const auto& found) {
        if (place.path == path) {
            value = found;
        }
    });
    bool isCopied = false;
    forEachField(to, [&](const FieldPlace& place, auto& found) {
        if (place.path == path) {
            if (const auto* same = std::any_cast<std::remove_cvref_t<decltype(found)>>(&value)) {
                found = *same;
                isCopied = true;
            }
        }
    });
    return isCopied;
}

/// The path of a file in the letter case that it has on the disk.
std::string pathOfName(const std::vector<GameFile>& files, const std::string& base, Category category,
                       const std::string& name) {
    const auto found = std::find_if(files.begin(), files.end(), [&](const GameFile& file) {
        return equalsIgnoringCase(file.name, name);
    });
    return found == files.end() ? dataFilePath(base, category, name) : found->path;
}

FileFailure noSuchValue(const std::string& path) {
    return {path, "the game's file has no such value: only the whole file can go back"};
}

std::optional<FileFailure> failureOf(const SaveOutcome& outcome, const std::string& path) {
    if (outcome.result == SaveResult::Failed) {
        return outcome.failure;
    }
    if (outcome.result == SaveResult::NothingToSave) {
        return FileFailure{path, "the file holds no record of its category"};
    }
    return std::nullopt;
}

} // namespace

bool revertValue(SquadRecord& mod, const SquadRecord& game, std::string_view path) {
    if (path.starts_with(element::Availability) && mod.availability.size() != game.availability.size()) {
        mod.availability = game.availability;
        return true;
    }
    return copyValue(mod, game, path);
}

bool revertValue(WeaponRecord& mod, const WeaponRecord& game, std::string_view path) {
    return copyValue(mod, game, path);
}

std::optional<FileFailure> revertValueInFile(FileOperations& files, BackupKeeper& backups,
                                             const RevertFolders& folders, Category category,
                                             const std::string& name, std::string_view path) {
    const GameFileList list = listGameFiles({.program = folders.game, .mod = folders.mod}, category);
    const std::string modPath = pathOfName(list.files, folders.mod, category, name);
    const std::string gamePath = pathOfName(list.hidden, folders.game, category, name);
    std::string game;
    std::string mod;
    for (const auto& [from, content] : {std::pair(&gamePath, &game), std::pair(&modPath, &mod)}) {
        if (!files.read(*from, *content)) {
            return FileFailure{*from, files.lastError()};
        }
    }
    Diagnostics ignored;
    if (category == Category::Weapons) {
        WeaponRecord weapon = readWeapon(mod, name, ignored);
        if (!revertValue(weapon, readWeapon(game, name, ignored), path)) {
            return noSuchValue(modPath);
        }
        if (weapon == readWeapon(game, name, ignored)) {
            return replaceDataFile(files, backups, folders.mod, modPath, game);
        }
        return failureOf(saveWeapon(files, backups, folders.mod, name, weapon), modPath);
    }
    SquadRecord unit = readUnit(mod, name, ignored);
    if (!revertValue(unit, readUnit(game, name, ignored), path)) {
        return noSuchValue(modPath);
    }
    if (unit == readUnit(game, name, ignored)) {
        return replaceDataFile(files, backups, folders.mod, modPath, game);
    }
    return failureOf(saveUnit(files, backups, folders.mod, category, unit), modPath);
}

std::optional<FileFailure> revertFile(FileOperations& files, BackupKeeper& backups,
                                      const std::string& modFolder, Category category,
                                      const std::string& name) {
    const std::string path = dataFilePath(modFolder, category, name);
    if (auto failure = backups.keep(files, modFolder, path)) {
        return failure;
    }
    if (!files.recycle(path)) {
        return FileFailure{path, files.lastError()};
    }
    return std::nullopt;
}

} // namespace varrocade
