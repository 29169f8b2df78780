#pragma once

#include "view/draw_list.h"
#include "view/gdiplus_win32.h"

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <string>

namespace varrocade {

/// Decoded pictures, the least recently used of which go when they take more than a bound of memory. A
/// picture whose file changed is to be forgotten by its path.
class PictureCache : public PictureSizes {
public:
    /// The picture of a file, ready to draw; null when there is none. Valid until the next call.
    Gdiplus::Bitmap* picture(const std::string& path);

    /// Reads no more than the file's header, and that once.
    std::optional<PictureSize> sizeOf(const std::string& path) override;

    /// Forgets everything: files may have changed.
    void clear();

private:
    static constexpr std::size_t MostBytes = std::size_t{192} << 20U;
    static constexpr std::size_t BytesPerPixel = 4;

    struct Entry {
        std::string path;
        std::unique_ptr<Gdiplus::Bitmap> bitmap;
        std::size_t bytes = 0;
    };

    void makeRoom();

    std::list<Entry> entries_; ///< most recently used first
    std::map<std::string, std::list<Entry>::iterator, std::less<>> byPath_;
    std::map<std::string, std::optional<PictureSize>, std::less<>> sizes_;
    std::size_t bytes_ = 0;
};

} // namespace varrocade
