#include "data/image_names.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

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
