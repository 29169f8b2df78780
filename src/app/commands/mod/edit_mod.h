#pragma once

namespace varrocade {

/// "Edit Mod Settings...": opens the "Edit Mod" dialog on the settings of the mod in use.
void editModSettings();

} // namespace varrocade
