#include "data/unit/image_names.h"

#include "data/format/texts.h"

namespace varrocade {

std::string_view imageNameOf(std::string_view text) {
    if (text.size() >= ImageEnding.size() &&
        equalsIgnoringCase(text.substr(text.size() - ImageEnding.size()), ImageEnding)) {
        text.remove_suffix(ImageEnding.size());
    }
    return text;
}

bool isDefaultImage(std::string_view text) {
    return equalsIgnoringCase(imageNameOf(text), DefaultImageName);
}

} // namespace varrocade
