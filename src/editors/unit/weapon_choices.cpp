#include "editors/unit/weapon_choices.h"

#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

struct Era {
    int lastYear;
    std::string_view period;
};

constexpr std::array<Era, 3> Eras = {{{1919, "WW1"}, {1945, "WW2"}, {1991, "Cold War"}}};
constexpr std::string_view LastEra = "Modern";

/// A weapon of a type that this program does not know may be anybody's.
constexpr auto MansTypes = std::to_array<WeaponType>(
    {WeaponType::None, WeaponType::Rifle, WeaponType::Pistol, WeaponType::Carbine, WeaponType::Shotgun,
     WeaponType::AtRifle, WeaponType::Smg, WeaponType::Lmg, WeaponType::Grenade, WeaponType::GrenadeLauncher,
     WeaponType::Rpg, WeaponType::FlamethrowerPortable});
constexpr auto VehiclesTypes = std::to_array<WeaponType>(
    {WeaponType::None, WeaponType::AtRifle, WeaponType::Smg, WeaponType::Lmg, WeaponType::Hmg,
     WeaponType::GrenadeLauncher, WeaponType::Rpg, WeaponType::RecoillessRifle, WeaponType::FlamethrowerTank,
     WeaponType::Mortar, WeaponType::Cannon, WeaponType::Mlrs, WeaponType::Artillery});

} // namespace

std::string_view periodOf(const SquadRecord& record) {
    if (record.availability.empty()) {
        return {};
    }
    const auto first = std::min_element(
        record.availability.begin(), record.availability.end(),
        [](const AvailabilityPoint& a, const AvailabilityPoint& b) { return a.year < b.year; });
    for (const Era& era : Eras) {
        if (first->year <= era.lastYear) {
            return era.period;
        }
    }
    return LastEra;
}

std::vector<std::string> knownPeriods() {
    std::vector<std::string> periods;
    periods.reserve(Eras.size() + 1);
    for (const Era& era : Eras) {
        periods.emplace_back(era.period);
    }
    periods.emplace_back(LastEra);
    return periods;
}

std::vector<std::string> weaponChoices(const WeaponCatalogue& catalogue, const SquadRecord& record,
                                       WeaponBearer bearer, bool all) {
    WeaponFilter filter;
    if (!all) {
        filter.types = bearer == WeaponBearer::Man ? std::span<const WeaponType>(MansTypes) : VehiclesTypes;
        filter.nationality = record.nationality;
        filter.period = periodOf(record);
    }
    std::vector<std::string> names;
    for (const WeaponRecord* weapon : catalogue.select(filter)) {
        names.push_back(weapon->fileName);
    }
    return names;
}

std::string unknownWeapon(std::string_view weaponType, const WeaponCatalogue& catalogue) {
    return weaponType.empty() || catalogue.find(weaponType) != nullptr
               ? ""
               : "Unknown, kept as it is: there is no weapon file \"" + std::string(weaponType) + "\"";
}

std::string unknownFlavour(std::string_view flavour) {
    return flavour.empty() || flavourOf(flavour) != AmmoFlavour::None
               ? ""
               : "Unknown, kept as it is: the flavour \"" + std::string(flavour) + "\"";
}

std::vector<std::string> flavourChoices(const WeaponCatalogue& catalogue, std::string_view weaponType) {
    std::vector<std::string> names;
    if (const WeaponRecord* weapon = catalogue.find(weaponType)) {
        for (const AmmoTypeRecord& ammo : weapon->ammoTypes) {
            std::string name(nameOf(ammo.flavour));
            if (std::find(names.begin(), names.end(), name) == names.end()) {
                names.push_back(std::move(name));
            }
        }
    }
    return names;
}

std::string ammunitionWarning(const AmmoLoadRecord& ammo, std::span<const std::string> weaponTypes,
                              const WeaponCatalogue& catalogue) {
    if (std::find(weaponTypes.begin(), weaponTypes.end(), ammo.weaponType.view()) == weaponTypes.end()) {
        return "This ammunition is for a weapon that is not there.";
    }
    const std::vector<std::string> flavours = flavourChoices(catalogue, ammo.weaponType);
    const bool isKnown = ammo.flavour.empty() || flavours.empty() ||
                         std::any_of(flavours.begin(), flavours.end(), [&](const std::string& name) {
                             return flavourOf(name) == flavourOf(ammo.flavour);
                         });
    return isKnown ? "" : "The weapon has no ammunition of this flavour.";
}

} // namespace varrocade
