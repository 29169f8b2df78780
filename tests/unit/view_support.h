#pragma once
// Pictures that exist in a test only, and what a drawing holds.

#include "view/drawing/draw_list.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace varrocade::tests {

class FakePictures : public PictureSizes {
public:
    std::optional<PictureSize> sizeOf(const std::string& path) override {
        const auto found = sizes.find(path);
        return found == sizes.end() ? std::nullopt : std::optional(found->second);
    }
    /// Pictures show something in their right half.
    bool isSolidAt(const std::string&, double x, double) override { return x >= 0.5; }
    std::map<std::string, PictureSize> sizes;
};

/// The items of one kind, from bottom to top.
template <typename Item>
std::vector<Item> allOf(const DrawList& list) {
    std::vector<Item> found;
    for (const DrawItem& item : list.items) {
        if (const auto* one = std::get_if<Item>(&item)) {
            found.push_back(*one);
        }
    }
    return found;
}

} // namespace varrocade::tests
