#pragma once
// The fields of the "Details" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <optional>

namespace varrocade {

/// Fills the "Details" dialog from a record that has a vehicle.
void fillVehicleForm(FormPort& port, const SquadRecord& record);

/// Enables the lists of the uniform method that is chosen in the dialog.
void enableUniformLists(FormPort& port);

/// Takes the dialog's fields over into the record; an error leaves the record as it was.
std::optional<FormError> readVehicleForm(FormPort& port, SquadRecord& record);

} // namespace varrocade
