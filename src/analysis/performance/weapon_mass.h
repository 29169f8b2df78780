#pragma once
// What weapons and their ammunition weigh, estimated from calibre and length of barrel.

#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace varrocade {

/// Kilograms.
struct WeaponMass {
    double weapon = 0.0; ///< with breech, recoil gear and mounting
    double round = 0.0;  ///< with its case
};

/// The masses of a weapon of this type, `calibre` and `barrelLength` in millimetres. A weapon that states no
/// length has a barrel usual for its type. Never negative.
WeaponMass weaponMass(WeaponType type, double calibre, double barrelLength, int barrels);

/// The same from a weapon's name alone, such as "WEAPON_CANNON_75_KWK42_L70", for weapons without a file.
WeaponMass weaponMassByName(std::string_view name);

/// The masses of all weapons of a game by name. Copies what it needs: the catalogue may change or go.
class WeaponMasses {
public:
    WeaponMasses() = default;
    explicit WeaponMasses(const WeaponCatalogue& catalogue);
    /// Those of one vehicle's weapons and ammunition alone, which is much sooner done.
    WeaponMasses(const WeaponCatalogue& catalogue, const VehicleRecord& vehicle);

    /// Letter case does not count. A weapon without a file is estimated by its name.
    [[nodiscard]] WeaponMass of(std::string_view name) const;

private:
    std::unordered_map<std::string, WeaponMass> masses_; ///< by names in lower case
};

} // namespace varrocade
