#pragma once

#include "data/game_files.h"
#include "data/unit/unit_record.h"
#include "editors/penetration/can_penetrate_form.h"
#include "weapons/weapon_catalogue.h"

#include <windows.h>

#include <cstddef>
#include <string>

namespace varrocade {

struct DrawingObjects;

/// What the penetration dialogs read; they change nothing.
struct PenetrationTools {
    const WeaponCatalogue& catalogue;
    const DrawingObjects& drawing;
    GameFolders folders;                   ///< of the vehicles
    const SquadRecord* openUnit = nullptr; ///< counts as it is in the window, saved or not
    std::string weapon = {};               ///< the name of the one that is open or selected, or empty
};

/// What is shot.
struct Shot {
    std::size_t weapon = 0; ///< in the catalogue
    std::size_t shell = 0;  ///< of the weapon's ammunition types
    DragTexts drags = defaultDragTexts();
};

/// Opens the "Can It Penetrate?" dialog: up to which range a shot goes through each plate of a vehicle.
void askWhatPenetrates(HWND owner, const PenetrationTools& tools, const Shot& shot);

} // namespace varrocade
