#include "view/picture_cache_win32.h"

#include "platform/file_operations.h"
#include "view/drawing_objects_win32.h"

namespace varrocade {

namespace {

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};

/// Decodes a file's bytes into a bitmap of its own, so that neither file nor stream stay in use.
std::unique_ptr<Gdiplus::Bitmap> decoded(const std::string& content) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, content.size());
    if (memory == nullptr) {
        return nullptr;
    }
    if (void* bytes = GlobalLock(memory)) {
        std::copy(content.begin(), content.end(), static_cast<char*>(bytes));
        GlobalUnlock(memory);
    }
    IStream* rawStream = nullptr;
    if (FAILED(CreateStreamOnHGlobal(memory, TRUE, &rawStream))) {
        GlobalFree(memory);
        return nullptr;
    }
    const std::unique_ptr<IStream, ReleaseStream> stream(rawStream);
    Gdiplus::Bitmap source(stream.get(), FALSE);
    if (source.GetLastStatus() != Gdiplus::Ok) {
        return nullptr;
    }
    const auto width = static_cast<INT>(source.GetWidth());
    const auto height = static_cast<INT>(source.GetHeight());
    auto copy = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(copy.get());
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    // The sizes are given, since a picture's own resolution would scale it.
    graphics.DrawImage(&source, Gdiplus::Rect(0, 0, width, height), 0, 0, width, height, Gdiplus::UnitPixel);
    return copy;
}

} // namespace

Gdiplus::Bitmap* PictureCache::picture(const std::string& path) {
    if (const auto found = byPath_.find(path); found != byPath_.end()) {
        entries_.splice(entries_.begin(), entries_, found->second);
        return entries_.front().bitmap.get();
    }
    std::string content;
    if (!readWholeFile(path, content)) {
        return nullptr;
    }
    std::unique_ptr<Gdiplus::Bitmap> bitmap = decoded(content);
    if (!bitmap) {
        return nullptr;
    }
    const std::size_t bytes = BytesPerPixel * bitmap->GetWidth() * bitmap->GetHeight();
    entries_.push_front({path, std::move(bitmap), bytes});
    byPath_[path] = entries_.begin();
    bytes_ += bytes;
    makeRoom();
    return entries_.front().bitmap.get();
}

std::optional<PictureSize> PictureCache::sizeOf(const std::string& path) {
    if (const auto found = sizes_.find(path); found != sizes_.end()) {
        return found->second;
    }
    const std::optional<PictureSize> size = readPngSize(path);
    sizes_[path] = size;
    return size;
}

void PictureCache::clear() {
    entries_.clear();
    byPath_.clear();
    sizes_.clear();
    bytes_ = 0;
}

void PictureCache::makeRoom() {
    while (bytes_ > MostBytes && entries_.size() > 1) {
        bytes_ -= entries_.back().bytes;
        byPath_.erase(entries_.back().path);
        entries_.pop_back();
    }
}

} // namespace varrocade
