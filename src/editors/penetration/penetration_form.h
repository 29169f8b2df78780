#pragma once
// What the "Penetration Calculation" dialog shows, without any window.

#include "analysis/penetration.h"
#include "editors/form/form_port.h"
#include "editors/penetration/can_penetrate_form.h"
#include "weapons/weapon_catalogue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The weapon that the dialog begins with where none is open or selected.
inline constexpr std::string_view FirstPenetrationWeapon = "WEAPON_CANNON_75_KWK42_L70";

/// The file names of the weapons in the catalogue's order.
std::vector<std::string> penetrationWeapons(const WeaponCatalogue& catalogue);

/// The place of the weapon of a name; where there is none, that of `FirstPenetrationWeapon`, or 0.
std::size_t firstPenetrationWeapon(const WeaponCatalogue& catalogue, std::string_view name = {});

/// The ammunition types of a weapon as the list shows them, in file order.
std::vector<std::string> shellTypes(const WeaponRecord& weapon);

/// The drag coefficients and the angle that the dialog begins with.
void fillPenetrationDefaults(FormPort& port);

/// The figures of the weapon and of the chosen ammunition type, and the seven rows of results from the drag
/// coefficients and the angle in the form. Dashes without a weapon or an ammunition type.
void showPenetration(FormPort& port, const WeaponRecord* weapon, std::size_t shell);

/// The drag coefficients as they stand in the form.
DragTexts formDrags(FormPort& port);

/// The drag coefficient that the form holds for a flavour; a text that is no number is 0.
double formDrag(FormPort& port, AmmoFlavour flavour);

/// The angle in degrees that the form holds.
double formAngle(FormPort& port);

/// What to tell of the chosen weapon's file, or else of the catalogue's other files; empty when all are
/// sound.
std::string weaponFileNote(const WeaponCatalogue& catalogue, std::size_t weapon);

/// The results for an ammunition type of the weapon as tab separated lines, with a head, for the clipboard.
std::string penetrationTable(FormPort& port, const WeaponRecord& weapon, std::size_t shell);

} // namespace varrocade
