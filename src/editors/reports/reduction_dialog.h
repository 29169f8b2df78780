#pragma once
// "Reduce image sizes": the pictures before and after, and writing them.

#include "platform/backups.h"
#include "tools/pictures/picture_reduction.h"
#include "view/painting/drawing_objects_win32.h"

#include <windows.h>

#include <optional>
#include <string>

namespace varrocade {

struct ReductionTools {
    FileOperations& files;
    BackupKeeper& backups;
    const DrawingObjects& drawing;
    GameFolders folders;
    std::string vehicle;             ///< whose pictures are meant; all where it is empty
    std::optional<SquadRecord> open; ///< the open vehicle, which counts in place of its file
};

/// Makes pictures smaller with the same pixels, shows what comes of that, scales where the user asks for it,
/// and writes what he chooses. True where something was written.
bool reducePictures(HWND owner, const ReductionTools& tools);

} // namespace varrocade
