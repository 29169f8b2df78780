// Pictures as values: read, written, compared, scaled, made smaller.

#include "made_png.h"
#include "pictures/picture_scaling.h"
#include "pictures/png_codec.h"
#include "pictures/png_reduction.h"

#include <algorithm>
#include <array>
#include <random>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

using namespace std::string_literals;

std::string hex(const std::vector<std::uint8_t>& samples) {
    std::string text;
    for (const std::uint8_t sample : samples) {
        text += "0123456789abcdef"[sample >> 4U];
        text += "0123456789abcdef"[sample & 15U];
    }
    return text;
}

const std::string Palette = pngChunk("PLTE", "\x10\x20\x30\x40\x50\x60"s);
const std::string HalfPalette = Palette + pngChunk("tRNS", "\x80");

struct FormCase {
    const char* name;
    MadePng png;
    const char* pixels;
};

const std::vector<FormCase>& forms() {
    static const std::vector<FormCase> cases = {
        {"grey, 1 bit", {.width = 2, .bits = 1, .colours = 0, .rows = "\0\x40"s}, "000000ffffffffff"},
        {"grey, 4 bits, one transparent",
         {.width = 2, .bits = 4, .colours = 0, .rows = "\0\x1F"s, .chunks = pngChunk("tRNS", "\0\x0F"s)},
         "111111ffffffff00"},
        {"grey, 16 bits", {.bits = 16, .colours = 0, .rows = "\0\x12\x34"s}, "123412341234ffff"},
        {"colours", {.colours = 2, .rows = "\0\x01\x02\x03"s}, "010203ff"},
        {"colours, 16 bits, transparent",
         {.bits = 16, .colours = 2, .rows = "\0\0\1\0\2\0\3"s, .chunks = pngChunk("tRNS", "\0\1\0\2\0\3"s)},
         "0001000200030000"},
        {"palette", {.width = 2, .colours = 3, .rows = "\0\1\0"s, .chunks = HalfPalette}, "405060ff10203080"},
        {"palette, 2 bits", {.bits = 2, .colours = 3, .rows = "\0\x40"s, .chunks = Palette}, "405060ff"},
        {"grey with alpha", {.colours = 4, .rows = "\0\x77\x05"s}, "77777705"},
        {"filtered by the left pixel",
         {.width = 2, .colours = 4, .rows = "\1\x77\x05\x01\x02"s},
         "7777770578787807"},
        {"interlaced",
         {.width = 2, .height = 2, .colours = 0, .isInterlaced = true, .rows = "\0\x01\0\x02\0\x03\x04"s},
         "010101ff020202ff030303ff040404ff"},
    };
    return cases;
}

TEST(PngFiles, AreReadInEveryFormAndKeepTheirPixelsMadeSmaller) {
    for (const FormCase& form : forms()) {
        const std::string file = madePng(form.png);
        const PngReading reading = readPng(file);
        EXPECT_EQ(reading.failure, "") << form.name;
        EXPECT_EQ(hex(reading.picture.samples), form.pixels) << form.name;
        const PngReduction reduced = recompressedPng(file);
        EXPECT_EQ(reduced.failure, "") << form.name;
        if (!reduced.content.empty()) {
            EXPECT_LT(reduced.content.size(), file.size()) << form.name;
            EXPECT_TRUE(samePixels(readPng(reduced.content).picture, reading.picture)) << form.name;
        }
    }
}

TEST(PngFiles, ThatAreDamagedAreRefused) {
    const std::string file = madePng(forms()[5].png);
    for (std::size_t length = 0; length < file.size(); ++length) {
        EXPECT_NE(readPng(file.substr(0, length)).failure, "") << length;
    }
    for (std::size_t i = 0; i < file.size(); ++i) {
        std::string damaged = file;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x11);
        EXPECT_NE(readPng(damaged).failure, "") << "byte " << i;
    }
    const std::vector<FormCase> cases = {
        {"far larger than its pixels",
         {.width = 4000, .height = 4000, .rows = "\0\0"s},
         "has damaged pixels"},
        {"larger than memory",
         {.width = 1 << 20, .height = 1 << 20, .rows = "\0\0"s},
         "is too large to be read"},
        {"more pixels than its size", {.rows = std::string(6, '\0')}, "has damaged pixels"},
        {"colours of 4 bits",
         {.bits = 4, .colours = 2, .rows = "\0\0"s},
         "has a header that no PNG file can have"},
        {"a palette of none", {.colours = 3, .rows = "\0\0"s}, "has damaged pixels"},
        {"a filter that is not known", {.colours = 0, .rows = "\x07\0"s}, "has damaged pixels"},
        {"an animation",
         {.colours = 0, .rows = "\0\0"s, .chunks = pngChunk("acTL", "12345678")},
         "is an animation"},
    };
    for (const FormCase& each : cases) {
        EXPECT_EQ(readPng(madePng(each.png)).failure, each.pixels) << each.name;
        EXPECT_EQ(recompressedPng(madePng(each.png)).failure, each.pixels) << each.name;
    }
    EXPECT_EQ(readPng(file + "x").failure, "has something behind its end");
}

/// A thousand pixels of four colours, half of them hidden under full transparency.
MadePng withHidden(std::string_view chunks) {
    MadePng png{.width = 1000, .rows = std::string(1, '\0'), .chunks = std::string(chunks)};
    std::minstd_rand random(1);
    for (int i = 0; i < 1000; ++i) {
        const auto kind = i == 0 ? 0 : static_cast<unsigned>(random() >> 8U) % 8;
        png.rows += "\x0A\x0B"s + static_cast<char>(12 + 31 * (kind / 2)) + (kind % 2 == 0 ? '\0' : '\xFF');
    }
    png.behindPixels = pngChunk("tEXt", "Comment\0behind"s);
    return png;
}

TEST(PngFiles, MadeSmallerKeepWhatTheySayAndWhatIsHidden) {
    struct Case {
        std::string chunks;
        bool keepsForm;
        std::string failure;
    };
    const std::vector<Case> cases = {
        {pngChunk("gAMA", "\0\0\xB1\x8F"s) + pngChunk("pHYs", "\0\0\0\1\0\0\0\1\0"s), false, ""},
        {pngChunk("bKGD", "\0\1\0\2\0\3"s), true, ""},
        {pngChunk("sBIT", "\5\5\5\5"), true, ""},
        {pngChunk("quRk", "kept"), false, ""},
        {pngChunk("quRK", "of unknown use"), false, "has a chunk that is not known, \"quRK\""},
    };
    for (const Case& each : cases) {
        const std::string file = madePng(withHidden(each.chunks));
        const PngReduction reduced = recompressedPng(file);
        EXPECT_EQ(reduced.failure, each.failure) << each.chunks;
        EXPECT_EQ(reduced.content.empty(), !each.failure.empty()) << each.chunks;
        if (reduced.content.empty()) {
            continue;
        }
        EXPECT_LT(reduced.content.size(), file.size() * 2 / 3);
        EXPECT_NE(reduced.content.find(each.chunks), std::string::npos) << each.chunks;
        EXPECT_NE(reduced.content.find("Comment\0behind"s), std::string::npos);
        EXPECT_EQ(splitPng(reduced.content).header.colours == PngHeaderColours::Rgba, each.keepsForm)
            << each.chunks;
        EXPECT_EQ(hex(readPng(reduced.content).picture.samples).substr(0, 8), "0a0b0c00");
        EXPECT_TRUE(samePngPixels(file, reduced.content)) << each.chunks;
        EXPECT_TRUE(recompressedPng(reduced.content).content.empty()) << "as small as can be";
    }
    std::string rows(1, '\0');
    for (int i = 0; i < 64; ++i) {
        rows += std::string(3, static_cast<char>(i * i)) + '\xFF';
    }
    const std::string grey = madePng({.width = 64, .rows = rows});
    const std::string profile = pngChunk("iCCP", "p\0\0packed"s);
    const std::string colours = madePng({.width = 64, .rows = rows, .chunks = profile});
    EXPECT_TRUE(splitPng(recompressedPng(grey).content).header.isGrey());
    EXPECT_FALSE(splitPng(recompressedPng(colours).content).header.isGrey()) << "its profile is for colours";
    EXPECT_FALSE(samePngPixels(grey, colours)) << "other colours by the profile";
}

TEST(Pictures, AreTheSameByTheirPixels) {
    const Picture flat{{1, 1}, false, {1, 2, 3, 4}};
    const Picture deep{{1, 1}, true, {1, 1, 2, 2, 3, 3, 4, 4}};
    const Picture deeper{{1, 1}, true, {1, 1, 2, 2, 3, 3, 4, 5}};
    EXPECT_TRUE(samePixels(flat, deep));
    EXPECT_FALSE(samePixels(flat, deeper));
    EXPECT_FALSE(samePixels(deep, deeper));
    EXPECT_FALSE(
        samePixels({{2, 1}, false, {0, 0, 0, 0, 0, 0, 0, 0}}, {{1, 2}, false, {0, 0, 0, 0, 0, 0, 0, 0}}));
}

/// A picture of which each pixel is what a function says, of all its colours and of alpha.
template <typename Colour>
Picture paintedPicture(int side, bool isDeep, Colour colour) {
    Picture picture{{side, side}, isDeep};
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const std::array<int, 2> value = colour(x, y);
            for (const int sample : {value[0], value[0], value[0], value[1]}) {
                picture.samples.insert(picture.samples.end(), isDeep ? 2 : 1,
                                       static_cast<std::uint8_t>(sample));
            }
        }
    }
    return picture;
}

TEST(ScaledPictures, AddUpLightAndTakeNoColourFromWhatIsTransparent) {
    for (const bool isDeep : {false, true}) {
        const std::size_t step = isDeep ? 2 : 1;
        // White up to an odd column, transparent black beside it.
        const Picture edge = paintedPicture(33, isDeep, [](int x, int) {
            return x < 17 ? std::array{255, 255} : std::array{0, 0};
        });
        const Picture smaller = scaledPicture(edge, {12, 12});
        ASSERT_EQ(smaller.samples.size(), std::size_t{144} * 4 * step);
        bool hasHalf = false;
        for (std::size_t i = 0; i < smaller.samples.size(); i += 4 * step) {
            const int alpha = smaller.samples[i + 3 * step];
            hasHalf = hasHalf || (alpha > 40 && alpha < 215);
            if (alpha > 0) {
                EXPECT_GE(smaller.samples[i], 253) << "a dark fringe at alpha " << alpha;
            }
        }
        EXPECT_TRUE(hasHalf);
        // Half of the light is brighter than half of the number: 255 * 0.5^(1/2.2).
        const Picture board = paintedPicture(32, isDeep, [](int x, int y) {
            return std::array{(x + y) % 2 == 0 ? 255 : 0, 255};
        });
        const Picture grey = scaledPicture(board, {8, 8});
        const std::size_t middle = std::size_t{4 * 8 + 4} * 4 * step;
        EXPECT_NEAR(grey.samples[middle], 187, 3);
        EXPECT_EQ(grey.samples[middle + 3 * step], 255);
        EXPECT_EQ(scaledPicture(board, {1, 1}).samples.size(), 4 * step);
    }
}

TEST(ScaledPictures, OfFilesKeepTheirMeaning) {
    const std::string file =
        madePng(withHidden(pngChunk("gAMA", "\0\0\xB1\x8F"s) + pngChunk("bKGD", "\0\1\0\2\0\3"s)));
    const PngReduction scaled = scaledPng(file, {500, 1});
    EXPECT_EQ(splitPng(scaled.content).header.size, (PictureSize{500, 1}));
    EXPECT_NE(scaled.content.find(pngChunk("gAMA", "\0\0\xB1\x8F"s)), std::string::npos);
    EXPECT_EQ(scaled.content.find("bKGD"), std::string::npos) << "counted in the former palette";
    EXPECT_EQ(scaledPng("no picture", {1, 1}).failure, "is no PNG file");
}

} // namespace
} // namespace varrocade::tests
