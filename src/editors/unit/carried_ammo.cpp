#include "editors/unit/carried_ammo.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

bool contains(std::span<const std::string> names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool hasLoad(std::span<const AmmoLoadRecord> loads, const AmmoLoadRecord& wanted) {
    return std::any_of(loads.begin(), loads.end(), [&](const AmmoLoadRecord& load) {
        return load.weaponType == wanted.weaponType &&
               (wanted.flavour.empty() || load.flavour == wanted.flavour);
    });
}

/// The types that are among `some` and not among `others`.
std::vector<std::string> without(std::vector<std::string> some, std::span<const std::string> others) {
    std::erase_if(some, [&](const std::string& name) { return name.empty() || contains(others, name); });
    return some;
}

struct UsualRounds {
    WeaponType type;
    std::int32_t onGround; ///< of a man, or of a heavy weapon
    std::int32_t inAir;    ///< of an aircraft
};

/// What most units of the game's sample carry for a weapon of the type.
constexpr auto RoundsOfTypes = std::to_array<UsualRounds>({
    {WeaponType::Rifle, 60, 60},
    {WeaponType::Pistol, 16, 16},
    {WeaponType::Carbine, 90, 90},
    {WeaponType::Shotgun, 32, 32},
    {WeaponType::AtRifle, 20, 20},
    {WeaponType::Bomb, 2, 2},
    {WeaponType::Smg, 160, 160},
    {WeaponType::Lmg, 240, 1000},
    {WeaponType::Hmg, 1500, 1000},
    {WeaponType::Grenade, 2, 2},
    {WeaponType::GrenadeLauncher, 10, 10},
    {WeaponType::Rpg, 3, 4},
    {WeaponType::RecoillessRifle, 8, 8},
    {WeaponType::FlamethrowerPortable, 7, 7},
    {WeaponType::FlamethrowerTank, 60, 60},
    {WeaponType::Mortar, 48, 48},
    {WeaponType::Cannon, 40, 150},
    {WeaponType::Mlrs, 8, 8},
    {WeaponType::Artillery, 40, 40},
});

constexpr auto HighExplosives =
    std::to_array<AmmoFlavour>({AmmoFlavour::He, AmmoFlavour::MortarHe, AmmoFlavour::ArtilleryHe,
                                AmmoFlavour::RpgHe, AmmoFlavour::GrenadeHe, AmmoFlavour::RocketHe});

} // namespace

std::int32_t usualRounds(const WeaponCatalogue& catalogue, std::string_view weaponType, WeaponBearer bearer) {
    const WeaponRecord* weapon = catalogue.find(weaponType);
    const auto usual = std::find_if(RoundsOfTypes.begin(), RoundsOfTypes.end(), [&](const UsualRounds& row) {
        return weapon != nullptr && row.type == weapon->type;
    });
    if (usual == RoundsOfTypes.end() || bearer == WeaponBearer::Vehicle) {
        return 0;
    }
    return bearer == WeaponBearer::Aircraft ? usual->inAir : usual->onGround;
}

std::vector<AmmoLoadRecord> usualLoads(const WeaponCatalogue& catalogue, std::string_view weaponType,
                                       WeaponBearer bearer) {
    const WeaponRecord* weapon = catalogue.find(weaponType);
    const std::int32_t rounds = usualRounds(catalogue, weaponType, bearer);
    if (rounds == 0 || weapon->ammoTypes.empty()) {
        return {};
    }
    std::vector<AmmoFlavour> flavours = {weapon->ammoTypes.front().flavour};
    const auto explosive =
        std::find_if(weapon->ammoTypes.begin(), weapon->ammoTypes.end(), [](const AmmoTypeRecord& ammo) {
            return std::find(HighExplosives.begin(), HighExplosives.end(), ammo.flavour) !=
                   HighExplosives.end();
        });
    if (bearer != WeaponBearer::Man && explosive != weapon->ammoTypes.end() &&
        explosive->flavour != flavours.front()) {
        flavours.push_back(explosive->flavour);
    }
    std::vector<AmmoLoadRecord> loads;
    for (const AmmoFlavour flavour : flavours) {
        // The files leave out what goes without saying, but for bombs the reader puts it in again.
        const std::string_view name = nameOf(flavour);
        const bool isLeftOut = isDefaultFlavour(weaponType, name) && name != FlavourBombHe;
        loads.push_back(
            {.weaponType = weaponType, .flavour = isLeftOut ? std::string_view() : name, .rounds = rounds});
    }
    return loads;
}

std::vector<std::string> weaponTypesOf(std::span<const WeaponMountRecord> weapons) {
    std::vector<std::string> types;
    for (const WeaponMountRecord& weapon : weapons) {
        if (!contains(types, weapon.type.view())) {
            types.push_back(weapon.type.str());
        }
    }
    return types;
}

AmmoLoadRecord nextAmmunition(std::span<const std::string> weaponTypes, std::span<const AmmoLoadRecord> loads,
                              bool hasFlavour, const WeaponCatalogue& catalogue) {
    std::vector<AmmoLoadRecord> wanted;
    for (const std::string& type : weaponTypes) {
        if (!type.empty()) {
            wanted.push_back({.weaponType = std::string_view(type), .flavour = {}});
        }
    }
    const std::size_t weapons = wanted.size();
    for (std::size_t i = 0; i < weapons && hasFlavour; ++i) {
        for (const std::string& flavour : flavourChoices(catalogue, wanted[i].weaponType)) {
            wanted.push_back(
                {.weaponType = Text(wanted[i].weaponType), .flavour = std::string_view(flavour)});
        }
    }
    const auto missing = std::find_if(wanted.begin(), wanted.end(),
                                      [loads](const AmmoLoadRecord& load) { return !hasLoad(loads, load); });
    if (wanted.empty()) {
        return {};
    }
    AmmoLoadRecord next = missing == wanted.end() ? wanted.front() : *missing;
    const auto flavours = flavourChoices(catalogue, next.weaponType);
    if (hasFlavour && next.flavour.empty() && !flavours.empty()) {
        next.flavour = flavours.front();
    }
    return next;
}

std::vector<OrphanedAmmo> orphanedAmmo(std::span<const WeaponMountRecord> former,
                                       std::span<const WeaponMountRecord> present,
                                       std::span<const AmmoLoadRecord> loads) {
    const std::vector<std::string> now = weaponTypesOf(present);
    const std::vector<std::string> before = weaponTypesOf(former);
    const std::vector<std::string> gone = without(before, now);
    const std::vector<std::string> come = without(now, before);
    std::vector<OrphanedAmmo> orphans;
    for (std::size_t i = 0; i < gone.size(); ++i) {
        OrphanedAmmo orphan{.weaponType = gone[i], .successor = i < come.size() ? come[i] : std::string()};
        bool hasAny = false;
        for (const AmmoLoadRecord& load : loads) {
            if (load.weaponType == gone[i]) {
                hasAny = true;
                orphan.rounds += load.rounds;
            }
        }
        if (hasAny) {
            orphans.push_back(std::move(orphan));
        }
    }
    return orphans;
}

std::string orphanQuestion(const OrphanedAmmo& orphan) {
    std::string text = "The weapon " + weaponWord(orphan.weaponType) + " is no longer there. Does its " +
                       "ammunition (rounds: " + std::to_string(orphan.rounds) +
                       ") go with it?\n\nYes: it is " + "deleted.\nNo: it ";
    text += orphan.successor.empty() ? std::string("stays, for a weapon that is not there.")
                                     : "is for the " + weaponWord(orphan.successor) + " from now on.";
    return text;
}

void settleOrphan(const OrphanedAmmo& orphan, bool goesToo, std::vector<AmmoLoadRecord>& loads) {
    if (goesToo) {
        std::erase_if(loads,
                      [&](const AmmoLoadRecord& load) { return load.weaponType == orphan.weaponType; });
        return;
    }
    for (AmmoLoadRecord& load : loads) {
        if (load.weaponType == orphan.weaponType && !orphan.successor.empty()) {
            load.weaponType = orphan.successor;
        }
    }
}

} // namespace varrocade
