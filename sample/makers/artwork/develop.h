#pragma once

#include "picture.h"
#include "relief.h"
#include "scheme.h"

namespace artwork {

/// How a relief becomes a picture.
struct Developing {
    double shadowLength = 90.0; ///< the farthest a part throws its shadow, cm
    double groundShadow = 0.0;  ///< opacity of the soft shadow around the silhouette
    double groundOffset = 6.0;  ///< how far that shadow falls to the lower right, cm
    double groundBlur = 7.0;    ///< cm
    double mud = 0.0;           ///< splashed on what lies low
    double rim = 0.30;          ///< darkening towards the silhouette
};

/// Lights the relief from the upper left: slopes, cast shadows, dark corners, bright edges, dust and gloss.
Picture develop(const Relief& relief, const Scheme& scheme, const Developing& how = {});

} // namespace artwork
