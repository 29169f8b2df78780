#include "album.h"

#include <cstdio>

namespace artwork {

void Album::put(std::string_view path, const Picture& picture) {
    const std::filesystem::path file = folder_ / path;
    std::error_code ignored; // a folder that cannot be made shows when the picture cannot be written
    std::filesystem::create_directories(file.parent_path(), ignored);
    if (!writePng(picture, file.string())) {
        std::fprintf(stderr, "draw-sample: cannot write %s\n", file.string().c_str());
        failed_ = true;
    }
}

void Album::put(std::span<const Sheet> sheets) {
    for (const Sheet& sheet : sheets) {
        if (wants(sheet.path)) {
            put(sheet.path, drawSheet(sheet));
        }
    }
}

} // namespace artwork
