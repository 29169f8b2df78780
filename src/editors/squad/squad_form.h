#pragma once
// The fields of the "Details" dialogs of squads on foot, of heavy weapons and of aircraft, without any
// window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

namespace varrocade {

/// The form of a squad on foot or of a heavy weapon's squad.
const FormShape<SquadRecord>& squadShape();

/// The form of a record that has an aircraft.
const FormShape<SquadRecord>& aircraftShape();

} // namespace varrocade
