#include "mod/changes/mod_changes.h"

#include "data/each_field.h"
#include "data/field_text.h"
#include "data/format/texts.h"
#include "data/game_files.h"
#include "data/reading/unit_reader.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <map>

namespace varrocade {

namespace {

struct RecordValue {
    std::string path;
    const FieldInfo* field;
    std::string text;
};

template <typename Record>
std::vector<RecordValue> storedValues(const Record& record) {
    std::vector<RecordValue> values;
    forEachField(record, [&](const FieldPlace& place, const auto& value) {
        if (place.isStored()) {
            values.push_back({place.path.text(), &place.field, textOfValue(value)});
        }
    });
    return values;
}

template <typename Record>
std::vector<ValueChange> compareRecords(const Record& game, const Record& mod) {
    const std::vector<RecordValue> before = storedValues(game);
    std::map<std::string_view, const RecordValue*> places;
    for (const RecordValue& value : before) {
        places.emplace(value.path, &value);
    }
    const auto change = [](const RecordValue& value) {
        return ValueChange{.path = value.path,
                           .label = value.field->label,
                           .unit = value.field->traits.unit,
                           .game = std::nullopt,
                           .mod = std::nullopt};
    };
    std::vector<ValueChange> changes;
    for (const RecordValue& value : storedValues(mod)) {
        const auto place = places.find(value.path);
        if (place == places.end()) {
            changes.push_back(change(value));
            changes.back().mod = value.text;
            continue;
        }
        if (place->second->text != value.text) {
            changes.push_back(change(value));
            changes.back().game = place->second->text;
            changes.back().mod = value.text;
        }
        places.erase(place);
    }
    for (const RecordValue& value : before) {
        if (places.contains(value.path)) {
            changes.push_back(change(value));
            changes.back().game = value.text;
        }
    }
    return changes;
}

bool holdsUnit(const SquadRecord& unit) {
    return unit.vehicle || unit.heavyWeapon || unit.aircraft || !unit.infantrymen.empty();
}

bool holdsWeapon(const WeaponRecord& weapon) {
    return !weapon.name.empty() || !weapon.ammoTypes.empty();
}

template <typename Record, typename Holds>
void compareInto(FileChange& change, const Record& game, const Record& mod, Holds holds) {
    if (holds(game) && !holds(mod)) {
        change.kind = FileChangeKind::Removed;
    } else {
        change.values = compareRecords(game, mod);
    }
}

/// The game's file behind each of the mod's, by its path; the two names may differ in letter case.
const GameFile* hiddenBy(const GameFile& file, const std::vector<GameFile>& hidden) {
    const auto found = std::find_if(hidden.begin(), hidden.end(), [&](const GameFile& one) {
        return equalsIgnoringCase(one.name, file.name);
    });
    return found == hidden.end() ? nullptr : &*found;
}

void compareCategory(ModChanges& changes, const GameFolders& folders, Category category) {
    GameFileList list = listGameFiles(folders, category);
    changes.failures.insert(changes.failures.end(), list.failures.begin(), list.failures.end());
    std::erase_if(list.files, [](const GameFile& file) { return !file.isOfMod; });
    GameFileWalk walk(std::move(list.files));
    walk.run([&](const GameFile& file, std::string_view content) {
        const GameFile* former = hiddenBy(file, list.hidden);
        std::string game;
        if (former == nullptr) {
            changes.files.push_back({FileChangeKind::Added, category, file.name, {}});
        } else if (!readWholeFile(former->path, game)) {
            changes.failures.push_back({former->path, systemFiles().lastError()});
        } else if (game == content) {
            changes.same.push_back(file.path);
        } else {
            changes.files.push_back(compareFiles(category, file.name, game, content));
        }
    });
    changes.failures.insert(changes.failures.end(), walk.failures().begin(), walk.failures().end());
}

} // namespace

std::vector<ValueChange> changedValues(const SquadRecord& game, const SquadRecord& mod) {
    return compareRecords(game, mod);
}

std::vector<ValueChange> changedValues(const WeaponRecord& game, const WeaponRecord& mod) {
    return compareRecords(game, mod);
}

FileChange compareFiles(Category category, const std::string& name, std::string_view game,
                        std::string_view mod) {
    FileChange change{.category = category, .name = name, .values = {}};
    Diagnostics ignored;
    if (category == Category::Weapons) {
        compareInto(change, readWeapon(game, name, ignored), readWeapon(mod, name, ignored), holdsWeapon);
    } else {
        compareInto(change, readUnit(game, name, ignored), readUnit(mod, name, ignored), holdsUnit);
    }
    return change;
}

ModChanges findModChanges(const std::string& gameFolder, const std::string& modFolder) {
    ModChanges changes;
    for (const Category category : AllCategories) {
        compareCategory(changes, {.program = gameFolder, .mod = modFolder}, category);
    }
    return changes;
}

} // namespace varrocade
