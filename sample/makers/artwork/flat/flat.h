#pragma once

#include "album.h"

/// Pictures that are not vehicles in relief.
namespace artwork {

/// The tile of ground behind the unit: 100 x 100 pixels, one metre.
void drawGround(Album& album);
/// The flags of all nationalities, still and waving.
void drawFlags(Album& album);
/// Tracers and missiles in flight, flying up the picture.
void drawTracers(Album& album);

} // namespace artwork
