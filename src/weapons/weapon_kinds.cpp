#include "weapons/weapon_kinds.h"

#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// The flavours of the types, by their short names.
namespace kind_flavours {

using enum AmmoFlavour;

constexpr auto SmallArms = std::to_array<AmmoFlavour>({Ball});
constexpr auto Shells = std::to_array<AmmoFlavour>(
    {He, Ap, Apc, Apcbc, Apcr, Apcnr, Apds, Apfsds, Heat, Heatfs, Hesh, Canister, Smoke, Atgm});
constexpr auto RecoillessShells = std::to_array<AmmoFlavour>({Heat, He, Heatfs, Hesh, Canister, Smoke});
constexpr auto ShotgunShells = std::to_array<AmmoFlavour>({Pellets, Ball});
constexpr auto AtRifleRounds = std::to_array<AmmoFlavour>({AtRifleAp, AtRifleHe});
constexpr auto Grenades = std::to_array<AmmoFlavour>({GrenadeHe, GrenadeSmoke, GrenadeHeat, GrenadeFlame});
constexpr auto LaunchedGrenades = std::to_array<AmmoFlavour>({GrenadeHe, GrenadeSmoke, GrenadeHeat});
constexpr auto Rockets = std::to_array<AmmoFlavour>({RpgHeat, RpgHe, RpgSmoke, Atgm});
constexpr auto Flames = std::to_array<AmmoFlavour>({Flame});
constexpr auto MortarBombs = std::to_array<AmmoFlavour>({MortarHe, MortarSmoke});
constexpr auto RocketSalvoes = std::to_array<AmmoFlavour>({RocketHe, ArtillerySmoke});
constexpr auto ArtilleryShells = std::to_array<AmmoFlavour>({ArtilleryHe, ArtillerySmoke});
constexpr auto Bombs = std::to_array<AmmoFlavour>({BombHe});

} // namespace kind_flavours

/// What a weapon of the type begins with, in the units of its record.
struct KindRow {
    WeaponType type;
    std::span<const AmmoFlavour> flavours;
    float calibre;
    std::int16_t barrelLength;
    std::int16_t range;
    std::int16_t rateOfFire;
    ReloadMode reload;
    std::int16_t capacity;
    bool singleShot;
    bool muzzleFlash;
    float speed;
    float mass;
    float highExplosive;
    std::uint8_t barrels = 1;
};

constexpr auto NoReload = ReloadMode::None;
constexpr auto Semi = ReloadMode::SemiAutomatic;
constexpr auto Automatic = ReloadMode::Automatic;

namespace kf = kind_flavours;

constexpr auto Kinds = std::to_array<KindRow>({
    {WeaponType::Rifle, kf::SmallArms, 7.62F, 620, 800, 20, NoReload, 5, false, true, 830, 0.0098F, 0},
    {WeaponType::Pistol, kf::SmallArms, 9, 120, 50, 30, Semi, 8, false, true, 360, 0.008F, 0},
    {WeaponType::Carbine, kf::SmallArms, 7.62F, 458, 300, 40, Semi, 15, false, true, 607, 0.0071F, 0},
    {WeaponType::Shotgun, kf::ShotgunShells, 18.5F, 508, 45, 40, NoReload, 6, false, true, 335, 0.0315F, 0},
    {WeaponType::AtRifle, kf::AtRifleRounds, 14.5F, 1350, 500, 10, NoReload, 1, true, true, 1010, 0.064F, 0},
    {WeaponType::Smg, kf::SmallArms, 9, 200, 120, 500, Automatic, 32, false, true, 365, 0.0075F, 0},
    {WeaponType::Lmg, kf::SmallArms, 7.62F, 604, 800, 550, Automatic, 47, false, true, 840, 0.0096F, 0},
    {WeaponType::Hmg, kf::SmallArms, 7.62F, 722, 1500, 600, Automatic, 250, false, true, 855, 0.0096F, 0},
    {WeaponType::Rpg, kf::Rockets, 85, 950, 300, 4, NoReload, 1, true, true, 120, 2.6F, 0.4F},
    {WeaponType::RecoillessRifle, kf::RecoillessShells, 75, 1651, 1000, 6, NoReload, 1, true, true, 305, 6,
     0.5F},
    {WeaponType::FlamethrowerPortable, kf::Flames, 10, 600, 33, 0, Automatic, 7, false, false, 30, 2, 0},
    {WeaponType::FlamethrowerTank, kf::Flames, 14, 700, 110, 0, Automatic, 80, false, false, 45, 18, 0},
    {WeaponType::Grenade, kf::Grenades, 0, 0, 30, 0, NoReload, 1, false, false, 0, 0.6F, 0.1F},
    {WeaponType::GrenadeLauncher, kf::LaunchedGrenades, 40, 305, 350, 7, NoReload, 1, true, false, 76, 0.23F,
     0.032F},
    {WeaponType::Mortar, kf::MortarBombs, 81.2F, 1190, 2500, 15, NoReload, 1, true, false, 180, 3.4F, 0.5F},
    {WeaponType::Cannon, kf::Shells, 75, 3000, 2000, 12, Semi, 1, false, true, 550, 5.8F, 0.65F},
    {WeaponType::Mlrs, kf::RocketSalvoes, 132, 5000, 8000, 120, NoReload, 16, false, true, 355, 42, 4.9F, 16},
    {WeaponType::Artillery, kf::ArtilleryShells, 105, 2310, 11270, 4, NoReload, 1, false, true, 472, 15,
     2.2F},
    {WeaponType::Bomb, kf::Bombs, 0, 0, 0, 0, NoReload, 1, false, true, 0, 250, 130},
});

const KindRow& kindOf(WeaponType type) {
    const auto row =
        std::find_if(Kinds.begin(), Kinds.end(), [type](const KindRow& kind) { return kind.type == type; });
    return row == Kinds.end() ? Kinds.front() : *row;
}

} // namespace

std::string namePrefixOf(WeaponType type) {
    return std::string(nameOf(type)) + "_";
}

WeaponType typeOfWeaponName(std::string_view name) {
    static const auto words = [] {
        std::array<std::string_view, Kinds.size()> ofKinds;
        std::transform(Kinds.begin(), Kinds.end(), ofKinds.begin(),
                       [](const KindRow& kind) { return nameOf(kind.type); });
        return ofKinds;
    }();
    WeaponType found = WeaponType::None;
    std::size_t longest = 0;
    for (std::size_t i = 0; i < Kinds.size(); ++i) {
        const std::string_view word = words.at(i);
        if (word.size() > longest && name.size() > word.size() && name[word.size()] == '_' &&
            name.starts_with(word)) {
            longest = word.size();
            found = Kinds.at(i).type;
        }
    }
    return found;
}

std::string nameForType(std::string_view name, WeaponType type) {
    const WeaponType former = typeOfWeaponName(name);
    if (former != WeaponType::None) {
        name.remove_prefix(namePrefixOf(former).size());
    }
    return namePrefixOf(type) + std::string(name);
}

std::span<const AmmoFlavour> flavoursOf(WeaponType type) {
    return kindOf(type).flavours;
}

AmmoTypeRecord startingAmmo(WeaponType type) {
    const KindRow& kind = kindOf(type);
    AmmoTypeRecord ammo;
    ammo.flavour = kind.flavours.front();
    ammo.speed = kind.speed;
    ammo.mass = kind.mass;
    ammo.highExplosive = kind.highExplosive;
    return ammo;
}

WeaponRecord startingWeapon(WeaponType type) {
    const KindRow& kind = kindOf(type);
    WeaponRecord weapon;
    weapon.type = kind.type;
    weapon.calibre = kind.calibre;
    weapon.barrelLength = kind.barrelLength;
    weapon.numberOfBarrels = kind.barrels;
    weapon.range = kind.range;
    weapon.rateOfFire = kind.rateOfFire;
    weapon.reload = kind.reload;
    weapon.magazineCapacity = kind.capacity;
    weapon.singleShot = kind.singleShot;
    weapon.muzzleFlash = kind.muzzleFlash;
    weapon.ammoTypes.push_back(startingAmmo(type));
    return weapon;
}

} // namespace varrocade
