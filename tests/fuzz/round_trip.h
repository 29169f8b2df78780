#pragma once
// What the fuzz targets of the readers and writers share.

#include "data/format/tag_tree.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace varrocade::fuzz {

/// Ends the run as a crash does when something does not hold.
inline void require(bool holds, const char* what, std::string_view former, std::string_view latter) {
    if (!holds) {
        std::fprintf(stderr, "%s:\n%.*s\n----\n%.*s\n", what, static_cast<int>(former.size()), former.data(),
                     static_cast<int>(latter.size()), latter.data());
        std::abort();
    }
}

/// Whether all texts of a file are such that the format can carry them: a "//" would begin a comment when it
/// is written on one line, and a tag would be taken for one of the file's own.
inline bool hasPlainTexts(std::string_view content) {
    TagTree tree;
    tree.parse(content);
    return std::none_of(tree.nodes().begin(), tree.nodes().end(), [](const TagNode& node) {
        return node.text.find("//") != std::string_view::npos ||
               node.text.find('<') != std::string_view::npos;
    });
}

/// Whether no line is so long that the reader takes it in pieces, which blanks at their borders would not
/// survive.
inline bool hasShortLines(std::string_view text) {
    constexpr std::size_t pieceLength = 510;
    while (text.size() > pieceLength) {
        const std::size_t end = text.find("\r\n");
        if (end > pieceLength) {
            return false;
        }
        text.remove_prefix(end + 2);
    }
    return true;
}

inline std::string withoutBlankLines(std::string text) {
    constexpr std::string_view twoLineEnds = "\r\n\r\n";
    for (std::size_t at = text.find(twoLineEnds); at != std::string::npos; at = text.find(twoLineEnds, at)) {
        text.erase(at, 2);
    }
    return text;
}

/// Reads what was written of a record, and writes it again, twice: from the second on nothing may change. The
/// first text may be `otherwise` than the second, but for blank lines.
template <typename Record, typename Read, typename Write>
void checkRoundTrip(const Record& first, Read read, Write write, bool otherwise) {
    const std::string firstText = write(first);
    if (firstText.empty() || !hasShortLines(firstText)) {
        return;
    }
    const Record second = read(firstText);
    const std::string secondText = write(second);
    require(otherwise || withoutBlankLines(secondText) == withoutBlankLines(firstText),
            "the second text is another", firstText, secondText);
    const Record third = read(secondText);
    require(third == second, "the third record is another", firstText, secondText);
    const std::string thirdText = write(third);
    require(thirdText == secondText, "the third text is another", secondText, thirdText);
}

} // namespace varrocade::fuzz
