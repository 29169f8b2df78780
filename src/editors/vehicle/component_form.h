#pragma once
// The fields and checks of the "Hull", "Superstructure", "Turret" and "Fixed Weapon" dialogs, without any
// window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <optional>
#include <string>

namespace varrocade {

/// A refusal that names the box's caption too.
struct ComponentFormError {
    int control = 0;
    std::string message;
    std::string caption;
};

/// Fills the dialog of a component's kind.
void fillComponentForm(FormPort& port, const ComponentRecord& component);

/// Enables the limits of a turret as its "Limited traverse" says.
void enableTraverse(FormPort& port);

/// Takes the dialog's fields over into the component; an error leaves it as it was.
std::optional<ComponentFormError> readComponentForm(FormPort& port, ComponentRecord& component);

/// The rotate speed, in degrees a second with one decimal, of a full circle in so many seconds; "0.0" for
/// none.
std::string rotateSpeedText(std::int32_t rotateTime);

/// The seconds of a full circle at a speed, at most a day's, and 0 for one that takes less than half a
/// second; nothing for a speed of 0 or less.
std::optional<std::int32_t> rotateTimeOf(std::string_view speed);

} // namespace varrocade
