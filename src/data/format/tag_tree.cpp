#include "data/format/tag_tree.h"

#include "data/format/clean_text.h"
#include "data/format/plain_tags.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

using Nodes = std::vector<TagNode>;

/// All closing tags of a text, to find the first one of a name at or after a position in logarithmic time.
/// A name is hashed from its last character to its first, since the names of hostile files (`</</</</a>`)
/// share their ends: one backward pass then hashes them all.
class ClosingTags {
public:
    explicit ClosingTags(std::string_view text) : text_(text) {
        const std::size_t last = text.rfind('>');
        std::uint64_t hash = 0;
        std::size_t tagEnd = 0;
        for (std::size_t i = last == std::string_view::npos ? 0 : last + 1; i-- > 0;) {
            if (text[i] == '>') {
                hash = 0;
                tagEnd = i;
                continue;
            }
            if (text[i] == '/' && i > 0 && text[i - 1] == '<') {
                tags_.push_back(
                    {hash, static_cast<std::uint32_t>(tagEnd - i - 1), static_cast<std::uint32_t>(i - 1)});
            }
            hash = extended(hash, text[i]);
        }
        std::sort(tags_.begin(), tags_.end(), isBefore);
    }

    [[nodiscard]] bool empty() const { return tags_.empty(); }

    /// The position of the first "</name>" at or after `from`, or npos.
    [[nodiscard]] std::size_t find(std::string_view name, std::size_t from) const {
        std::uint64_t hash = 0;
        for (std::size_t i = name.size(); i-- > 0;) {
            hash = extended(hash, name[i]);
        }
        const Tag wanted{hash, static_cast<std::uint32_t>(name.size()), static_cast<std::uint32_t>(from)};
        for (auto tag = std::lower_bound(tags_.begin(), tags_.end(), wanted, isBefore);
             tag != tags_.end() && tag->hash == wanted.hash && tag->length == wanted.length; ++tag) {
            if (text_.substr(tag->position + 2, tag->length) == name) {
                return tag->position;
            }
        }
        return std::string_view::npos;
    }

private:
    struct Tag {
        std::uint64_t hash;
        std::uint32_t length;
        std::uint32_t position;
    };

    static std::uint64_t extended(std::uint64_t hash, char c) {
        constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15U;
        return (hash + static_cast<unsigned char>(c) + 1) * multiplier;
    }

    static bool isBefore(const Tag& a, const Tag& b) {
        if (a.hash != b.hash) {
            return a.hash < b.hash;
        }
        return a.length != b.length ? a.length < b.length : a.position < b.position;
    }

    std::string_view text_;
    std::vector<Tag> tags_;
};

/// Parses any text. An element ends at the first closing tag of its name, wherever that stands, so ranges can
/// overlap, and a small hostile file can describe a tree that grows exponentially; a budget of work
/// proportional to the file's size, which files without overlaps never use up, ends the parse there.
class GeneralParser {
public:
    GeneralParser(std::string_view text, Nodes& nodes)
        : text_(text), nodes_(nodes), closingTags_(text),
          budget_(WorkPerCharacter * text.size() + LeastWork) {}

    void run() {
        if (closingTags_.empty()) {
            return;
        }
        levels_.push_back({0, 0, text_.size()});
        while (!levels_.empty()) {
            if (!parseNextChild()) {
                levels_.pop_back();
            }
        }
    }

private:
    static constexpr std::size_t WorkPerCharacter = 8;
    static constexpr std::size_t LeastWork = 65536;

    struct Level {
        std::uint32_t node;
        std::size_t cursor;
        std::size_t end;
    };

    /// One child of the innermost level; false when that level is at its end.
    bool parseNextChild() {
        const Level level = levels_.back();
        if (level.cursor >= level.end || text_[level.cursor] != '<') {
            return false;
        }
        const std::size_t tagEnd = text_.substr(0, level.end).find('>', level.cursor);
        const std::size_t work = (tagEnd == std::string_view::npos ? level.end : tagEnd) - level.cursor;
        if (work >= budget_) {
            budget_ = 0;
            return false;
        }
        budget_ -= work;
        if (tagEnd == std::string_view::npos) {
            return false;
        }
        const std::string_view name = text_.substr(level.cursor + 1, tagEnd - level.cursor - 1);
        const std::size_t closing = closingTags_.find(name, level.cursor);
        if (closing == std::string_view::npos) {
            return false;
        }
        const std::uint32_t child = addNode(nodes_, level.node, name);
        levels_.back().cursor = closing + name.size() + 3;
        const std::size_t contentBegin = tagEnd + 1;
        if (text_[contentBegin] != '<') {
            nodes_[child].text = text_.substr(contentBegin, closing - contentBegin);
        } else if (contentBegin < closing) {
            levels_.push_back({child, contentBegin, closing});
        }
        return true;
    }

    std::string_view text_;
    Nodes& nodes_;
    ClosingTags closingTags_;
    std::size_t budget_;
    std::vector<Level> levels_;
};

} // namespace

void TagTree::parse(std::string_view fileContent) {
    nodes_.clear();
    content_.assign(fileContent.size() < TagNode::None ? fileContent : std::string_view());
    isVerbatim_ = parsePlainly(content_, nodes_);
    if (!isVerbatim_) {
        parseCleaned(fileContent);
    }
}

void TagTree::parseCleaned(std::string_view fileContent) {
    isVerbatim_ = false;
    content_.clear();
    nodes_.assign(1, TagNode{});
    if (fileContent.size() >= TagNode::None) {
        return;
    }
    cleanTaggedText(fileContent, content_);
    const std::string_view text = content_;
    if (!text.empty() && text[0] != '<') {
        nodes_[0].text = text;
    } else if (!text.empty()) {
        GeneralParser(text, nodes_).run();
    }
}

} // namespace varrocade
