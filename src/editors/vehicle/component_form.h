#pragma once
// The fields and checks of the "Hull", "Superstructure", "Turret" and "Fixed Weapon" dialogs, without any
// window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <optional>
#include <string>

namespace varrocade {

/// The form of the four dialogs; the component's kind tells which rows are of its own.
const FormShape<ComponentRecord>& componentShape();

/// Gives a component all that its own dialog edits of `own`; what the dialogs behind its buttons edit stays.
void takeOwnFields(ComponentRecord& component, ComponentRecord own);

/// The caption of the boxes with refusals that have none of their own.
inline constexpr std::string_view ComponentRefusalCaption = "Error";

/// The rotate speed, in degrees a second with one decimal, of a full circle in so many seconds; "0.0" for
/// none.
std::string rotateSpeedText(std::int32_t rotateTime);

/// The seconds of a full circle at a speed, at most a day's, and 0 for one that takes less than half a
/// second; nothing for a speed of 0 or less.
std::optional<std::int32_t> rotateTimeOf(std::string_view speed);

} // namespace varrocade
