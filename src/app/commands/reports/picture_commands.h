#pragma once
// The menu's tools that make pictures, or make them smaller.

namespace varrocade {

void generateThumbnails();

/// Of the open vehicle, or all below "Images\" of the game, or of the mod in use.
void reduceOpenVehicle();
void reduceAllPictures();

} // namespace varrocade
