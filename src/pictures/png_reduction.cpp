#include "pictures/png_reduction.h"

#include "pictures/picture_scaling.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::string_view NotKept = "has a chunk that is not known, \"";

/// The first chunk that cannot be kept, if there is one.
const PngChunk* unknownChunk(const PngChunks& file) {
    const auto chunk = std::find_if(file.chunks.begin(), file.chunks.end(), [](const PngChunk& each) {
        return useOf(each.name) == PngChunkUse::Unknown;
    });
    return chunk == file.chunks.end() ? nullptr : &*chunk;
}

bool has(const PngChunks& file, PngChunkUse use) {
    return std::any_of(file.chunks.begin(), file.chunks.end(),
                       [use](const PngChunk& chunk) { return useOf(chunk.name) == use; });
}

/// A colour profile is for grey or for colours, and the file must be of its kind.
PngColourKinds kindsFor(const PngChunks& file) {
    const bool hasProfile = std::any_of(file.chunks.begin(), file.chunks.end(), [](const PngChunk& chunk) {
        return chunk.name == png_chunk::Profile;
    });
    if (!hasProfile) {
        return PngColourKinds::Any;
    }
    return file.header.isGrey() ? PngColourKinds::GreyOnly : PngColourKinds::ColourOnly;
}

/// New pixels with the free chunks of the old file around them, in their order.
std::string withFreeChunks(std::string_view pixels, const PngChunks& old) {
    const PngChunks fresh = splitPng(pixels);
    std::string file(PngSignature);
    const auto addFree = [&](bool isBehindPixels) {
        bool isBehind = false;
        for (const PngChunk& chunk : old.chunks) {
            isBehind = isBehind || chunk.name == png_chunk::Pixels;
            if (useOf(chunk.name) == PngChunkUse::Free && isBehind == isBehindPixels) {
                file += chunk.whole;
            }
        }
    };
    for (const PngChunk& chunk : fresh.chunks) {
        if (chunk.name == png_chunk::End) {
            addFree(true);
        }
        file += chunk.whole;
        if (chunk.name == png_chunk::Header) {
            addFree(false);
        }
    }
    return file;
}

/// The old file with other packed rows of the same form.
std::string withOtherRows(std::string_view pixels, const PngChunks& old) {
    const PngChunks fresh = splitPng(pixels);
    std::string file(PngSignature);
    bool isWritten = false;
    for (const PngChunk& chunk : old.chunks) {
        if (chunk.name == png_chunk::Header) {
            file += fresh.chunks.front().whole; // not interlaced any more
        } else if (chunk.name != png_chunk::Pixels) {
            file += chunk.whole;
        } else if (!isWritten) {
            isWritten = true;
            for (const PngChunk& row : fresh.chunks) {
                file += row.name == png_chunk::Pixels ? row.whole : std::string_view();
            }
        }
    }
    return file;
}

/// A file that can be written anew: its chunks and its pixels, or why not.
struct KeepableFile {
    PngChunks chunks;
    Picture picture = {};
    std::string failure = {};
};

KeepableFile readKeepable(std::string_view bytes) {
    KeepableFile file{.chunks = splitPng(bytes)};
    file.failure = file.chunks.failure;
    if (!file.failure.empty()) {
        return file;
    }
    if (const PngChunk* unknown = unknownChunk(file.chunks)) {
        file.failure = std::string(NotKept) + std::string(unknown->name) + "\"";
        return file;
    }
    PngReading reading = readPng(bytes);
    file.picture = std::move(reading.picture);
    file.failure = std::move(reading.failure);
    return file;
}

} // namespace

PngReduction recompressedPng(std::string_view bytes, const SearchWatch& watch) {
    const KeepableFile file = readKeepable(bytes);
    if (!file.failure.empty()) {
        return {{}, file.failure};
    }
    const double searches = has(file.chunks, PngChunkUse::OfColours) ? 1 : 2;
    const auto partOf = [&](double before) {
        return watch ? SearchWatch([&watch, searches, before](double share) {
            return watch((before + share) / searches);
        })
                     : SearchWatch();
    };
    std::string smallest;
    const auto consider = [&](std::string candidate) {
        if (candidate.size() < (smallest.empty() ? bytes.size() : smallest.size())) {
            smallest = std::move(candidate);
        }
    };
    if (const std::string same = writeInSameColours(bytes, file.chunks.header, partOf(0)); !same.empty()) {
        consider(withOtherRows(same, file.chunks));
    }
    if (searches > 1) {
        if (const std::string other = writeSmallestPng(file.picture, kindsFor(file.chunks), partOf(1));
            !other.empty()) {
            consider(withFreeChunks(other, file.chunks));
        }
    }
    // Nobody has to trust the encoder.
    if (!smallest.empty() && !samePngPixels(bytes, smallest)) {
        return {{}, "could not be written with the same pixels"};
    }
    return {std::move(smallest), {}};
}

PngReduction scaledPng(std::string_view bytes, PictureSize size, const SearchWatch& watch) {
    const KeepableFile file = readKeepable(bytes);
    if (!file.failure.empty()) {
        return {{}, file.failure};
    }
    const Picture scaled = scaledPicture(file.picture, size);
    const std::string pixels =
        scaled.samples.empty() ? "" : writeSmallestPng(scaled, kindsFor(file.chunks), watch);
    if (pixels.empty()) {
        return {{}, "is too large for the memory"};
    }
    std::string content = withFreeChunks(pixels, file.chunks);
    if (content.size() >= bytes.size()) {
        content.clear();
    }
    return {std::move(content), {}};
}

} // namespace varrocade
