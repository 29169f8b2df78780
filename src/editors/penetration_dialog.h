#pragma once

#include "weapons/weapon_catalogue.h"

#include <windows.h>

namespace varrocade {

struct DrawingObjects;

/// Opens the "Penetration Calculation" dialog. It reads weapons and changes nothing.
void calculatePenetration(HWND owner, const WeaponCatalogue& catalogue, const DrawingObjects& drawing);

} // namespace varrocade
