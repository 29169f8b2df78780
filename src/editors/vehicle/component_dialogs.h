#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

#include <cstddef>

namespace varrocade {

/// Opens the dialog of the kind of the component at `index`: "Hull", "Superstructure", "Turret" or "Fixed
/// Weapon". Its own fields are taken over on OK (true), what its buttons open changes the component at once.
bool editComponent(HWND owner, EditContext& edit, std::size_t index);

} // namespace varrocade
