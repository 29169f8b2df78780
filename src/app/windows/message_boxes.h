#pragma once

namespace varrocade {

/// Lets `showMessage` show the system's message boxes, owned by the main window or the dialog in front of it.
void useMessageBoxes();

} // namespace varrocade
