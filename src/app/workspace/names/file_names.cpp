#include "app/workspace/names/file_names.h"

#include "data/unit/enumerations.h"
#include "weapons/weapon_kinds.h"

namespace varrocade {

std::string nameForNationality(const std::string& name, std::string_view former, std::string_view next) {
    const std::string word = displayName(next, NationalityPrefix);
    const std::string formerWord = displayName(former, NationalityPrefix);
    if (name.empty()) {
        return word + " ";
    }
    return !formerWord.empty() && name.starts_with(formerWord) ? word + name.substr(formerWord.size()) : name;
}

SquadRecord newUnit(Category category, std::string_view name, std::string_view nationality) {
    SquadRecord record;
    record.fileName = name;
    record.nationality = nationality;
    switch (category) {
    case Category::Vehicles:
        record.type = "TYPE_TANK";
        // Hulls cannot be added later, nor can they be deleted.
        record.vehicle.emplace().components.emplace_back().kind = ComponentKind::Hull;
        break;
    case Category::AtGuns:
        record.type = "TYPE_ATGUN";
        record.heavyWeapon.emplace().kind = HeavyWeaponKind::AtGun;
        break;
    case Category::Infantry:
        record.type = "TYPE_INFANTRY_SECTION";
        break;
    case Category::Aircraft:
        record.type = "TYPE_PLANE";
        record.aircraft.emplace();
        break;
    case Category::Weapons:
        break;
    }
    return record;
}

WeaponRecord newWeapon(std::string_view name, WeaponType type) {
    WeaponRecord weapon = startingWeapon(type);
    weapon.fileName = name;
    weapon.name = name;
    return weapon;
}

} // namespace varrocade
