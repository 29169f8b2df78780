#pragma once
// What a new unit may begin with beyond its name, so that it can be used at once.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What was chosen for a new unit. What is empty or 0 is left to be added later.
struct UnitStart {
    std::int32_t men = 0;                          ///< of a squad on foot, or the crew of a heavy weapon
    Text arms = {};                                ///< the weapon of each man
    HeavyWeaponKind kind = HeavyWeaponKind::AtGun; ///< of a heavy weapon
    Text picture = {};                             ///< of the gun, or of the aircraft
    Text weapon = {};                              ///< of the heavy weapon or of the aircraft
    bool operator==(const UnitStart&) const = default;
};

/// What a new unit of a nation can be used with at once: how many men there usually are, the nation's rifle,
/// a weapon of the kind. `pictures` are those that there are of the category; one that is called like the
/// weapon is its own.
UnitStart suggestedStart(Category category, std::string_view nationality, HeavyWeaponKind kind,
                         const WeaponCatalogue& catalogue, std::span<const std::string> pictures);

/// The weapons that a new unit's list offers: for a heavy weapon those of its kind first.
std::vector<std::string> startWeapons(Category category, std::string_view nationality, HeavyWeaponKind kind,
                                      const WeaponCatalogue& catalogue);

/// The picture that is called like the weapon: "Image-Pak40 gun" for "WEAPON_CANNON_75_PAK40_L46". Empty
/// where there is none.
std::string pictureOfWeapon(std::string_view weapon, std::span<const std::string> pictures);

/// Gives a new unit what was chosen, with what is usually carried for its weapons. A gun's picture "Image-X
/// gun" brings "Image-X base" and "Profile-X" along where `hasPicture` knows them.
void beginWith(SquadRecord& unit, Category category, const UnitStart& start, const WeaponCatalogue& catalogue,
               const std::function<bool(std::string_view picture)>& hasPicture);

} // namespace varrocade
