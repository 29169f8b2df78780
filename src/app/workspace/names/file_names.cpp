#include "app/workspace/names/file_names.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_kinds.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// Names that the system gives to devices in every folder, whatever the ending.
bool isDeviceName(std::string_view name) {
    constexpr std::array<std::string_view, 6> plain = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::array<std::string_view, 2> numbered = {"COM", "LPT"};
    const auto isName = [&](std::string_view device) { return equalsIgnoringCase(name, device); };
    if (std::any_of(plain.begin(), plain.end(), isName)) {
        return true;
    }
    constexpr std::size_t length = 4;
    return name.size() == length && name.back() >= '1' && name.back() <= '9' &&
           std::any_of(numbered.begin(), numbered.end(), [&](std::string_view device) {
               return equalsIgnoringCase(name.substr(0, device.size()), device);
           });
}

} // namespace

std::optional<std::string> refusalOfName(std::string_view name) {
    if (name.find_first_not_of(' ') == std::string_view::npos) {
        return "A name must be entered";
    }
    if (name.find_first_of("<>:\"/\\|?*.") != std::string_view::npos) {
        return "Ilegal characters in the filename";
    }
    if (name.front() == ' ' || name.back() == ' ') {
        return "A name cannot begin or end with a blank";
    }
    if (isDeviceName(name)) {
        return std::string(name) + " is the system's name for a device";
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
