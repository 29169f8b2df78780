#pragma once
// What a new unit may begin with beyond its name, so that it can be used at once.

#include "data/category.h"
#include "data/unit/unit_record.h"

#include <functional>
#include <string>
#include <string_view>

namespace varrocade {

/// What was chosen for a new unit. What is empty or 0 is left to be added later.
struct UnitStart {
    std::int32_t men = 0;                          ///< of a squad on foot, or the crew of a heavy weapon
    HeavyWeaponKind kind = HeavyWeaponKind::AtGun; ///< of a heavy weapon
    Text picture;                                  ///< of the gun, or of the aircraft
    Text weapon;                                   ///< of each man, of the heavy weapon or of the aircraft
    bool operator==(const UnitStart&) const = default;
};

/// Gives a new unit what was chosen. A gun's picture "Image-X gun" brings "Image-X base" and "Profile-X"
/// along where `hasPicture` knows them.
void beginWith(SquadRecord& unit, Category category, const UnitStart& start,
               const std::function<bool(std::string_view picture)>& hasPicture);

} // namespace varrocade
