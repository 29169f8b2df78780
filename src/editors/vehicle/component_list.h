#pragma once
// What the component list's buttons do to a vehicle, without any window.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view DeleteComponentCaption = "Delete Component";
inline constexpr std::string_view DeleteHullText = "You cannot delete the Hull component!";
inline constexpr std::string_view DeleteComponentText = "Are you sure you want to delete this component?";

/// Appends a new component of a kind, all of whose numbers and counts are zero.
void addComponent(VehicleRecord& vehicle, ComponentKind kind);

/// Whether "Up" or "Down" can move the component at `index`.
bool canMoveUp(const VehicleRecord& vehicle, std::size_t index);
bool canMoveDown(const VehicleRecord& vehicle, std::size_t index);

} // namespace varrocade
