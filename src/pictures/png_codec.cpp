#include "pictures/png_codec.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include <libdeflate.h>
#include <lodepng.h>

namespace varrocade {

namespace {

constexpr unsigned DeepBits = 16;
constexpr unsigned FlatBits = 8;
constexpr int QuickLevel = 4; ///< of libdeflate's, for what is written once and seldom kept
constexpr int TrialLevel = 6;
constexpr int BestLevel = 12;
constexpr unsigned OutOfMemory = 83; ///< as LodePNG numbers it

struct FreeMemory {
    void operator()(unsigned char* memory) const {
        std::free(memory); // NOLINT(cppcoreguidelines-owning-memory): LodePNG's are C's
    }
};
using Bytes = std::unique_ptr<unsigned char, FreeMemory>;

struct FreeCompressor {
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
};
using Compressor = std::unique_ptr<libdeflate_compressor, FreeCompressor>;

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, FreeDecompressor>;

const unsigned char* dataOf(std::string_view bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

/// LodePNG's call to unpack; its context is the size that the pixels must have.
unsigned unpack(unsigned char** out, std::size_t* outSize, const unsigned char* in, std::size_t inSize,
                const LodePNGDecompressSettings* settings) {
    const std::size_t size = *static_cast<const std::size_t*>(settings->custom_context);
    const Decompressor decompressor(libdeflate_alloc_decompressor());
    Bytes unpacked(static_cast<unsigned char*>(std::malloc(size)));
    if (!decompressor || !unpacked) {
        return OutOfMemory;
    }
    // Neither more nor less than that size.
    if (libdeflate_zlib_decompress(decompressor.get(), in, inSize, unpacked.get(), size, nullptr) !=
        LIBDEFLATE_SUCCESS) {
        return 1;
    }
    *out = unpacked.release();
    *outSize = size;
    return 0;
}

/// LodePNG's call to pack; its context is the compressor.
unsigned pack(unsigned char** out, std::size_t* outSize, const unsigned char* in, std::size_t inSize,
              const LodePNGCompressSettings* settings) {
    // The library takes a pointer to what changes with use, LodePNG hands on what does not.
    auto* compressor = const_cast<libdeflate_compressor*>(
        static_cast<const libdeflate_compressor*>(settings->custom_context));
    const std::size_t room = libdeflate_zlib_compress_bound(compressor, inSize);
    Bytes packed(static_cast<unsigned char*>(std::malloc(room)));
    if (!packed) {
        return OutOfMemory;
    }
    *outSize = libdeflate_zlib_compress(compressor, in, inSize, packed.get(), room);
    *out = packed.release();
    return *outSize == 0 ? 1 : 0;
}

class LodePngState {
public:
    LodePngState() { lodepng_state_init(&state_); }
    LodePngState(const LodePngState&) = delete;
    LodePngState& operator=(const LodePngState&) = delete;
    ~LodePngState() { lodepng_state_cleanup(&state_); }
    LodePNGState* operator->() { return &state_; }
    LodePNGState* get() { return &state_; }

private:
    LodePNGState state_{};
};

/// Reads the pixels of a file whose chunks are in order, in the form that `state` asks for.
Bytes decode(LodePngState& state, std::string_view bytes, const PngHeader& header, std::string& failure) {
    const std::size_t packedSize = packedSizeOf(header);
    state->decoder.zlibsettings.custom_zlib = unpack;
    state->decoder.zlibsettings.custom_context = &packedSize;
    state->decoder.ignore_crc = 1; // they were looked at, much faster
    unsigned char* out = nullptr;
    unsigned width = 0;
    unsigned height = 0;
    const unsigned error = lodepng_decode(&out, &width, &height, state.get(), dataOf(bytes), bytes.size());
    Bytes pixels(out);
    state->decoder.zlibsettings.custom_context = nullptr;
    if (error != 0) {
        failure = error == OutOfMemory ? "is too large for the memory" : "has damaged pixels";
        return nullptr;
    }
    return pixels;
}

/// Pixels that are to be written, in a form of their own.
struct RawPixels {
    std::span<const std::uint8_t> bytes;
    PictureSize size;
};

LodePNGFilterStrategy filterOf(std::size_t place) {
    constexpr auto filters = std::to_array<LodePNGFilterStrategy>(
        {LFS_MINSUM, LFS_ZERO, LFS_ENTROPY, LFS_FOUR, LFS_TWO, LFS_ONE, LFS_THREE});
    return filters.at(place);
}
constexpr std::size_t FilterCount = 7;

/// One form of a picture in a file: what the raw pixels are and what is written.
class Encoding {
public:
    Encoding(const RawPixels& pixels, const LodePNGColorMode& raw, const LodePNGColorMode& written)
        : pixels_(pixels) {
        isCopied_ = lodepng_color_mode_copy(&state_->info_raw, &raw) == 0 &&
                    lodepng_color_mode_copy(&state_->info_png.color, &written) == 0;
        state_->encoder.auto_convert = 0;
        state_->encoder.filter_palette_zero = 0;
        state_->encoder.zlibsettings.custom_zlib = pack;
    }

    /// Empty where it could not be made.
    std::string write(LodePNGFilterStrategy filter, libdeflate_compressor* compressor) {
        if (!isCopied_ || compressor == nullptr) {
            return {};
        }
        state_->encoder.filter_strategy = filter;
        state_->encoder.zlibsettings.custom_context = compressor;
        unsigned char* out = nullptr;
        std::size_t size = 0;
        const unsigned error =
            lodepng_encode(&out, &size, pixels_.bytes.data(), static_cast<unsigned>(pixels_.size.width),
                           static_cast<unsigned>(pixels_.size.height), state_.get());
        const Bytes file(out);
        return error == 0 ? std::string(reinterpret_cast<const char*>(file.get()), size) : std::string();
    }

private:
    RawPixels pixels_;
    LodePngState state_;
    bool isCopied_ = false;
};

/// Tries all filters of all forms quickly, and the most promising ones with all effort.
std::string smallestOf(std::span<const std::unique_ptr<Encoding>> encodings, const SearchWatch& watch) {
    constexpr std::size_t promising = 3;
    constexpr std::size_t effort = 20; // times as long as a quick one, about
    const std::size_t all = encodings.size() * FilterCount + promising * effort;
    std::size_t done = 0;
    const auto goesOn = [&](std::size_t work) {
        done += work;
        return !watch || watch(static_cast<double>(done) / static_cast<double>(all));
    };
    struct Trial {
        std::size_t size;
        std::size_t encoding;
        std::size_t filter;
    };
    std::vector<Trial> trials;
    const Compressor quick(libdeflate_alloc_compressor(TrialLevel));
    for (std::size_t i = 0; i < encodings.size(); ++i) {
        for (std::size_t filter = 0; filter < FilterCount; ++filter) {
            const std::string file = encodings[i]->write(filterOf(filter), quick.get());
            if (!file.empty()) {
                trials.push_back({file.size(), i, filter});
            }
            if (!goesOn(1)) {
                return {};
            }
        }
    }
    const auto end = trials.begin() + static_cast<std::ptrdiff_t>(std::min(promising, trials.size()));
    std::partial_sort(trials.begin(), end, trials.end(),
                      [](const Trial& a, const Trial& b) { return a.size < b.size; });
    const Compressor best(libdeflate_alloc_compressor(BestLevel));
    std::string smallest;
    for (auto trial = trials.begin(); trial != end; ++trial) {
        std::string file = encodings[trial->encoding]->write(filterOf(trial->filter), best.get());
        if (!file.empty() && (smallest.empty() || file.size() < smallest.size())) {
            smallest = std::move(file);
        }
        if (!goesOn(effort)) {
            return {};
        }
    }
    return smallest;
}

/// Without a palette: as few channels and bits as the colours need.
LodePNGColorMode directMode(const LodePNGColorStats& stats) {
    const bool isGrey = stats.colored == 0;
    const bool hasChannel = stats.alpha != 0 && stats.key == 0;
    LodePNGColorMode mode = lodepng_color_mode_make(
        isGrey ? (hasChannel ? LCT_GREY_ALPHA : LCT_GREY) : (hasChannel ? LCT_RGBA : LCT_RGB), stats.bits);
    if (!isGrey || hasChannel) {
        mode.bitdepth = std::max(mode.bitdepth, FlatBits);
    }
    if (stats.key != 0) {
        const unsigned mask = (1U << mode.bitdepth) - 1;
        mode.key_defined = 1;
        mode.key_r = stats.key_r & mask;
        mode.key_g = stats.key_g & mask;
        mode.key_b = stats.key_b & mask;
    }
    return mode;
}

using PaletteColour = std::array<unsigned char, 4>;

/// The colours with what is not opaque first, since the file says that of the first ones only, and from dark
/// to bright, which filters make use of.
std::vector<PaletteColour> sortedPalette(const LodePNGColorStats& stats) {
    std::vector<PaletteColour> colours(stats.numcolors);
    for (std::size_t i = 0; i < colours.size(); ++i) {
        std::copy_n(stats.palette + 4 * i, 4, colours[i].begin());
    }
    const auto brightness = [](const PaletteColour& colour) {
        return 299 * colour[0] + 587 * colour[1] + 114 * colour[2];
    };
    std::sort(colours.begin(), colours.end(), [&](const PaletteColour& a, const PaletteColour& b) {
        return a[3] != b[3] ? a[3] < b[3] : brightness(a) < brightness(b);
    });
    return colours;
}

unsigned indexBits(std::size_t colours) {
    return colours <= 2 ? 1 : colours <= 4 ? 2 : colours <= 16 ? 4 : 8;
}

LodePNGColorMode modeOf(const Picture& picture) {
    return lodepng_color_mode_make(LCT_RGBA, picture.isDeep ? DeepBits : FlatBits);
}

/// The form with a palette, where there are few enough colours.
std::unique_ptr<Encoding> withPalette(const RawPixels& pixels, const LodePNGColorMode& raw,
                                      const LodePNGColorStats& stats) {
    constexpr std::size_t mostColours = 256;
    if (stats.bits > FlatBits || stats.numcolors == 0 || stats.numcolors > mostColours) {
        return nullptr;
    }
    LodePngState holder;
    LodePNGColorMode& mode = holder->info_png.color;
    mode.colortype = LCT_PALETTE;
    mode.bitdepth = indexBits(stats.numcolors);
    for (const PaletteColour& colour : sortedPalette(stats)) {
        if (lodepng_palette_add(&mode, colour[0], colour[1], colour[2], colour[3]) != 0) {
            return nullptr;
        }
    }
    return std::make_unique<Encoding>(pixels, raw, mode);
}

/// The chunks that say what the colours are. Many programs write those of the usual colour space, which is
/// also what a file without them means.
std::string colourMeaning(const PngChunks& file) {
    using namespace std::string_view_literals;
    constexpr auto usual = std::to_array<std::string_view>(
        {"gAMA\0\0\xB1\x8F"sv,
         "cHRM\0\0\x7A\x26\0\0\x80\x84\0\0\xFA\0\0\0\x80\xE8\0\0\x75\x30\0\0\xEA\x60\0\0\x3A\x98\0\0\x17\x70"sv});
    std::string text;
    for (const PngChunk& chunk : file.chunks) {
        constexpr std::size_t lengthSize = 4;
        const bool isUsual = std::any_of(usual.begin(), usual.end(), [&](std::string_view content) {
            return chunk.whole.substr(lengthSize).starts_with(content);
        });
        for (const std::string_view name : {"gAMA", "cHRM", "iCCP"}) {
            text += chunk.name == name && !isUsual ? chunk.whole : std::string_view();
        }
    }
    return text;
}

/// The pixels of a file whose chunks are in order.
PngReading pixelsOf(std::string_view bytes, const PngHeader& header) {
    PngReading reading{{header.size, header.bits == DeepBits}, {}};
    LodePngState state;
    state->info_raw = modeOf(reading.picture);
    const Bytes pixels = decode(state, bytes, header, reading.failure);
    if (pixels) {
        const std::size_t size = reading.picture.pixelCount() * reading.picture.bytesPerPixel();
        reading.picture.samples.assign(pixels.get(), pixels.get() + size);
    }
    return reading;
}

} // namespace

PngReading readPng(std::string_view bytes) {
    const PngChunks file = splitPng(bytes);
    return file.failure.empty() ? pixelsOf(bytes, file.header) : PngReading{{}, file.failure};
}

bool samePngPixels(std::string_view a, std::string_view b) {
    const PngChunks first = splitPng(a);
    const PngChunks second = splitPng(b);
    // Most pictures that differ do so in what takes no time to compare.
    if (!first.failure.empty() || !second.failure.empty() || first.header.size != second.header.size ||
        colourMeaning(first) != colourMeaning(second)) {
        return false;
    }
    const PngReading one = pixelsOf(a, first.header);
    const PngReading other = pixelsOf(b, second.header);
    return one.failure.empty() && other.failure.empty() && samePixels(one.picture, other.picture);
}

std::string writePng(const Picture& picture) {
    const LodePNGColorMode mode = modeOf(picture);
    const Compressor compressor(libdeflate_alloc_compressor(QuickLevel));
    return Encoding({picture.samples, picture.size}, mode, mode).write(LFS_MINSUM, compressor.get());
}

std::string writeSmallestPng(const Picture& picture, PngColourKinds kinds, const SearchWatch& watch) {
    const RawPixels pixels{picture.samples, picture.size};
    const LodePNGColorMode raw = modeOf(picture);
    LodePNGColorStats stats;
    lodepng_color_stats_init(&stats);
    stats.allow_greyscale = kinds != PngColourKinds::ColourOnly ? 1 : 0;
    if (lodepng_compute_color_stats(&stats, picture.samples.data(), static_cast<unsigned>(picture.size.width),
                                    static_cast<unsigned>(picture.size.height), &raw) != 0) {
        return {};
    }
    std::vector<std::unique_ptr<Encoding>> encodings;
    LodePNGColorStats direct = stats;
    if (kinds == PngColourKinds::ColourOnly) {
        direct.colored = 1;
    }
    if (kinds != PngColourKinds::GreyOnly || stats.colored == 0) {
        encodings.push_back(std::make_unique<Encoding>(pixels, raw, directMode(direct)));
    }
    if (kinds != PngColourKinds::GreyOnly) {
        if (auto palette = withPalette(pixels, raw, stats)) {
            encodings.push_back(std::move(palette));
        }
    }
    return smallestOf(encodings, watch);
}

std::string writeInSameColours(std::string_view bytes, const PngHeader& header, const SearchWatch& watch) {
    LodePngState state;
    state->decoder.color_convert = 0;
    std::string failure;
    const Bytes pixels = decode(state, bytes, header, failure);
    if (!pixels) {
        return {};
    }
    const LodePNGColorMode& mode = state->info_png.color;
    const std::size_t size = lodepng_get_raw_size(static_cast<unsigned>(header.size.width),
                                                  static_cast<unsigned>(header.size.height), &mode);
    std::vector<std::unique_ptr<Encoding>> encodings;
    encodings.push_back(std::make_unique<Encoding>(RawPixels{{pixels.get(), size}, header.size}, mode, mode));
    return smallestOf(encodings, watch);
}

} // namespace varrocade
