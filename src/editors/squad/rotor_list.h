#pragma once

#include "editors/form/list_model.h"

#include "data/unit/unit_record.h"

namespace varrocade {

/// How the rotor blades of an aircraft are shown and edited.
const ListShape<RotorBladesRecord>& rotorShape();

} // namespace varrocade
