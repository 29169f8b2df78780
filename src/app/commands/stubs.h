#pragma once
// Commands whose windows are still to come. Each asks its question and says so.

namespace varrocade {

void reduceImageSizes();
void generateThumbnails();

} // namespace varrocade
