#pragma once

#include "app/workspace/workspace.h"

namespace varrocade {

/// The one that shows in the main window what happens in the workspace.
WorkspaceListener& windowListener();

} // namespace varrocade
