#include "tools/checks/rules/line_rules.h"

#include "data/finding_text.h"
#include "data/format/clean_text.h"
#include "data/format/texts.h"
#include "tools/checks/engine/check_rules.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

namespace varrocade {

namespace {

namespace ck = check_key;

bool isForeign(char c) {
    return static_cast<unsigned char>(c) >= 0x80 ||
           (c >= '\0' && c < ' ' && c != '\t' && c != '\r' && c != '\n');
}

/// Calls `visit` with each line, without its end, and where it begins.
template <typename Visit>
void forEachLine(std::string_view content, Visit visit) {
    for (std::size_t begin = 0; begin < content.size();) {
        const std::size_t end = std::min(content.find_first_of("\r\n", begin), content.size());
        visit(content.substr(begin, end - begin), begin);
        begin = end + 1;
    }
}

/// Where "//" cuts a value off: behind it stands the closing tag of what was opened before it.
std::size_t commentInValue(std::string_view line) {
    const std::size_t slashes = line.find("//");
    if (slashes == std::string_view::npos) {
        return slashes;
    }
    const std::string_view before = line.substr(0, slashes);
    const std::size_t opening = before.rfind('<');
    const std::size_t behindName = before.rfind('>');
    const bool isInValue = opening != std::string_view::npos && behindName != std::string_view::npos &&
                           behindName > opening && before[opening + 1] != '/';
    if (!isInValue) {
        return std::string_view::npos;
    }
    const std::string closing =
        "</" + std::string(before.substr(opening + 1, behindName - opening - 1)) + ">";
    return line.find(closing, slashes) != std::string_view::npos ? slashes : std::string_view::npos;
}

} // namespace

bool hasWideMark(std::string_view content) {
    return content.starts_with("\xFF\xFE") || content.starts_with("\xFE\xFF");
}

bool hasForeignBytes(std::string_view content) {
    constexpr std::uint64_t high = 0x8080808080808080U;
    std::uint64_t seen = 0;
    std::size_t at = 0;
    for (; at + sizeof seen <= content.size(); at += sizeof seen) {
        std::uint64_t word = 0;
        std::memcpy(&word, content.data() + at, sizeof word);
        seen |= word;
    }
    for (; at < content.size(); ++at) {
        seen |= static_cast<unsigned char>(content[at]);
    }
    return (seen & high) != 0;
}

void checkCharacters(std::string_view content, FileFindings& out) {
    forEachLine(content, [&](std::string_view line, std::size_t begin) {
        const auto foreign = std::find_if(line.begin(), line.end(), isForeign);
        if (foreign == line.end()) {
            return;
        }
        const auto at = static_cast<std::size_t>(foreign - line.begin());
        const bool isMark = line.substr(at).starts_with("\xEF\xBB\xBF");
        // A comment is never read.
        const std::size_t comment = line.find("//");
        if (!isMark && comment < at) {
            return;
        }
        std::size_t length = 1;
        while (at + length < line.size() && isForeign(line[at + length]) && length < 4) {
            ++length;
        }
        out.atByte(begin + at, {.key = ck::NotAscii,
                                .message = isMark ? std::string("the file begins with a mark of Unicode, "
                                                                "before which the game sees no element")
                                                  : quoted(line.substr(at, length)) + " is not of ASCII",
                                .value = std::string(line.substr(at, length)),
                                .hint = isMark ? "save the file as ANSI or as UTF-8 without a mark" : ""});
    });
}

void checkLines(std::string_view content, FileFindings& out) {
    forEachLine(content, [&](std::string_view line, std::size_t begin) {
        if (const std::size_t at = commentInValue(line); at != std::string_view::npos) {
            out.atByte(begin + at, {.key = ck::CommentInValue,
                                    .message = quoted(line.substr(at)) + " is taken for a comment",
                                    .value = std::string(trimmed(line))});
        }
        if (line.size() > LinePieceLength) {
            out.atByte(begin + LinePieceLength,
                       {.key = ck::LongLine,
                        .message = "the line has " + std::to_string(line.size()) +
                                   " characters; the game reads it in pieces of " +
                                   std::to_string(LinePieceLength),
                        .value = std::to_string(line.size()),
                        .expected = "at most " + std::to_string(LinePieceLength) + " characters"});
        }
    });
}

} // namespace varrocade
