#pragma once

#include "view/pixmap.h"

#include <string>

namespace varrocade {

/// The picture that a file's bytes hold; without pixels when they hold none. COM must be there.
Pixmap decodedPicture(std::string content);

} // namespace varrocade
