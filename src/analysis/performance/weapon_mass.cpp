#include "analysis/performance/weapon_mass.h"

#include "data/format/numbers.h"
#include "data/format/texts.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace varrocade {

namespace {

/// Barrel, breech and recoil gear against the cylinder of calibre squared times length: a 7.5 cm KwK 40 L/48
/// has 710 kg, an 8.8 cm KwK 36 1,310, a 120 mm M256 2,570 with its mounting parts.
constexpr double GunDensity = 34'500.0;
/// Receiver and mounting of an automatic weapon; an MG 34 in a ball mount, a DT, an M1919A4.
constexpr double ReceiverMass = 12.0;
/// A complete round against the cube of its calibre: 7.9 mm ball 26 g, 12.7 mm 117 g; 75 x 495 R 11.5 kg,
/// 88 x 570 R 16 kg, 122 mm in two parts 42 kg.
constexpr double SmallArmsRoundDensity = 55'000.0;
constexpr double GunRoundDensity = 26'000.0;
/// Rockets and missiles: M-13 42 kg at 132 mm, 9M113 25 kg with its tube at 135 mm.
constexpr double RocketDensity = 14'000.0;
/// Rails and tubes are thin.
constexpr double LauncherDensity = 3'000.0;
constexpr double SmallArmsCalibre = 0.018; ///< metres; from here on rounds are shells
constexpr double MaxCalibre = 0.6;         ///< metres
constexpr double MaxBarrelLength = 12.0;   ///< metres
constexpr int MaxBarrels = 64;
constexpr double FlamethrowerMass = 60.0;
constexpr double FlameMass = 20.0; ///< fuel for one squirt

struct TypeRow {
    std::string_view prefix;
    WeaponType type;
    double calibre; ///< metres, where a name states none
    double lengths; ///< calibres of barrel, where nothing states them
};

constexpr auto Types = std::to_array<TypeRow>({
    {"WEAPON_CANNON_", WeaponType::Cannon, 0.05, 40},
    {"WEAPON_ARTILLERY_", WeaponType::Artillery, 0.105, 25},
    {"WEAPON_AT_RIFLE_", WeaponType::AtRifle, 0.0145, 80},
    {"WEAPON_HMG_", WeaponType::Hmg, 0.0079, 80},
    {"WEAPON_LMG_", WeaponType::Lmg, 0.0079, 70},
    {"WEAPON_MLRS_", WeaponType::Mlrs, 0.132, 20},
    {"WEAPON_MORTAR_", WeaponType::Mortar, 0.081, 14},
    {"WEAPON_RECOILLESS_RIFLE_", WeaponType::RecoillessRifle, 0.106, 20},
    {"WEAPON_RPG_", WeaponType::Rpg, 0.13, 8},
    {"WEAPON_GRENADE_LAUNCHER_", WeaponType::GrenadeLauncher, 0.03, 10},
    {"WEAPON_FLAMETHROWER_", WeaponType::FlamethrowerTank, 0.02, 20},
});

bool isLauncher(WeaponType type) {
    return type == WeaponType::Rpg || type == WeaponType::RecoillessRifle || type == WeaponType::Mlrs;
}

const TypeRow* rowOf(WeaponType type) {
    const auto row = std::find_if(Types.begin(), Types.end(),
                                  [type](const TypeRow& candidate) { return candidate.type == type; });
    return row == Types.end() ? nullptr : &*row;
}

bool isNumber(std::string_view word) {
    return !word.empty() &&
           std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

WeaponMass massOf(const WeaponRecord& weapon) {
    return weaponMass(weapon.type, weapon.calibre, weapon.barrelLength, weapon.numberOfBarrels);
}

} // namespace

WeaponMass weaponMass(WeaponType type, double calibre, double barrelLength, int barrels) {
    if (type == WeaponType::FlamethrowerTank || type == WeaponType::FlamethrowerPortable) {
        return {.weapon = FlamethrowerMass, .round = FlameMass};
    }
    const TypeRow* row = rowOf(type);
    const double bore = std::clamp(calibre / 1000.0, 0.0, MaxCalibre);
    const double stated =
        barrelLength > 0 ? barrelLength / 1000.0 : bore * (row != nullptr ? row->lengths : 50.0);
    const double length = std::min(stated, MaxBarrelLength);
    const double tubes = std::clamp(barrels, 1, MaxBarrels);
    const double cube = bore * bore * bore;
    if (isLauncher(type)) {
        return {.weapon = ReceiverMass + LauncherDensity * bore * bore * length * tubes,
                .round = RocketDensity * cube};
    }
    return {.weapon = ReceiverMass + GunDensity * bore * bore * length * tubes,
            .round = (bore < SmallArmsCalibre ? SmallArmsRoundDensity : GunRoundDensity) * cube};
}

WeaponMass weaponMassByName(std::string_view name) {
    const auto row = std::find_if(Types.begin(), Types.end(), [name](const TypeRow& candidate) {
        return name.starts_with(candidate.prefix);
    });
    if (row == Types.end()) {
        return {};
    }
    // The calibre stands right behind the type, the length in calibres anywhere behind an "L".
    std::string_view rest = name.substr(row->prefix.size());
    double calibre = row->calibre * 1000.0;
    double lengths = row->lengths;
    for (bool isFirst = true; !rest.empty(); isFirst = false) {
        const std::size_t end = std::min(rest.find('_'), rest.size());
        const std::string_view word = rest.substr(0, end);
        if (isFirst && isNumber(word)) {
            calibre = toInteger(word);
        } else if (word.size() > 1 && word.front() == 'L' && isNumber(word.substr(1))) {
            lengths = toInteger(word.substr(1));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return weaponMass(row->type, calibre, calibre * lengths, 1);
}

WeaponMasses::WeaponMasses(const WeaponCatalogue& catalogue) {
    // The name of a file goes before a weapon's own, as in the catalogue.
    for (const CatalogueEntry& entry : catalogue.entries()) {
        if (entry.holdsWeapon) {
            masses_.insert_or_assign(loweredText(entry.weapon.fileName), massOf(entry.weapon));
        }
    }
    for (const CatalogueEntry& entry : catalogue.entries()) {
        if (entry.holdsWeapon) {
            masses_.emplace(loweredText(entry.weapon.name), massOf(entry.weapon));
        }
    }
}

WeaponMasses::WeaponMasses(const WeaponCatalogue& catalogue, const VehicleRecord& vehicle) {
    const auto add = [&](const Text& name) {
        std::string key = loweredText(name);
        if (masses_.contains(key)) {
            return;
        }
        const WeaponRecord* weapon = catalogue.find(name);
        masses_.emplace(std::move(key), weapon != nullptr ? massOf(*weapon) : weaponMassByName(name));
    };
    for (const ComponentRecord& component : vehicle.components) {
        for (const WeaponMountRecord& mount : component.weapons) {
            add(mount.type);
        }
        for (const AmmoLoadRecord& load : component.ammo) {
            add(load.weaponType);
        }
    }
}

WeaponMass WeaponMasses::of(std::string_view name) const {
    const auto found = masses_.find(loweredText(name));
    return found != masses_.end() ? found->second : weaponMassByName(name);
}

} // namespace varrocade
