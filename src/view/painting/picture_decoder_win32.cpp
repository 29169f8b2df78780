#include "view/painting/picture_decoder_win32.h"

#include "platform/png_size.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace varrocade {

namespace {

/// The interface that a call hands out, or null.
template <typename Interface, typename Call>
Owned<Interface> obtained(Call call) {
    Interface* object = nullptr;
    return SUCCEEDED(call(&object)) ? Owned<Interface>(object) : nullptr;
}

Pixmap pixelsOfSource(IWICBitmapSource& source) {
    UINT width = 0;
    UINT height = 0;
    source.GetSize(&width, &height);
    if (std::uint64_t{width} * height > MostPicturePixels) {
        return {};
    }
    Pixmap pixmap{static_cast<int>(width), static_cast<int>(height), {}};
    pixmap.pixels.resize(std::size_t{width} * height);
    const UINT stride = width * static_cast<UINT>(sizeof(std::uint32_t));
    const bool isCopied = SUCCEEDED(
        source.CopyPixels(nullptr, stride, stride * height, reinterpret_cast<BYTE*>(pixmap.pixels.data())));
    return isCopied ? pixmap : Pixmap{};
}

} // namespace

bool PictureDecoder::findDecoders() {
    if (!imaging_) {
        imaging_ = obtained<IWICImagingFactory>([](IWICImagingFactory** out) {
            return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                    IID_IWICImagingFactory, reinterpret_cast<void**>(out));
        });
    }
    if (!pngDecoders_) {
        pngDecoders_ = obtained<IClassFactory>([](IClassFactory** out) {
            return CoGetClassObject(CLSID_WICPngDecoder, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                    reinterpret_cast<void**>(out));
        });
    }
    return imaging_ && pngDecoders_;
}

Owned<IWICBitmapDecoder> PictureDecoder::decoderOf(IWICStream& stream, bool isPng) {
    if (!isPng) {
        return obtained<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) {
            return imaging_->CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, out);
        });
    }
    // Asking whose file it is makes some decoders read all of it, and then once more.
    auto decoder = obtained<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) {
        return pngDecoders_->CreateInstance(nullptr, IID_IWICBitmapDecoder, reinterpret_cast<void**>(out));
    });
    const bool isRead = decoder && SUCCEEDED(decoder->Initialize(&stream, WICDecodeMetadataCacheOnDemand));
    return isRead ? std::move(decoder) : nullptr;
}

Pixmap PictureDecoder::decode(std::string content) {
    if (!findDecoders()) {
        return {};
    }
    const auto stream = obtained<IWICStream>([&](IWICStream** out) { return imaging_->CreateStream(out); });
    if (!stream || FAILED(stream->InitializeFromMemory(reinterpret_cast<BYTE*>(content.data()),
                                                       static_cast<DWORD>(content.size())))) {
        return {};
    }
    const auto decoder = decoderOf(*stream, content.starts_with(PngSignature));
    if (!decoder) {
        return {};
    }
    const auto frame = obtained<IWICBitmapFrameDecode>(
        [&](IWICBitmapFrameDecode** out) { return decoder->GetFrame(0, out); });
    const auto converter = obtained<IWICFormatConverter>(
        [&](IWICFormatConverter** out) { return imaging_->CreateFormatConverter(out); });
    const bool isConverted =
        frame && converter &&
        SUCCEEDED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                        nullptr, 0, WICBitmapPaletteTypeCustom));
    return isConverted ? pixelsOfSource(*converter) : Pixmap{};
}

} // namespace varrocade
