#pragma once
// The fields of the "Drive" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <array>
#include <optional>
#include <string_view>

namespace varrocade {

/// Where an engine can stand, in the order of `EngineMount`.
inline constexpr std::array<std::string_view, 3> EngineMountNames = {"Rear", "Middle", "Front"};

void fillDriveForm(FormPort& port, const VehicleRecord& vehicle);

/// Takes the dialog's fields over; an error leaves the vehicle as it was.
std::optional<FormError> readDriveForm(FormPort& port, VehicleRecord& vehicle);

/// Fills name and horsepower from the engine table when the text names one of its engines.
void takeEngine(FormPort& port, std::string_view engineName);

} // namespace varrocade
