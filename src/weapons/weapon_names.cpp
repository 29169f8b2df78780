#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace varrocade {

namespace {

template <typename Value>
struct NameRow {
    Value value;
    std::string_view name;
    std::string_view word = {}; ///< for people
};

constexpr auto Types = std::to_array<NameRow<WeaponType>>({
    {WeaponType::Rifle, "WEAPON_RIFLE", "Rifle"},
    {WeaponType::Pistol, "WEAPON_PISTOL", "Pistol"},
    {WeaponType::Carbine, "WEAPON_CARBINE", "Carbine"},
    {WeaponType::Shotgun, "WEAPON_SHOTGUN", "Shotgun"},
    {WeaponType::AtRifle, "WEAPON_AT_RIFLE", "Anti-tank rifle"},
    {WeaponType::Smg, "WEAPON_SMG", "Submachine gun"},
    {WeaponType::Lmg, "WEAPON_LMG", "Light machine gun"},
    {WeaponType::Hmg, "WEAPON_HMG", "Heavy machine gun"},
    {WeaponType::Rpg, "WEAPON_RPG", "Rocket launcher"},
    {WeaponType::RecoillessRifle, "WEAPON_RECOILLESS_RIFLE", "Recoilless rifle"},
    {WeaponType::FlamethrowerPortable, "WEAPON_FLAMETHROWER_PORTABLE", "Portable flamethrower"},
    {WeaponType::FlamethrowerTank, "WEAPON_FLAMETHROWER_TANK", "Tank flamethrower"},
    {WeaponType::Grenade, "WEAPON_GRENADE", "Grenade"},
    {WeaponType::GrenadeLauncher, "WEAPON_GRENADE_LAUNCHER", "Grenade launcher"},
    {WeaponType::Mortar, "WEAPON_MORTAR", "Mortar"},
    {WeaponType::Cannon, "WEAPON_CANNON", "Cannon"},
    {WeaponType::Mlrs, "WEAPON_MLRS", "Multiple rocket launcher"},
    {WeaponType::Artillery, "WEAPON_ARTILLERY", "Artillery"},
    {WeaponType::Bomb, "WEAPON_BOMB", "Bomb"},
});

struct FlavourRow {
    AmmoFlavour value;
    std::string_view name;
    std::string_view displayName;
};

constexpr auto Flavours = std::to_array<FlavourRow>({
    {AmmoFlavour::None, "FLAVOUR_NONE", "Unknown"},
    {AmmoFlavour::Shrapnel, "FLAVOUR_SHRAPNEL", ""},
    {AmmoFlavour::WoodSplinter, "FLAVOUR_WOOD_SPLINTER", ""},
    {AmmoFlavour::Spark, "FLAVOUR_SPARK", ""},
    {AmmoFlavour::Ball, "FLAVOUR_BALL", "Ball"},
    {AmmoFlavour::Pellets, "FLAVOUR_PELLETS", "Pellets"},
    {AmmoFlavour::AtRifleAp, "FLAVOUR_AT_RIFLE_AP", "AP"},
    {AmmoFlavour::AtRifleHe, "FLAVOUR_AT_RIFLE_HE", "HE"},
    {AmmoFlavour::GrenadeHe, "FLAVOUR_GRENADE_HE", "HE"},
    {AmmoFlavour::GrenadeSmoke, "FLAVOUR_GRENADE_SMOKE", "Smoke"},
    {AmmoFlavour::GrenadeHeat, "FLAVOUR_GRENADE_HEAT", "HEAT"},
    {AmmoFlavour::GrenadeFlame, "FLAVOUR_GRENADE_FLAME", "Molotov cocktail"},
    {AmmoFlavour::MortarHe, "FLAVOUR_MORTAR_HE", "HE"},
    {AmmoFlavour::MortarSmoke, "FLAVOUR_MORTAR_SMOKE", "Smoke"},
    {AmmoFlavour::ArtilleryHe, "FLAVOUR_ARTILLERY_HE", ""},
    {AmmoFlavour::ArtillerySmoke, "FLAVOUR_ARTILLERY_SMOKE", ""},
    {AmmoFlavour::Flame, "FLAVOUR_FLAME", "Flame"},
    {AmmoFlavour::RpgHeat, "FLAVOUR_RPG_HEAT", "HEAT"},
    {AmmoFlavour::RpgSmoke, "FLAVOUR_RPG_SMOKE", "Smoke"},
    {AmmoFlavour::RpgHe, "FLAVOUR_RPG_HE", "HE"},
    {AmmoFlavour::He, "FLAVOUR_HE", "HE"},
    {AmmoFlavour::Heat, "FLAVOUR_HEAT", "HEAT"},
    {AmmoFlavour::Ap, "FLAVOUR_AP", "AP"},
    {AmmoFlavour::Hesh, "FLAVOUR_HESH", "HESH"},
    {AmmoFlavour::Apc, "FLAVOUR_APC", "APC"},
    {AmmoFlavour::Apcbc, "FLAVOUR_APCBC", "APCBC"},
    {AmmoFlavour::Apfsds, "FLAVOUR_APFSDS", "APFSDS"},
    {AmmoFlavour::Apcr, "FLAVOUR_APCR", "APCR"},
    {AmmoFlavour::Apcnr, "FLAVOUR_APCNR", "APCNR"},
    {AmmoFlavour::Apds, "FLAVOUR_APDS", "APDS"},
    {AmmoFlavour::Canister, "FLAVOUR_CANISTER", "Canister"},
    {AmmoFlavour::Smoke, "FLAVOUR_SMOKE", "Smoke"},
    {AmmoFlavour::Atgm, "FLAVOUR_ATGM", "ATGM"},
    {AmmoFlavour::Heatfs, "FLAVOUR_HEATFS", "HEATFS"},
    {AmmoFlavour::RocketHe, "FLAVOUR_ROCKET_HE", "Rocket HE"},
    {AmmoFlavour::BombHe, "FLAVOUR_BOMB_HE", "Bomb HE"},
});

constexpr auto OlderFlavourNames = std::to_array<NameRow<AmmoFlavour>>({
    {AmmoFlavour::Ap, "FLAVOUR_AP_HE"},
    {AmmoFlavour::Apc, "FLAVOUR_APC_HE"},
    {AmmoFlavour::Apcbc, "FLAVOUR_APCBC_HE"},
    {AmmoFlavour::AtRifleAp, "FLAVOUR_BALL_AT_RIFLE"},
    {AmmoFlavour::RpgHeat, "FLAVOUR_RPG"},
});

constexpr auto Eras = std::to_array<NameRow<HeatEra>>({
    {HeatEra::Early, "HEAT_ERA_EARLY", "Early"},
    {HeatEra::Late, "HEAT_ERA_LATE", "Late"},
    {HeatEra::ColdWarEarly, "HEAT_ERA_COLD_WAR_EARLY", "Early Cold War"},
    {HeatEra::ColdWar, "HEAT_ERA_COLD_WAR", "Cold War"},
    {HeatEra::ColdWarLate, "HEAT_ERA_COLD_WAR_LATE", "Late Cold War"},
    {HeatEra::Modern, "HEAT_ERA_MODERN", "Modern"},
});

constexpr auto GuidanceModes = std::to_array<NameRow<GuidanceMode>>({
    {GuidanceMode::Manual, "GUIDED_MANUAL", "Guided by hand"},
    {GuidanceMode::FireAndForget, "GUIDED_FAF", "Fire and forget"},
    {GuidanceMode::TopAttack, "GUIDED_TOP_ATTACK", "Top attack"},
    {GuidanceMode::OverTheTop, "GUIDED_OVER_THE_TOP", "Flies over the top"},
});

constexpr auto ReloadModes = std::to_array<NameRow<ReloadMode>>({
    {ReloadMode::SemiAutomatic, "RELOAD_SEMI_AUTOMATIC", "Semi-automatic"},
    {ReloadMode::Automatic, "RELOAD_AUTOMATIC", "Automatic"},
});

template <std::size_t Skipped, typename Rows>
constexpr auto namesOf(const Rows& rows) {
    std::array<std::string_view, std::tuple_size_v<Rows> - Skipped> names{};
    std::transform(rows.begin() + Skipped, rows.end(), names.begin(),
                   [](const auto& row) { return row.name; });
    return names;
}

/// The game makes shrapnel, splinters and sparks itself; no file may name them.
constexpr std::size_t UnnameableFlavours = 4;

constexpr auto TypeNames = namesOf<0>(Types);
constexpr auto FlavourNames = namesOf<UnnameableFlavours>(Flavours);
constexpr auto EraNames = namesOf<0>(Eras);
constexpr auto GuidanceNames = namesOf<0>(GuidanceModes);
constexpr auto ReloadNames = namesOf<0>(ReloadModes);

template <typename Rows, typename Value>
std::string_view findName(const Rows& rows, Value value, std::string_view otherwise) {
    for (const auto& row : rows) {
        if (row.value == value) {
            return row.name;
        }
    }
    return otherwise;
}

/// The words of a table; `otherwise` for a value that has none.
template <typename Rows, typename Value>
std::string_view findWord(const Rows& rows, Value value, std::string_view otherwise) {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.value == value; });
    return row != rows.end() ? row->word : otherwise;
}

template <typename Value, std::size_t Count>
std::optional<Value> findValue(const std::array<NameRow<Value>, Count>& rows, std::string_view name) {
    for (const NameRow<Value>& row : rows) {
        if (row.name == name) {
            return row.value;
        }
    }
    return std::nullopt;
}

} // namespace

std::span<const std::string_view> weaponTypeNames() {
    return TypeNames;
}

std::span<const std::string_view> flavourNames() {
    return FlavourNames;
}

std::span<const std::string_view> heatEraNames() {
    return EraNames;
}

std::span<const std::string_view> guidanceModeNames() {
    return GuidanceNames;
}

std::span<const std::string_view> reloadModeNames() {
    return ReloadNames;
}

std::string_view nameOf(WeaponType type) {
    return findName(Types, type, "WEAPON_NONE");
}

WeaponType weaponTypeOf(std::string_view name) {
    return findValue(Types, name).value_or(WeaponType::None);
}

std::string_view nameOf(AmmoFlavour flavour) {
    return findName(Flavours, flavour, Flavours.front().name);
}

AmmoFlavour flavourOf(std::string_view name) {
    for (const FlavourRow& row : Flavours) {
        if (row.name == name) {
            return row.value < AmmoFlavour::Ball ? AmmoFlavour::None : row.value;
        }
    }
    return findValue(OlderFlavourNames, name).value_or(AmmoFlavour::None);
}

std::string_view displayNameOf(AmmoFlavour flavour) {
    const auto row = std::find_if(Flavours.begin(), Flavours.end(), [flavour](const FlavourRow& candidate) {
        return candidate.value == flavour;
    });
    return row != Flavours.end() ? row->displayName : Flavours.front().displayName;
}

bool isHeat(AmmoFlavour flavour) {
    return flavour == AmmoFlavour::GrenadeHeat || flavour == AmmoFlavour::RpgHeat ||
           flavour == AmmoFlavour::Heat || flavour == AmmoFlavour::Atgm || flavour == AmmoFlavour::Heatfs;
}

std::string_view nameOf(HeatEra era) {
    return findName(Eras, era, "HEAT_ERA_LATE");
}

std::optional<HeatEra> heatEraOf(std::string_view name) {
    return findValue(Eras, name);
}

std::string_view nameOf(GuidanceMode mode) {
    return findName(GuidanceModes, mode, "GUIDED_MANUAL");
}

std::optional<GuidanceMode> guidanceModeOf(std::string_view name) {
    return findValue(GuidanceModes, name);
}

std::string_view nameOf(ReloadMode mode) {
    return findName(ReloadModes, mode, "RELOAD_AUTOMATIC");
}

std::optional<ReloadMode> reloadModeOf(std::string_view name) {
    return findValue(ReloadModes, name);
}

std::string_view wordOf(WeaponType type) {
    return findWord(Types, type, "Weapon of an unknown type");
}

std::string_view wordOf(HeatEra era) {
    return findWord(Eras, era, Eras[1].word);
}

std::string_view wordOf(GuidanceMode mode) {
    return mode == GuidanceMode::Unguided ? "Unguided"
                                          : findWord(GuidanceModes, mode, GuidanceModes.front().word);
}

std::string_view wordOf(ReloadMode mode) {
    return mode == ReloadMode::None ? "None" : findWord(ReloadModes, mode, ReloadModes.back().word);
}

std::string valueText(WeaponType value) {
    return std::string(nameOf(value));
}

std::string valueText(AmmoFlavour value) {
    return std::string(nameOf(value));
}

std::string valueText(HeatEra value) {
    return std::string(nameOf(value));
}

std::string valueText(GuidanceMode value) {
    return value == GuidanceMode::Unguided ? std::string() : std::string(nameOf(value));
}

std::string valueText(ReloadMode value) {
    return value == ReloadMode::None ? std::string() : std::string(nameOf(value));
}

} // namespace varrocade
