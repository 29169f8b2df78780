#pragma once
// Changes of the open record as steps that can be undone.

#include "app/workspace/workspace.h"

#include <string_view>

namespace varrocade {

/// Notes a change of the open record that can be undone under this name, and has it shown.
void recordChanged(Workspace& workspace, std::string_view change);

/// Goes a step back or forth in the history; nothing where there is none.
void undoChange(Workspace& workspace);
void redoChange(Workspace& workspace);

} // namespace varrocade
