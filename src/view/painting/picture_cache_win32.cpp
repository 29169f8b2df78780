#include "view/painting/picture_cache_win32.h"

#include "platform/file_operations.h"

#include <algorithm>
#include <cstdint>

namespace varrocade {

namespace {

PixelBox commonBox(const PixelBox& a, const PixelBox& b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    return {left, top, std::max(0, std::min(a.left + a.width, b.left + b.width) - left),
            std::max(0, std::min(a.top + a.height, b.top + b.height) - top)};
}

std::size_t pixelsIn(const PixelBox& box) {
    return static_cast<std::size_t>(box.width) * static_cast<std::size_t>(box.height);
}

} // namespace

Pixmap pixelsOf(Gdiplus::Bitmap& bitmap) {
    Pixmap result{static_cast<int>(bitmap.GetWidth()), static_cast<int>(bitmap.GetHeight()), {}};
    result.pixels.resize(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    Gdiplus::BitmapData data{};
    data.Width = bitmap.GetWidth();
    data.Height = bitmap.GetHeight();
    data.Stride = result.width * static_cast<INT>(sizeof(std::uint32_t));
    data.PixelFormat = PixelFormat32bppPARGB;
    data.Scan0 = result.pixels.data();
    const Gdiplus::Rect whole(0, 0, result.width, result.height);
    if (bitmap.LockBits(&whole, Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf,
                        PixelFormat32bppPARGB, &data) != Gdiplus::Ok) {
        return {};
    }
    bitmap.UnlockBits(&data);
    return result;
}

BITMAPINFO pixelFormat(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

GdiObject<HBITMAP> pixelBitmap(int width, int height, std::span<std::uint32_t>& pixels) {
    const BITMAPINFO info = pixelFormat(width, height);
    void* bits = nullptr;
    GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    pixels =
        bits != nullptr ? std::span(static_cast<std::uint32_t*>(bits), count) : std::span<std::uint32_t>();
    return bitmap;
}

namespace {

/// A picture as it is placed within a box, as a bitmap of its own.
GdiObject<HBITMAP> placedBitmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box) {
    std::span<std::uint32_t> pixels;
    GdiObject<HBITMAP> bitmap = pixelBitmap(box.width, box.height, pixels);
    if (!pixels.empty()) {
        placePixmap(source, placement, box, pixels);
    }
    return bitmap;
}

} // namespace

void blend(HDC device, int centreX, int centreY, const PlacedBitmap& placed) {
    const MemoryDevice memory(device);
    const Selection selection(memory.get(), placed.bitmap.get());
    const PixelBox& box = placed.box;
    GdiAlphaBlend(device, centreX + box.left, centreY + box.top, box.width, box.height, memory.get(), 0, 0,
                  box.width, box.height, OverGround);
}

PictureCache::Entry* PictureCache::find(const Key& key) {
    const auto found = byKey_.find(key);
    if (found == byKey_.end()) {
        return nullptr;
    }
    entries_.splice(entries_.begin(), entries_, found->second);
    return &entries_.front();
}

PictureCache::Entry& PictureCache::keep(Entry entry) {
    bytes_ += entry.bytes;
    entries_.push_front(std::move(entry));
    byKey_[entries_.front().key] = entries_.begin();
    while (bytes_ > MostBytes && entries_.size() > 1) {
        bytes_ -= entries_.back().bytes;
        byKey_.erase(entries_.back().key);
        entries_.pop_back();
    }
    return entries_.front();
}

std::string_view PictureCache::decode(const std::string& path, Pixmap& pixmap) {
    constexpr std::string_view unreadable = "Unreadable";
    // The header decides, before the rest is so much as read.
    if (const auto size = sizeOf(path);
        size && static_cast<std::uint64_t>(size->width) * static_cast<std::uint64_t>(size->height) >
                    MostPicturePixels) {
        return "Too large";
    }
    std::string content;
    if (!readWholeFile(path, content)) {
        return unreadable;
    }
    pixmap = decoder_.decode(std::move(content));
    return pixmap.pixels.empty() ? unreadable : std::string_view();
}

std::string_view PictureCache::failureOf(const std::string& path) const {
    const auto found = failures_.find(path);
    return found == failures_.end() ? std::string_view() : found->second;
}

const Pixmap* PictureCache::pixels(const std::string& path) {
    const Key key{path, 0, 0, 0, false, 0, 0, 0, 0};
    if (const Entry* entry = find(key)) {
        return &entry->pixels;
    }
    if (failures_.contains(path)) {
        return nullptr;
    }
    Pixmap pixmap;
    if (const std::string_view failure = decode(path, pixmap); !failure.empty()) {
        failures_.emplace(path, failure);
        return nullptr;
    }
    const std::size_t bytes = pixmap.pixels.size() * sizeof(std::uint32_t);
    return &keep({.key = key, .pixels = std::move(pixmap), .placed = {}, .bytes = bytes}).pixels;
}

PictureCache::Key PictureCache::keyOf(const std::string& name, const PixmapPlacement& placement,
                                      const PixelBox& box) {
    return {name,     placement.width, placement.height, placement.angle, placement.isTile,
            box.left, box.top,         box.width,        box.height};
}

const PlacedBitmap* PictureCache::placed(const std::string& path, const PixmapPlacement& placement,
                                         const PixelBox& clip) {
    if (const Entry* entry = find(keyOf(path, placement, commonBox(boxOf(placement), clip)))) {
        return &entry->placed;
    }
    const Pixmap* source = pixels(path);
    return source != nullptr ? placed(path, *source, placement, clip) : nullptr;
}

const PlacedBitmap* PictureCache::placed(const std::string& name, const Pixmap& source,
                                         const PixmapPlacement& placement, const PixelBox& clip) {
    const PixelBox box = commonBox(boxOf(placement), clip);
    const Key key = keyOf(name, placement, box);
    if (box.width == 0 || box.height == 0) {
        return nullptr;
    }
    if (const Entry* entry = find(key)) {
        return &entry->placed;
    }
    return &keep({.key = key,
                  .pixels = {},
                  .placed = {placedBitmap(source, placement, box), box},
                  .bytes = pixelsIn(box) * sizeof(std::uint32_t)})
                .placed;
}

std::optional<PictureSize> PictureCache::sizeOf(const std::string& path) {
    if (const auto found = sizes_.find(path); found != sizes_.end()) {
        return found->second;
    }
    const std::optional<PictureSize> size = readPngSize(path);
    sizes_[path] = size;
    return size;
}

bool PictureCache::isSolidAt(const std::string& path, double x, double y) {
    constexpr std::uint32_t leastAlpha = 64;
    const Pixmap* pixmap = pixels(path);
    if (pixmap == nullptr) {
        return true; // a placeholder is drawn instead
    }
    const int column = std::clamp(static_cast<int>(x * pixmap->width), 0, pixmap->width - 1);
    const int row = std::clamp(static_cast<int>(y * pixmap->height), 0, pixmap->height - 1);
    return (pixmap->at(column, row) >> 24U) >= leastAlpha;
}

void PictureCache::clear() {
    entries_.clear();
    byKey_.clear();
    sizes_.clear();
    failures_.clear();
    bytes_ = 0;
    decoder_ = {};
}

} // namespace varrocade
