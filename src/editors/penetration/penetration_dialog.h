#pragma once

#include "editors/penetration/can_penetrate_dialog.h"

#include <windows.h>

namespace varrocade {

/// Opens the "Penetration Calculation" dialog. It reads weapons and changes nothing.
void calculatePenetration(HWND owner, const PenetrationTools& tools);

} // namespace varrocade
