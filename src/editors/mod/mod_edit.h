#pragma once

#include "data/game_files.h"
#include "mod/mod_record.h"

#include <functional>
#include <span>
#include <string>

namespace varrocade {

struct DrawingObjects;
class PictureCache;

/// What the "Edit Mod" dialogs work on.
struct ModEdit {
    ModSettings settings; ///< the copy that they change
    std::span<const std::string> imageBases;
    GameFolders folders; ///< whose units can be listed
    /// Writes what OK takes; false, after telling why, leaves the dialog open.
    std::function<bool(const ModSettings& settings)> save;
    const DrawingObjects& drawing;
    PictureCache& pictures; ///< that pictures are shown from
};

} // namespace varrocade
