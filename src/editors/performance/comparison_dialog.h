#pragma once

#include "data/game_files.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <windows.h>

#include <string>

namespace varrocade {

struct DrawingObjects;

/// What the comparison reads; it changes nothing.
struct ComparisonTools {
    const WeaponCatalogue& catalogue;
    const DrawingObjects& drawing;
    GameFolders folders;
    const SquadRecord* openUnit = nullptr; ///< counts as it is in the window, saved or not
};

/// Opens the "Compare Vehicles" dialog; returns the name of the vehicle that the user wants to see, or
/// nothing.
std::string compareVehicles(HWND owner, const ComparisonTools& tools);

} // namespace varrocade
