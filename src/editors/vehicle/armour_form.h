#pragma once
// The fields of the "Armour" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <optional>
#include <string>

namespace varrocade {

/// As the dialog and the drawing show it: "58 mm", or "-" for a horizontal plate.
std::string effectiveText(const ArmourPlate& plate);

void fillArmourForm(FormPort& port, const ArmourRecord& armour, bool isTurret);

/// Enables bottom and mantlet as their check boxes say.
void enableGiven(FormPort& port, bool isTurret);

/// Takes the dialog's fields over; an error leaves the record as it was.
std::optional<FormError> readArmourForm(FormPort& port, ArmourRecord& armour, bool isTurret);

/// Takes over each plate that can be taken and shows its effective thickness, for the others a question mark.
void followPlates(FormPort& port, ArmourRecord& armour);

/// The right side's plates become the left side's.
void mirrorLeftToRight(ArmourRecord& armour);

/// All four side plates become the upper left one.
void makeSidesAlike(ArmourRecord& armour);

} // namespace varrocade
