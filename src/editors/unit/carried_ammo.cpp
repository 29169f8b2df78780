#include "editors/unit/carried_ammo.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "editors/unit/weapon_choices.h"

#include <algorithm>

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

} // namespace

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
