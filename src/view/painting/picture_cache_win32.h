#pragma once

#include "view/drawing/draw_list.h"
#include "view/painting/gdi_object_win32.h"
#include "view/painting/gdiplus_win32.h"
#include "view/painting/picture_decoder_win32.h"
#include "view/painting/pixmap.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

namespace varrocade {

/// A picture stretched and turned for the screen, to be blended onto it.
struct PlacedBitmap {
    GdiObject<HBITMAP> bitmap;
    PixelBox box; ///< around the centre of the picture
};

/// Puts a placed picture on a device, its centre at a pixel.
void blend(HDC device, int centreX, int centreY, const PlacedBitmap& placed);

/// Decoded pictures and what was made of them for the screen. The least recently used ones go when they take
/// more than a bound of memory. Files that changed are seen after `clear`.
class PictureCache : public PictureSizes {
public:
    /// The pixels of a file; null when there is no picture in it. Valid until the next call.
    const Pixmap* pixels(const std::string& path);

    /// Why `pixels` gave nothing for a file, in a word or two; empty where it did not.
    [[nodiscard]] std::string_view failureOf(const std::string& path) const;

    /// The picture of a file as it is placed, so far as it lies in `clip`, a box around its centre; null when
    /// there is none. Valid until the next call.
    const PlacedBitmap* placed(const std::string& path, const PixmapPlacement& placement,
                               const PixelBox& clip);

    /// The same for pixels that do not come from a file of their own, under a name.
    const PlacedBitmap* placed(const std::string& name, const Pixmap& source,
                               const PixmapPlacement& placement, const PixelBox& clip);

    /// Reads no more than the file's header, and that once.
    std::optional<PictureSize> sizeOf(const std::string& path) override;
    bool isSolidAt(const std::string& path, double x, double y) override;

    /// Forgets everything: files may have changed. Must be called before COM ends.
    void clear();

private:
    static constexpr std::size_t MostBytes = std::size_t{192} << 20U;

    /// The path and, of a placed picture, width, height, angle, isTile and the box; 0 of a decoded one.
    using Key = std::tuple<std::string, double, double, double, bool, int, int, int, int>;

    struct Entry {
        Key key;
        Pixmap pixels;
        PlacedBitmap placed;
        std::size_t bytes = 0;
    };

    static Key keyOf(const std::string& name, const PixmapPlacement& placement, const PixelBox& box);
    /// The pixels of a file, or none and why.
    std::string_view decode(const std::string& path, Pixmap& pixmap);
    Entry* find(const Key& key);
    Entry& keep(Entry entry);

    std::list<Entry> entries_; ///< most recently used first
    std::map<Key, std::list<Entry>::iterator> byKey_;
    std::map<std::string, std::optional<PictureSize>, std::less<>> sizes_;
    /// Why files have no pixels: what failed once is not tried again at every redraw.
    std::map<std::string, std::string_view, std::less<>> failures_;
    std::size_t bytes_ = 0;
    PictureDecoder decoder_;
};

/// How the system is told of pixels that lie as those of a `Pixmap` do.
BITMAPINFO pixelFormat(int width, int height);

/// A bitmap of such pixels, all transparent; `pixels` are those of the bitmap, none when there is no memory
/// for it.
GdiObject<HBITMAP> pixelBitmap(int width, int height, std::span<std::uint32_t>& pixels);

/// How such bitmaps are blended.
inline constexpr BLENDFUNCTION OverGround = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};

/// The pixels of a bitmap that GDI+ has read.
Pixmap pixelsOf(Gdiplus::Bitmap& bitmap);

} // namespace varrocade
