#pragma once

#include "pictures/picture.h"

namespace varrocade {

/// A picture in another size. It is filtered (Catmull-Rom) as light adds up: with the colours multiplied by
/// the alpha, so that what is transparent lends its neighbours no colour, and out of the curve of sRGB.
/// Beyond its edges a picture goes on as it ends there. Without pixels when there is no memory for it.
Picture scaledPicture(const Picture& picture, PictureSize size);

} // namespace varrocade
