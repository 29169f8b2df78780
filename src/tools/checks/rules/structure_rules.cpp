#include "tools/checks/rules/structure_rules.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"

#include <algorithm>
#include <optional>
#include <string>

namespace varrocade {

namespace {

namespace ck = check_key;

constexpr std::string_view::size_type None = std::string_view::npos;
/// The game's files nest six levels deep; what is deeper is no such file.
constexpr std::size_t DeepestNesting = 64;
/// How far ahead a closing tag is looked for.
constexpr std::size_t LookAhead = 20000;

/// One bracketed piece of the text.
struct Tag {
    std::size_t begin; ///< of its "<"
    std::size_t end;   ///< behind its ">"
    std::string_view name;
    bool isClosing;
    bool isBroken; ///< not a name between two brackets
    bool closesItself;
};

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

/// The tag at a "<", as it was probably meant.
Tag tagAt(std::string_view text, std::size_t begin) {
    const bool isClosing = begin + 1 < text.size() && text[begin + 1] == '/';
    const std::size_t nameBegin = begin + (isClosing ? 2 : 1);
    std::size_t nameEnd = nameBegin;
    while (nameEnd < text.size() && isNameCharacter(text[nameEnd])) {
        ++nameEnd;
    }
    const std::size_t stop = std::min(text.find_first_of("<>", nameEnd), text.size());
    Tag tag{begin, stop, text.substr(nameBegin, nameEnd - nameBegin), isClosing, true, false};
    const bool isEnded = stop < text.size() && text[stop] == '>';
    if (isEnded) {
        tag.end = stop + 1;
        tag.isBroken = stop != nameEnd;
        tag.closesItself = !isClosing && text[stop - 1] == '/' && stop > nameEnd;
    } else {
        // What stands behind the name may be the value.
        tag.end = nameEnd;
    }
    return tag;
}

class StructureScan {
public:
    StructureScan(std::string_view text, const ElementTable& table, FileFindings& out,
                  std::vector<TagNode>& nodes)
        : text_(text), table_(table), out_(out), nodes_(nodes) {
        nodes_.assign(1, TagNode{});
        open_.push_back({});
    }

    void run() {
        std::size_t at = 0;
        while (at < text_.size()) {
            if (open_.size() > DeepestNesting) {
                out_.atOffset(at, {.key = ck::UnclosedElement,
                                   .message = "elements nest deeper than in any file of the game"});
                return;
            }
            if (text_[at] != '<') {
                const std::size_t end = std::min(text_.find('<', at), text_.size());
                takeText(at, end);
                at = end;
                continue;
            }
            const Tag tag = withKnownName(tagAt(text_, at));
            if (tag.isBroken && !tag.closesItself) {
                reportBroken(tag);
            }
            if (tag.name.empty()) {
                at = std::max(tag.end, at + 1);
                continue;
            }
            if (tag.isClosing) {
                close(tag);
            } else {
                open(tag);
            }
            at = tag.end;
        }
        closeAbove(0, text_.size());
    }

private:
    struct Level {
        std::uint32_t node = 0;
        std::uint8_t place = 0;
        bool isLeaf = false; ///< by the rules it holds a value
        std::size_t begin = 0;
        bool hasStrayText = false;
    };
    /// An element that was closed because one around it was.
    struct Unclosed {
        std::string_view name;
        std::size_t finding;
        bool isNested; ///< because another of its name began in it
    };

    [[nodiscard]] std::string_view nameOf(const Level& level) const { return nodes_[level.node].name; }

    /// "<length590</length>": where a bracket is missing, the value looks like a part of the name.
    [[nodiscard]] Tag withKnownName(Tag tag) const {
        const bool hasEnd = tag.end > tag.begin && text_[tag.end - 1] == '>';
        if (!tag.isBroken || tag.isClosing || hasEnd || table_.knows(tag.name)) {
            return tag;
        }
        const std::string_view behind = text_.substr(std::min(text_.find('<', tag.end), text_.size()));
        for (std::string_view name = tag.name; !name.empty(); name.remove_suffix(1)) {
            if (table_.knows(name) && behind.starts_with("</" + std::string(name) + ">")) {
                tag.end -= tag.name.size() - name.size();
                tag.name = name;
                break;
            }
        }
        return tag;
    }

    void reportBroken(const Tag& tag) {
        const std::string shown(text_.substr(tag.begin, tag.end - tag.begin));
        const bool hasEnd = tag.end > tag.begin && text_[tag.end - 1] == '>';
        Remark remark{.key = ck::BrokenTag,
                      .message = quoted(shown) + (hasEnd ? " holds more than a name" : " has no \">\""),
                      .value = shown};
        remark.expected = (tag.isClosing ? "</" : "<") + std::string(tag.name) + ">";
        remark.hint = "write " + remark.expected;
        remark.field = tag.name;
        if (hasEnd && table_.knows(tag.name)) {
            remark.replacement = remark.expected;
        }
        out_.atOffset(tag.begin, std::move(remark));
        brokenAt_ = tag.begin;
    }

    void takeText(std::size_t begin, std::size_t end) {
        Level& level = open_.back();
        TagNode& node = nodes_[level.node];
        if (level.node != 0 && node.childCount == 0 && node.text.empty() && !level.hasStrayText) {
            node.text = text_.substr(begin, end - begin);
            textBegin_ = begin;
            return;
        }
        reportStray(begin, end);
        level.hasStrayText = true;
    }

    void reportStray(std::size_t begin, std::size_t end) {
        const std::string_view stray = trimmed(text_.substr(begin, end - begin));
        if (stray.empty() && end - begin > 0) {
            reportBlanks(begin, end);
            return;
        }
        const std::string_view around = nameOf(open_.back());
        out_.atOffset(begin, {.key = ck::StrayText,
                              .message = quoted(stray) + " stands " +
                                         (around.empty() ? std::string("outside of all elements")
                                                         : "beside the elements in " + tagText(around)),
                              .value = std::string(stray)});
        strayAt_ = begin;
    }

    /// Blanks between two tags of a line. Before a closing tag nothing is lost with them.
    void reportBlanks(std::size_t begin, std::size_t end) {
        if (end + 1 >= text_.size() || text_[end] != '<' || text_[end + 1] == '/' || open_.size() < 2) {
            return;
        }
        const std::string next = tagText(tagAt(text_, end).name);
        out_.atOffset(begin,
                      {.key = ck::StrayText,
                       .message = "a blank stands before " + next + ", so that it and what follows in " +
                                  tagText(nameOf(open_.back())) + " is not read",
                       .hint = "take the blank out, or begin a new line"});
        strayAt_ = begin;
    }

    void open(const Tag& tag) {
        // An element that holds a value was not closed when another begins in it.
        while (open_.size() > 1 && open_.back().isLeaf) {
            closeUnclosed(tag.begin);
        }
        Level& parent = open_.back();
        if (TagNode& around = nodes_[parent.node]; !around.text.empty()) {
            reportStray(textBegin_, textBegin_ + around.text.size());
            around.text = {};
            parent.hasStrayText = true;
        }
        leaveForeignPlaces(tag);
        const auto isSame = [&](const Level& level) { return nameOf(level) == tag.name; };
        const auto same = std::find_if(open_.begin() + 1, open_.end(), isSame);
        if (same != open_.end()) {
            // The outer one was meant to end before.
            closeAbove(static_cast<std::size_t>(same - open_.begin()), tag.begin);
            closeUnclosed(tag.begin, true);
        }
        const Level& around = open_.back();
        const ElementRow* row = table_.find(around.place, tag.name);
        const std::uint32_t node = addNode(nodes_, around.node, tag.name);
        if (tag.closesItself) {
            out_.atOffset(tag.begin,
                          {.key = ck::BrokenTag,
                           .message = quoted(text_.substr(tag.begin, tag.end - tag.begin)) +
                                      " is not closed: no tag closes itself",
                           .expected = "<" + std::string(tag.name) + "></" + std::string(tag.name) + ">",
                           .field = std::string(tag.name)});
            return;
        }
        open_.push_back({.node = node,
                         .place = row == nullptr ? std::uint8_t{0} : row->place,
                         .isLeaf = row != nullptr && row->place == 0,
                         .begin = tag.begin});
    }

    /// A group whose closing tag is missing ends where an element comes that only one around it has.
    void leaveForeignPlaces(const Tag& tag) {
        if (table_.find(open_.back().place, tag.name) != nullptr || open_.size() < 3) {
            return;
        }
        for (std::size_t i = open_.size() - 1; i-- > 1;) {
            const bool isHome = open_[i].place != 0 && table_.find(open_[i].place, tag.name) != nullptr;
            const bool isClosedLater = closesBefore(nameOf(open_.back()), nameOf(open_[i]), tag.begin);
            if (isHome && !isClosedLater) {
                closeAbove(i, tag.begin);
                return;
            }
        }
    }

    /// Whether the closing tag of an element comes before that of one around it.
    [[nodiscard]] bool closesBefore(std::string_view inner, std::string_view outer, std::size_t from) const {
        const std::string_view ahead = text_.substr(from, LookAhead);
        const std::size_t innerEnd = ahead.find("</" + std::string(inner) + ">");
        const std::size_t outerEnd = ahead.find("</" + std::string(outer) + ">");
        const std::size_t innerBegin = ahead.find("<" + std::string(inner) + ">");
        return innerEnd != None && innerEnd < outerEnd && innerEnd < innerBegin;
    }

    /// Ends the innermost element without its closing tag.
    void closeUnclosed(std::size_t before, bool isNested = false) {
        const Level level = open_.back();
        open_.pop_back();
        const std::string name(nameOf(level));
        const SourcePlace place = out_.places().placeAt(std::min(before, text_.size() - 1));
        unclosed_.push_back({nameOf(level), out_.found().size(), isNested});
        if (level.begin == brokenAt_) {
            return;
        }
        out_.atOffset(level.begin, {.key = ck::UnclosedElement,
                                    .message = tagText(name) + " is not closed",
                                    .expected = "</" + name + ">",
                                    .hint = "add </" + name + "> before line " + std::to_string(place.line) +
                                            ", column " + std::to_string(place.column),
                                    .field = name});
    }

    /// Ends all that is open above a level.
    void closeAbove(std::size_t level, std::size_t before) {
        while (open_.size() > level + 1) {
            closeUnclosed(before);
        }
    }

    void close(const Tag& tag) {
        const auto found = std::find_if(open_.rbegin(), open_.rend() - 1,
                                        [&](const Level& level) { return nameOf(level) == tag.name; });
        if (found == open_.rbegin() && open_.size() > 1) {
            open_.pop_back();
            return;
        }
        if (open_.size() > 1 && isMisspelt(tag)) {
            reportMisspelt(tag);
            open_.pop_back();
            return;
        }
        if (found != open_.rend() - 1) {
            closeAbove(static_cast<std::size_t>(open_.rend() - found) - 1, tag.begin);
            open_.pop_back();
            return;
        }
        reportStrayClosing(tag);
    }

    /// Whether a closing tag is that of the innermost element, with a slip in one of the two names.
    [[nodiscard]] bool isMisspelt(const Tag& tag) const {
        const std::string_view name = nameOf(open_.back());
        const std::size_t limit = std::max<std::size_t>(1, name.size() / 3);
        if (editDistance(name, tag.name, limit) > limit) {
            return false;
        }
        // Two elements of like names, as offsetX and offsetY: it is none where the right tag follows.
        return !closesBefore(name, open_.size() > 2 ? nameOf(open_[open_.size() - 2]) : std::string_view(),
                             tag.end) ||
               open_.back().isLeaf;
    }

    void reportMisspelt(const Tag& tag) {
        const Level& level = open_.back();
        const std::string name(nameOf(level));
        const std::string closing(tag.name);
        const bool isOpeningWrong = !table_.knows(name) && table_.knows(closing);
        const std::string right = isOpeningWrong ? closing : name;
        const SourcePlace opening = out_.places().placeAt(level.begin);
        const SourcePlace closed = out_.places().placeAt(tag.begin);
        const std::string pair = tagText(name) + " is not closed: </" + closing + "> has another name";
        if (isOpeningWrong || opening.line != closed.line) {
            out_.atOffset(level.begin, {.key = ck::UnclosedElement,
                                        .message = pair,
                                        .value = isOpeningWrong ? tagText(name) : std::string(),
                                        .expected = isOpeningWrong ? "<" + right + ">" : "</" + right + ">",
                                        .hint = isOpeningWrong ? "did you mean <" + right + ">?"
                                                               : "mend the closing tag on line " +
                                                                     std::to_string(closed.line),
                                        .field = name,
                                        .replacement = isOpeningWrong ? "<" + right + ">" : std::string()});
        }
        if (!isOpeningWrong || opening.line != closed.line) {
            out_.atOffset(tag.begin, {.key = ck::StrayClosingTag,
                                      .message = "</" + closing + "> does not close " + tagText(name),
                                      .value = "</" + closing + ">",
                                      .expected = "</" + right + ">",
                                      .hint = isOpeningWrong ? "mend the opening tag on line " +
                                                                   std::to_string(opening.line)
                                                             : "did you mean </" + right + ">?",
                                      .field = name,
                                      .replacement = isOpeningWrong ? std::string() : "</" + right + ">"});
        }
    }

    void reportStrayClosing(const Tag& tag) {
        const auto crossed = std::find_if(unclosed_.rbegin(), unclosed_.rend(),
                                          [&](const Unclosed& one) { return one.name == tag.name; });
        if (crossed != unclosed_.rend() && crossed->finding < out_.found().size() &&
            out_.found()[crossed->finding].key == ck::UnclosedElement) {
            Finding& finding = out_.found()[crossed->finding];
            const SourcePlace place = out_.places().placeAt(tag.begin);
            const std::string line = std::to_string(place.line);
            finding.key = crossed->isNested ? ck::NestedInItself : ck::CrossedTags;
            finding.message = crossed->isNested ? tagText(tag.name) + " holds another " + tagText(tag.name) +
                                                      ", whose end the game takes for its own"
                                                : tagText(tag.name) + " is closed on line " + line +
                                                      ", behind the end of an element around it";
            finding.hint = crossed->isNested
                               ? "close it before the inner one begins, in place of line " + line
                               : "move </" + std::string(tag.name) + "> into the element that " +
                                     tagText(tag.name) + " stands in";
            unclosed_.erase(std::next(crossed).base());
            return;
        }
        // "width>34</width>": the text before it told already.
        if (strayAt_ != None && tag.begin - strayAt_ < 80 && tag.begin > strayAt_ &&
            text_.substr(strayAt_, tag.begin - strayAt_).starts_with(tag.name)) {
            return;
        }
        NearestName nearest(tag.name);
        for (std::size_t i = 1; i < open_.size(); ++i) {
            nearest.offer(nameOf(open_[i]));
        }
        out_.atOffset(tag.begin, {.key = ck::StrayClosingTag,
                                  .message = "</" + std::string(tag.name) + "> closes nothing",
                                  .value = "</" + std::string(tag.name) + ">",
                                  .hint = nearest.hint(),
                                  .field = std::string(tag.name)});
    }

    std::string_view text_;
    const ElementTable& table_;
    FileFindings& out_;
    std::vector<TagNode>& nodes_;
    std::vector<Level> open_;
    std::vector<Unclosed> unclosed_;
    std::size_t textBegin_ = 0;
    std::size_t brokenAt_ = None;
    std::size_t strayAt_ = None;
};

} // namespace

void checkStructure(std::string_view text, const ElementTable& table, FileFindings& out,
                    std::vector<TagNode>& mended) {
    StructureScan(text, table, out, mended).run();
}

} // namespace varrocade
