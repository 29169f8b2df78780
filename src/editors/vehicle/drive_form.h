#pragma once
// The fields of the "Drive" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

const FormShape<VehicleRecord>& driveShape();

/// The names of the engine table, each once, in the order of the alphabet.
std::vector<std::string> engineNames();

/// Fills name and horsepower from the engine table when the text names one of its engines.
void takeEngine(FormPort& port, std::string_view engineName);

} // namespace varrocade
