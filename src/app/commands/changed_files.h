#pragma once

namespace varrocade {

/// Lists the files with unsaved changes, to go to one of them or to save them all.
void showChangedFiles();

} // namespace varrocade
