#pragma once
// Tables of names whose letter case does not count, looked up without making a text of the name.

#include "data/format/texts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace varrocade {

struct CaselessHash {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the library's own name
    std::size_t operator()(std::string_view text) const {
        // Eight letters at once. The bit that tells small from capital letters is set in all bytes: that
        // makes a few other characters alike too, which only a comparison has to tell apart.
        constexpr std::uint64_t smallLetters = 0x2020202020202020U;
        constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U;
        std::uint64_t hash = text.size();
        for (; !text.empty(); text.remove_prefix(std::min(text.size(), sizeof hash))) {
            std::uint64_t word = 0;
            std::memcpy(&word, text.data(), std::min(text.size(), sizeof word));
            hash = ((hash << 5U | hash >> 59U) ^ (word | smallLetters)) * spread;
        }
        return static_cast<std::size_t>(hash ^ hash >> 32U);
    }
};

struct CaselessEqual {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the library's own name
    bool operator()(std::string_view a, std::string_view b) const {
        // Names are mostly written as the file has them.
        return a == b || (a.size() == b.size() && equalsIgnoringCase(a, b));
    }
};

} // namespace varrocade
