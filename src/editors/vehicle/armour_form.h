#pragma once
// The fields of the "Armour" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <string>

namespace varrocade {

/// The armour's form; the component tells whether it has a mantlet.
const FormShape<ComponentRecord>& armourShape();

/// The control of a plate's thickness; 0 for other fields.
int controlOfPlate(FieldId field);

/// As the dialog and the drawing show it: "58 mm", or "-" for a horizontal plate.
std::string effectiveText(const ArmourPlate& plate);

/// Takes over what can be taken of what is typed, and shows the plates' effective thicknesses: a question
/// mark for one that cannot be taken.
void followPlates(FormPort& port, ComponentRecord& component);

/// The right side's plates become the left side's.
void mirrorLeftToRight(ArmourRecord& armour);

/// All four side plates become the upper left one.
void makeSidesAlike(ArmourRecord& armour);

} // namespace varrocade
