#pragma once
// Tables of names whose letter case does not count, looked up without making a text of the name.

#include "data/format/texts.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace varrocade {

struct CaselessHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        // FNV-1a, 64 bits: names are short.
        std::uint64_t hash = 0xCBF29CE484222325U;
        for (const char c : text) {
            hash = (hash ^ static_cast<unsigned char>(lowered(c))) * 0x100000001B3U;
        }
        return static_cast<std::size_t>(hash);
    }
};

struct CaselessEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return equalsIgnoringCase(a, b); }
};

} // namespace varrocade
