#pragma once
// The state of the running program: the workspace, window handles, drawing objects, what is shown of the open
// record. It stands here and nowhere else.

#include "app/windows/display/display_state.h"
#include "app/windows/folder_watch.h"
#include "app/windows/problems/problems_state.h"
#include "app/workspace/workspace.h"
#include "editors/performance/performance_dialog.h"
#include "tools/weapon_users.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/picture_cache_win32.h"

#include <windows.h>

#include <memory>
#include <string>

namespace varrocade {

class WhereUsedWindow;

struct Application {
    HINSTANCE instance = nullptr;
    HWND window = nullptr;
    HMENU menu = nullptr;

    Workspace workspace;
    WeaponUsers weaponUsers;
    FolderWatch watch;
    bool isLookDue = false; ///< other programs may have changed files, which could not be looked at yet

    std::string typedAhead; ///< what was typed into the list lately, and when
    DWORD typedAheadTime = 0;
    bool showDestroyed = false;
    bool showMarks = true; ///< of weapons, exhaust pipes, dischargers and crew in the drawing

    DrawingObjects drawing;
    PictureCache pictures;
    PicturePrefetch prefetch;
    UnitDisplay display;

    // Windows beside the main one; none before they are opened first.
    std::shared_ptr<WhereUsedWindow> whereUsed;
    std::unique_ptr<PerformanceWindow> performance;
    ProblemsState problems;
};

/// The one application.
Application& application();

/// Its workspace.
Workspace& theWorkspace();

} // namespace varrocade
