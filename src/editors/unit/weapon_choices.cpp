#include "editors/unit/weapon_choices.h"

#include "editors/unit/unit_lists.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <climits>
#include <set>

namespace varrocade {

namespace {

struct Era {
    int lastYear;
    std::string_view period;
};

constexpr std::array<Era, 3> Eras = {{{1919, "WW1"}, {1945, "WW2"}, {1991, "Cold War"}}};
constexpr std::string_view LastEra = "Modern";

/// The place of a year's era in `Eras`, or behind them.
std::size_t eraOf(int year) {
    const auto era =
        std::find_if(Eras.begin(), Eras.end(), [year](const Era& row) { return year <= row.lastYear; });
    return static_cast<std::size_t>(era - Eras.begin());
}

/// A weapon of a type that this program does not know may be anybody's.
constexpr auto MansTypes = std::to_array<WeaponType>(
    {WeaponType::None, WeaponType::Rifle, WeaponType::Pistol, WeaponType::Carbine, WeaponType::Shotgun,
     WeaponType::AtRifle, WeaponType::Smg, WeaponType::Lmg, WeaponType::Grenade, WeaponType::GrenadeLauncher,
     WeaponType::Rpg, WeaponType::FlamethrowerPortable});
constexpr auto VehiclesTypes = std::to_array<WeaponType>(
    {WeaponType::None, WeaponType::AtRifle, WeaponType::Smg, WeaponType::Lmg, WeaponType::Hmg,
     WeaponType::GrenadeLauncher, WeaponType::Rpg, WeaponType::RecoillessRifle, WeaponType::FlamethrowerTank,
     WeaponType::Mortar, WeaponType::Cannon, WeaponType::Mlrs, WeaponType::Artillery});
constexpr auto HeavyTypes =
    std::to_array<WeaponType>({WeaponType::None, WeaponType::AtRifle, WeaponType::Lmg, WeaponType::Hmg,
                               WeaponType::GrenadeLauncher, WeaponType::RecoillessRifle, WeaponType::Mortar,
                               WeaponType::Cannon, WeaponType::Mlrs, WeaponType::Artillery});
constexpr auto ThrownTypes = std::to_array<WeaponType>({WeaponType::Grenade});

/// No types: all of them. Aircraft carry whatever somebody hung under a wing.
std::span<const WeaponType> typesOf(WeaponBearer bearer) {
    switch (bearer) {
    case WeaponBearer::Man:
        return MansTypes;
    case WeaponBearer::Vehicle:
        return VehiclesTypes;
    case WeaponBearer::HeavyWeapon:
        return HeavyTypes;
    case WeaponBearer::Thrower:
        return ThrownTypes;
    case WeaponBearer::Aircraft:
        break;
    }
    return {};
}

} // namespace

std::vector<std::string_view> periodsOf(const SquadRecord& record) {
    std::vector<AvailabilityPoint> points = record.availability;
    sortByDate(points);
    std::set<std::size_t> eras;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isLast = i + 1 == points.size();
        if (points[i].number == 0 && !(isLast && eras.empty())) {
            continue;
        }
        // Up to the month before the next date.
        const int end = isLast ? points[i].year : points[i + 1].year - (points[i + 1].month <= 1 ? 1 : 0);
        for (std::size_t era = eraOf(points[i].year); era <= eraOf(std::max<int>(end, points[i].year));
             ++era) {
            eras.insert(era);
        }
    }
    std::vector<std::string_view> periods;
    periods.reserve(eras.size());
    for (const std::size_t era : eras) {
        periods.push_back(era < Eras.size() ? Eras[era].period : LastEra);
    }
    return periods;
}

int lastYearOfEra(int year) {
    const std::size_t era = eraOf(year);
    return era < Eras.size() ? Eras[era].lastYear : INT_MAX;
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
        filter.types = typesOf(bearer);
        filter.nationality = record.nationality;
    }
    std::vector<const WeaponRecord*> weapons = catalogue.select(filter);
    const std::vector<std::string_view> periods = all ? std::vector<std::string_view>() : periodsOf(record);
    if (!periods.empty()) {
        std::set<const WeaponRecord*> fitting;
        for (const std::string_view period : periods) {
            filter.period = period;
            const auto some = catalogue.select(filter);
            fitting.insert(some.begin(), some.end());
        }
        std::erase_if(weapons, [&](const WeaponRecord* weapon) { return !fitting.contains(weapon); });
    }
    std::vector<std::string> names;
    names.reserve(weapons.size());
    for (const WeaponRecord* weapon : weapons) {
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
