#pragma once
// Commands whose tools are still to come. Each shows its confirmation or dialog and says so.

namespace varrocade {

void editModSettings();
void reduceImageSizes();
void generateThumbnails();
void generatePngUsage();
void generateSpreadsheets();
void checkDuplicateFiles();
void checkUnusedFiles();
void checkVoiceFiles();

} // namespace varrocade
