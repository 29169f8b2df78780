#pragma once
// "options.dat": the one setting that the editor keeps, the folder of the installed game.
// Layout, little-endian: 2 bytes version (1000, not checked on reading), 4 bytes length, the text.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view OptionsFileName = "options.dat";
inline constexpr std::uint16_t OptionsVersion = 1000;
/// Paths hold 259 characters at the most.
inline constexpr std::size_t MaxPathLength = 260;

/// What came of reading the options.
struct Options {
    std::string gameFolder = {};
    /// The file announces a text that no path can be; the program must not go on with it.
    bool isFatal = false;
};

/// Reads the options from the file's content. A file that is cut off gives what is there of the text.
Options decodeOptions(std::string_view content);

std::string encodeOptions(std::string_view gameFolder);

} // namespace varrocade
