#pragma once
// What a run leaves on the disk that was cut off while it wrote.

#include "app/workspace/workspace.h"

namespace varrocade {

/// Takes away the unfinished files of saves. What is whole goes where it belongs: a data file's new content
/// and a copy of unsaved changes into the journal, a backup among the backups. A file that was to get another
/// name has its own again.
void recoverLeftovers(Workspace& workspace);

/// The base folders that files are looked for below: the game's and, in mod mode, the mod's.
std::vector<std::string> baseFolders(const Workspace& workspace);

} // namespace varrocade
