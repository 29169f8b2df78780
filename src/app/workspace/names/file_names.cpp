#include "app/workspace/names/file_names.h"

#include "data/unit/enumerations.h"

namespace varrocade {

std::optional<std::string> refusalOfName(std::string_view name) {
    if (name.find_first_not_of(' ') == std::string_view::npos) {
        return "A name must be entered";
    }
    if (name.find_first_of("<>:\"/\\|?*.") != std::string_view::npos) {
        return "Ilegal characters in the filename";
    }
    return std::nullopt;
}

std::optional<std::string> refusalOfNationality(std::string_view name, std::string_view nationality) {
    const std::string word = displayName(nationality, NationalityPrefix);
    if (name.starts_with(word)) {
        return std::nullopt;
    }
    return "The filename must begin with the squad's nationality name:\n\n        " + word;
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

WeaponRecord newWeapon(std::string_view name) {
    WeaponRecord weapon;
    weapon.fileName = name;
    weapon.name = name;
    return weapon;
}

} // namespace varrocade
