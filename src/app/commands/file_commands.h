#pragma once
// The commands that ask for a file's name.

namespace varrocade {

void newFile();
void duplicateOpenFile();

} // namespace varrocade
