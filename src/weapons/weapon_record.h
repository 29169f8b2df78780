#pragma once
// One weapon file in memory. Numbers are stored as they stand in the file, in the game's units: calibre and
// barrel length in millimetres, range in metres, rate of fire in rounds a minute, speed in metres a second,
// masses in kilograms, fuse delay in seconds.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varrocade {

/// The values are the game's own.
enum class WeaponType : std::uint8_t {
    None = 0,
    Rifle = 16,
    Pistol = 17,
    Carbine = 18,
    Shotgun = 19,
    AtRifle = 20,
    Bomb = 21,
    Smg = 24,
    Lmg = 25,
    Hmg = 26,
    Grenade = 32,
    GrenadeLauncher = 34,
    Rpg = 49,
    RecoillessRifle = 50,
    FlamethrowerPortable = 64,
    FlamethrowerTank = 65,
    Mortar = 80,
    Cannon = 128,
    Mlrs = 144,
    Artillery = 248,
};

enum class AmmoFlavour : std::uint8_t {
    None = 0,
    Shrapnel = 1,
    WoodSplinter = 2,
    Spark = 3,
    Ball = 16,
    Pellets = 17,
    AtRifleAp = 18,
    AtRifleHe = 19,
    GrenadeHe = 32,
    GrenadeSmoke = 33,
    GrenadeHeat = 34,
    GrenadeFlame = 35,
    MortarHe = 48,
    MortarSmoke = 49,
    ArtilleryHe = 64,
    ArtillerySmoke = 65,
    Flame = 80,
    RpgHeat = 81,
    RpgSmoke = 82,
    RpgHe = 83,
    He = 128,
    Heat = 129,
    Ap = 130,
    Hesh = 131,
    Apc = 132,
    Apcbc = 134,
    Apfsds = 135,
    Apcr = 136,
    Apcnr = 137,
    Apds = 138,
    Canister = 139,
    Smoke = 140,
    Atgm = 141,
    Heatfs = 142,
    RocketHe = 192,
    BombHe = 193,
};

enum class HeatEra : std::uint8_t {
    Early = 0,
    Late = 1,
    ColdWarEarly = 2,
    ColdWar = 3,
    ColdWarLate = 4,
    Modern = 5
};

enum class GuidanceMode : std::uint8_t {
    Unguided = 0,
    Manual = 1,
    FireAndForget = 2,
    TopAttack = 3,
    OverTheTop = 4
};

enum class ReloadMode : std::uint8_t { None = 0, SemiAutomatic = 1, Automatic = 2 };

/// The ammunition types of a weapon are counted in 8 bits.
inline constexpr std::size_t MaxAmmoTypes = 255;

/// One kind of ammunition. An entry that names no flavour is a bomb.
struct AmmoTypeRecord {
    AmmoFlavour flavour = AmmoFlavour::BombHe;
    HeatEra era = HeatEra::Early;
    float speed = 0.0F; ///< muzzle velocity
    float mass = 0.0F;  ///< of the projectile
    bool smokeTrail = false;
    GuidanceMode guided = GuidanceMode::Unguided;
    std::string tracerImage; ///< without ".png"
    float highExplosive = 0.0F;
    float explodeIn = 0.0F;
    std::string explodeSound;
    std::string name; ///< for display
    bool operator==(const AmmoTypeRecord&) const = default;
};

struct WeaponRecord {
    std::string fileName; ///< without folder and ".txt"
    std::string name;     ///< the weapon's identifier
    WeaponType type = WeaponType::Rifle;
    std::int16_t barrelLength = 0;
    float calibre = 0.0F;
    std::uint8_t numberOfBarrels = 1;
    std::int16_t range = 0;
    std::string shootSound;
    std::string tracerImage; ///< without ".png"
    bool muzzleFlash = true;
    std::int16_t rateOfFire = 0;
    ReloadMode reload = ReloadMode::None;
    std::int16_t magazineCapacity = 1; ///< at least 1
    bool singleShot = false;
    std::string reloadSound;
    std::string ejectClipSound;
    std::vector<AmmoTypeRecord> ammoTypes; ///< in file order, at most MaxAmmoTypes
    std::string comments;
    std::string period;    ///< places the weapon among the catalogue's eras
    std::string countries; ///< whose units use it, for the catalogue
    bool operator==(const WeaponRecord&) const = default;
};

} // namespace varrocade
