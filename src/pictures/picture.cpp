#include "pictures/picture.h"

namespace varrocade {

Picture emptyPicture(PictureSize size) {
    Picture picture{size};
    picture.samples.resize(picture.pixelCount() * picture.bytesPerPixel());
    return picture;
}

bool samePixels(const Picture& a, const Picture& b) {
    if (a.size != b.size) {
        return false;
    }
    if (a.isDeep == b.isDeep) {
        return a.samples == b.samples;
    }
    const Picture& deep = a.isDeep ? a : b;
    const Picture& flat = a.isDeep ? b : a;
    for (std::size_t i = 0; i < flat.samples.size(); ++i) {
        if (deep.samples[2 * i] != flat.samples[i] || deep.samples[2 * i + 1] != flat.samples[i]) {
            return false;
        }
    }
    return true;
}

} // namespace varrocade
