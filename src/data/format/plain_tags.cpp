#include "data/format/plain_tags.h"

#include "data/format/clean_text.h"
#include "data/format/texts.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace varrocade {

namespace {

/// No file of the game nests deeper than six levels.
constexpr std::size_t MaxDepth = 32;

constexpr bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

// Runs of characters that need no look are passed eight at a time, a register's bytes being compared at once.
constexpr std::size_t WordLength = 8;
constexpr std::uint64_t EachByte = 0x0101010101010101U;
constexpr std::uint64_t HighBits = 0x80 * EachByte;

/// The high bit of each byte that is below `bound` (at most 128); of the bytes behind the first such one,
/// others may be marked too.
constexpr std::uint64_t bytesBelow(std::uint64_t word, std::uint8_t bound) {
    return (word - bound * EachByte) & ~word & HighBits;
}

constexpr std::uint64_t bytesEqual(std::uint64_t word, char c) {
    return bytesBelow(word ^ (static_cast<std::uint8_t>(c) * EachByte), 1);
}

/// What ends a name: `<`, `>`, `/` and line ends, and a few that need a closer look.
struct NameStops {
    static constexpr std::uint64_t in(std::uint64_t word) {
        constexpr std::uint64_t differenceOfBrackets = ('<' ^ '>') * EachByte;
        return bytesBelow(word, '/' + 1) | bytesEqual(word | differenceOfBrackets, '>');
    }
    static constexpr bool is(char c) { return c == '>' || c == '<' || c == '/' || isLineEnd(c); }
};

/// What ends a text: `<`, `/` and line ends.
struct TextStops {
    static constexpr std::uint64_t in(std::uint64_t word) {
        return bytesBelow(word, '\r' + 1) | bytesEqual(word, '<') | bytesEqual(word, '/');
    }
    static constexpr bool is(char c) { return c == '<' || c == '/' || isLineEnd(c); }
};

/// The first stop at or behind `at`, or `end`.
template <typename Stops>
const char* findStop(const char* at, const char* end) {
    while (true) {
        if constexpr (std::endian::native == std::endian::little) {
            std::uint64_t found = 0;
            while (found == 0 && static_cast<std::size_t>(end - at) >= WordLength) {
                std::uint64_t word = 0;
                std::memcpy(&word, at, WordLength);
                found = Stops::in(word);
                at +=
                    found == 0 ? WordLength : static_cast<std::size_t>(std::countr_zero(found)) / WordLength;
            }
        }
        if (at == end || Stops::is(*at)) {
            return at;
        }
        ++at;
    }
}

class PlainParser {
public:
    PlainParser(std::string_view content, std::vector<TagNode>& nodes)
        : at_(content.data()), end_(content.data() + content.size()), line_(at_), nodes_(nodes) {
        // Lines of the game's files have some thirty characters an element.
        constexpr std::size_t charactersPerElement = 28;
        nodes_.reserve(content.size() / charactersPerElement + 8);
        nodes_.emplace_back();
    }

    bool run() {
        while (skipToTag()) {
            if (at_ == end_) {
                return depth_ == 0;
            }
            const bool isClosing = at_ + 1 != end_ && at_[1] == '/';
            if (*at_ != '<' || !(isClosing ? closeInnermost() : open())) {
                return false;
            }
        }
        return false;
    }

private:
    /// An element that has not been closed yet.
    struct Level {
        std::uint32_t node = 0;
        std::uint32_t namesAbove = 0; ///< a bit for each open name, as `bitOf` tells
    };

    static std::uint32_t bitOf(std::string_view name) {
        const auto first = name.empty() ? 0U : static_cast<unsigned char>(name[0]);
        return std::uint32_t{1} << ((first + 7U * static_cast<std::uint32_t>(name.size())) % 32U);
    }

    [[nodiscard]] bool isComment(const char* at) const { return *at == '/' && end_ - at > 1 && at[1] == '/'; }

    /// Passes blanks at the borders of lines, comments and line ends. False where blanks stand between two
    /// elements of a line, or a line is too long.
    bool skipToTag() {
        while (true) {
            const char* next = at_;
            while (next != end_ && isBlank(*next)) {
                ++next;
            }
            if (next != end_ && isComment(next)) {
                while (next != end_ && !isLineEnd(*next)) {
                    ++next;
                }
            }
            if (next != end_ && !isLineEnd(*next)) {
                const bool isKept = next != at_ && at_ != line_;
                at_ = next;
                return !isKept;
            }
            if (static_cast<std::size_t>(next - line_) > LinePieceLength) {
                return false;
            }
            at_ = next;
            if (at_ == end_) {
                return true;
            }
            at_ += *at_ == '\r' && end_ - at_ > 1 && at_[1] == '\n' ? 2 : 1;
            line_ = at_;
        }
    }

    /// Whether "</name>" stands at a place.
    [[nodiscard]] bool isClosingTag(const char* at, std::string_view name) const {
        return static_cast<std::size_t>(end_ - at) >= name.size() + 3 && at[1] == '/' &&
               at[name.size() + 2] == '>' && std::memcmp(at + 2, name.data(), name.size()) == 0;
    }

    bool closeInnermost() {
        const std::string_view name = nodes_[levels_[depth_].node].name;
        if (depth_ == 0 || !isClosingTag(at_, name)) {
            return false;
        }
        at_ += name.size() + 3;
        --depth_;
        return true;
    }

    /// Whether an open element has this name: such an element ends at the inner one's closing tag.
    [[nodiscard]] bool isOpen(std::string_view name) const {
        if ((levels_[depth_].namesAbove & bitOf(name)) == 0) {
            return false;
        }
        for (std::size_t depth = depth_; depth > 0; --depth) {
            if (nodes_[levels_[depth].node].name == name) {
                return true;
            }
        }
        return false;
    }

    bool open() {
        const char* const nameBegin = at_ + 1;
        const char* const nameEnd = findStop<NameStops>(nameBegin, end_);
        if (end_ - nameEnd < 2 || *nameEnd != '>') {
            return false;
        }
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));
        if (isOpen(name)) {
            return false;
        }
        const std::uint32_t node = addNode(nodes_, levels_[depth_].node, name);
        at_ = nameEnd + 1;
        return holdsText() ? takeText(node) : descend(node);
    }

    /// Whether text stands behind an opening tag, and not another tag or the end of the line.
    [[nodiscard]] bool holdsText() const {
        const char* next = at_;
        while (next != end_ && isBlank(*next)) {
            ++next;
        }
        const bool isLineOver = next == end_ || isLineEnd(*next) || isComment(next);
        return !isLineOver && *at_ != '<';
    }

    bool takeText(std::uint32_t node) {
        const char* textEnd = findStop<TextStops>(at_, end_);
        while (textEnd != end_ && *textEnd == '/' && !isComment(textEnd)) {
            textEnd = findStop<TextStops>(textEnd + 1, end_);
        }
        TagNode& element = nodes_[node];
        if (textEnd == end_ || *textEnd != '<' || !isClosingTag(textEnd, element.name)) {
            return false;
        }
        element.text = std::string_view(at_, static_cast<std::size_t>(textEnd - at_));
        at_ = textEnd + element.name.size() + 3;
        return true;
    }

    bool descend(std::uint32_t node) {
        if (depth_ + 1 == MaxDepth) {
            return false;
        }
        const std::uint32_t namesAbove = levels_[depth_].namesAbove | bitOf(nodes_[node].name);
        levels_[++depth_] = {node, namesAbove};
        return true;
    }

    const char* at_;
    const char* end_;
    const char* line_; ///< where the line begins
    std::vector<TagNode>& nodes_;
    std::array<Level, MaxDepth> levels_{};
    std::size_t depth_ = 0;
};

} // namespace

bool parsePlainly(std::string_view content, std::vector<TagNode>& nodes) {
    return PlainParser(content, nodes).run();
}

} // namespace varrocade
