#pragma once
// The fields of the "Details" dialog of a vehicle, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

namespace varrocade {

/// The form of a record that has a vehicle.
const FormShape<SquadRecord>& vehicleShape();

} // namespace varrocade
