#pragma once
// How the components of a vehicle are called for people.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace varrocade {

/// "Hull", "Superstructure", "Turret" or "Fixed Weapon".
std::string_view componentKindWord(ComponentKind kind);

/// A component's place in the vehicle (from 1) and its kind: "2. Turret".
std::string componentTitle(std::size_t place, ComponentKind kind);

/// The same in running text and captions: "Turret 2".
std::string componentName(std::size_t place, ComponentKind kind);

/// The line that names a component in lists: its place in the vehicle (from 1), its kind and its crew.
std::string componentLine(std::size_t place, const ComponentRecord& component);

} // namespace varrocade
