#pragma once
// What the component list's buttons do to a vehicle, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view DeleteComponentCaption = "Delete Component";
inline constexpr std::string_view DeleteHullText = "You cannot delete the Hull component!";
inline constexpr std::string_view DeleteComponentText = "Are you sure you want to delete this component?";

/// What "Add New Component" asks. A vehicle has its only hull from the beginning.
struct NewComponent {
    ComponentKind kind = ComponentKind::Superstructure;
    bool operator==(const NewComponent&) const = default;
};
const FormShape<NewComponent>& newComponentShape();
/// As the dialog's list has it: "Fixed Weapon".
std::string newComponentName(const NewComponent& component);

/// Appends a new component of a kind, all of whose numbers and counts are zero.
void addComponent(VehicleRecord& vehicle, ComponentKind kind);

/// Whether the component at `index` can be copied and mirrored: a vehicle has one hull.
bool canCopy(const VehicleRecord& vehicle, std::size_t index);

/// Appends a copy of the component at `index`, with all that it carries.
void copyComponent(VehicleRecord& vehicle, std::size_t index);

/// The same, on the other side of the vehicle: what lies or points to the left is then on the right.
void mirrorComponent(VehicleRecord& vehicle, std::size_t index);

/// Whether "Up" or "Down" can move the component at `index`.
bool canMoveUp(const VehicleRecord& vehicle, std::size_t index);
bool canMoveDown(const VehicleRecord& vehicle, std::size_t index);

} // namespace varrocade
