#pragma once

#include "view/painting/pixmap.h"

#include <windows.h>

#include <objbase.h>
#include <wincodec.h>

#include <cstdint>
#include <memory>
#include <string>

namespace varrocade {

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// Owns an interface of COM.
template <typename Interface>
using Owned = std::unique_ptr<Interface, ReleaseInterface>;

/// The system's decoders of pictures. They are looked for once: each time that takes as long as decoding a
/// small picture does. COM must be there for as long as this is.
class PictureDecoder {
public:
    /// The picture that a file's bytes hold; without pixels when they hold none.
    Pixmap decode(std::string content);

private:
    bool findDecoders();
    Owned<IWICBitmapDecoder> decoderOf(IWICStream& stream, bool isPng);

    Owned<IWICImagingFactory> imaging_;
    Owned<IClassFactory> pngDecoders_;
};

} // namespace varrocade
