#include "app/workspace/record/record.h"

#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "weapons/weapon_files.h"

namespace varrocade {

std::string fileNameOf(const Record& record) {
    if (const auto* unit = std::get_if<SquadRecord>(&record)) {
        return unit->fileName.str();
    }
    const auto* weapon = std::get_if<WeaponRecord>(&record);
    return weapon != nullptr ? std::string(weapon->fileName) : std::string();
}

void setFileName(Record& record, std::string_view name) {
    if (auto* unit = std::get_if<SquadRecord>(&record)) {
        unit->fileName = name;
    } else if (auto* weapon = std::get_if<WeaponRecord>(&record)) {
        weapon->fileName = name;
    }
}

std::optional<std::string> fileTextOf(Category category, const Record& record) {
    if (const auto* weapon = std::get_if<WeaponRecord>(&record)) {
        return weaponFileText(*weapon);
    }
    const auto* unit = std::get_if<SquadRecord>(&record);
    return unit != nullptr ? unitFileText(category, *unit) : std::nullopt;
}

Record readRecord(Category category, std::string_view content, std::string_view name) {
    if (category == Category::Weapons) {
        Diagnostics diagnostics;
        return readWeapon(content, name, diagnostics);
    }
    Diagnostics diagnostics;
    return readUnit(content, name, diagnostics);
}

} // namespace varrocade
