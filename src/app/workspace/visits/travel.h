#pragma once
// Back and forward between the records that were open.

#include "app/workspace/workspace.h"

namespace varrocade {

/// Opens the record that was open before the present one, or the one that it was gone back from. Files that
/// are gone, and those of another base folder, are passed over. Nothing happens where there is none, or the
/// user wants to stay.
void goBack(Workspace& workspace);
void goForward(Workspace& workspace);
bool canGoBack(const Workspace& workspace);
bool canGoForward(const Workspace& workspace);

} // namespace varrocade
