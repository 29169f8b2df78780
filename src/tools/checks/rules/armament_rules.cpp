#include "data/finding_text.h"
#include "data/unit/unit_consistency.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/checks/rules/unit_rules.h"
#include "weapons/weapon_kinds.h"

#include <algorithm>
#include <iterator>

namespace varrocade {

namespace {

namespace ck = check_key;

void checkRounds(const CheckedUnit& checked, const std::vector<AmmoLoadRecord>& loads, const RulePath& path) {
    for (std::size_t i = 0; i < loads.size(); ++i) {
        if (loads[i].rounds == 0) {
            checked.out.atValue(RulePath(path, element::Ammo, i + 1).to(field::Rounds),
                                {.key = ck::NoRounds,
                                 .message = "no rounds for " + quoted(loads[i].weaponType),
                                 .value = "0",
                                 .expected = "at least 1"});
        }
    }
}

bool isLoaded(std::string_view weapon, const std::vector<AmmoLoadRecord>& loads) {
    return std::any_of(loads.begin(), loads.end(),
                       [&](const AmmoLoadRecord& load) { return load.weaponType.view() == weapon; });
}

bool isOneOf(std::string_view name, const std::vector<std::string_view>& names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

void tellUnloaded(const CheckedUnit& checked, std::string_view weapon, const std::string& path) {
    if (!weapon.empty()) {
        checked.out.atValue(path, {.key = ck::WeaponWithoutAmmo,
                                   .message = quoted(weapon) + " has no ammunition",
                                   .value = std::string(weapon),
                                   .expected = "<ammo> for it"});
    }
}

/// What the men of a squad carry for each other: an assistant the gunner's belts.
void checkMen(const CheckedUnit& checked, const std::vector<CrewManRecord>& men, const RulePath& path,
              bool sharesAmmo) {
    std::vector<std::string_view> carried;
    std::vector<std::string_view> loaded; // the weapons that somebody has rounds for
    const auto add = [&](const CrewManRecord& man) {
        carried.insert(carried.end(), man.weapons.begin(), man.weapons.end());
        std::transform(man.ammo.begin(), man.ammo.end(), std::back_inserter(loaded),
                       [](const AmmoLoadRecord& load) { return load.weaponType.view(); });
    };
    if (sharesAmmo) {
        std::for_each(men.begin(), men.end(), add);
        if (checked.unit.heavyWeapon) {
            for (const WeaponMountRecord& weapon : checked.unit.heavyWeapon->weapons) {
                carried.push_back(weapon.type);
            }
        }
    }
    for (std::size_t i = 0; i < men.size(); ++i) {
        const RulePath ofMan(path, element::Man, i + 1);
        if (!sharesAmmo) {
            carried.clear();
            loaded.clear();
            add(men[i]);
        }
        for (std::size_t k = 0; k < men[i].weapons.size(); ++k) {
            if (!isOneOf(men[i].weapons[k], loaded)) {
                tellUnloaded(checked, men[i].weapons[k], RulePath(ofMan, element::Weapon, k + 1).text());
            }
        }
        for (std::size_t k = 0; k < men[i].ammo.size(); ++k) {
            const AmmoLoadRecord& load = men[i].ammo[k];
            // Grenades are thrown: they are ammunition without a weapon.
            if (!load.weaponType.empty() && !isOneOf(load.weaponType, carried) &&
                typeOfWeaponName(load.weaponType) != WeaponType::Grenade) {
                const NearestName nearest = NearestName(load.weaponType).offerAll(carried);
                checked.out.atValue(RulePath(ofMan, element::Ammo, k + 1).to(field::AmmoFor),
                                    {.key = finding_key::AmmoWithoutWeapon,
                                     .message = std::to_string(load.rounds) + " rounds for " +
                                                quoted(load.weaponType) + ", which nobody carries",
                                     .value = load.weaponType.str(),
                                     .hint = nearest.hint(),
                                     .replacement = nearest.onlyName()});
            }
        }
        checkRounds(checked, men[i].ammo, ofMan);
    }
}

} // namespace

void checkArmament(const CheckedUnit& checked) {
    for (Finding& finding : ammunitionFindings(checked.unit)) {
        checked.out.atValue(std::move(finding));
    }
    forEachArmed(checked.unit, [&](const auto& armed, const RulePath& path) {
        for (std::size_t i = 0; i < armed.weapons.size(); ++i) {
            if (!isLoaded(armed.weapons[i].type, armed.ammo)) {
                tellUnloaded(checked, armed.weapons[i].type,
                             RulePath(path, element::Weapon, i + 1).to(field::MountedType));
            }
        }
        checkRounds(checked, armed.ammo, path);
    });
    checkMen(checked, checked.unit.infantrymen, RulePath(), true);
    if (checked.unit.vehicle) {
        forEachComponentPath(*checked.unit.vehicle, [&](const ComponentRecord& part, const RulePath& path) {
            checkMen(checked, part.crew, path, false);
        });
    }
}

} // namespace varrocade
