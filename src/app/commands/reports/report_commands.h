#pragma once
// The commands of the menu that make reports over the game or the mod in use.

namespace varrocade {

void generatePngUsage();
void generateSpreadsheets();
void checkDuplicateFiles();
void checkUnusedFiles();
void checkVoiceFiles();

} // namespace varrocade
