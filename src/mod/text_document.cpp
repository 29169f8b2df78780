#include "mod/text_document.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view IndentCharacters = " \t";
constexpr std::string_view CommentBegin = "//";

} // namespace

TextDocument::TextDocument(std::string_view source) : source_(source), pieces_(keptPieces(source)) {
    tree_.parseCleaned(source);
}

std::vector<std::uint32_t> TextDocument::children(std::uint32_t index) const {
    std::vector<std::uint32_t> found;
    for (std::uint32_t child = node(index).firstChild; child != TagNode::None;
         child = node(child).nextSibling) {
        found.push_back(child);
    }
    return found;
}

std::size_t TextDocument::cleanedBegin(std::uint32_t index) const {
    return tree_.offsetOf(node(index).name) - 1;
}

std::size_t TextDocument::cleanedClosing(std::uint32_t index) const {
    const std::string closing = "</" + std::string(node(index).name) + ">";
    return tree_.content().find(closing, cleanedBegin(index));
}

std::size_t TextDocument::sourceOffset(std::size_t cleaned) const {
    auto piece = std::upper_bound(
        pieces_.begin(), pieces_.end(), cleaned,
        [](std::size_t offset, const KeptPiece& kept) { return offset < kept.cleanedOffset; });
    --piece;
    return static_cast<std::size_t>(piece->text.data() - source_.data()) + cleaned - piece->cleanedOffset;
}

TextRange TextDocument::rangeOf(std::uint32_t index) const {
    const std::size_t last = cleanedClosing(index) + node(index).name.size() + 2;
    return {sourceOffset(cleanedBegin(index)), sourceOffset(last) + 1};
}

TextRange TextDocument::contentOf(std::uint32_t index) const {
    return {sourceOffset(cleanedBegin(index) + node(index).name.size() + 1) + 1,
            sourceOffset(cleanedClosing(index))};
}

std::vector<TextRange> TextDocument::textPiecesOf(std::uint32_t index) const {
    std::vector<TextRange> found;
    std::size_t cleaned = cleanedBegin(index) + node(index).name.size() + 2;
    const std::size_t end = cleanedClosing(index);
    auto piece = std::upper_bound(
        pieces_.begin(), pieces_.end(), cleaned,
        [](std::size_t offset, const KeptPiece& kept) { return offset < kept.cleanedOffset; });
    while (cleaned < end) {
        const std::size_t stop = piece == pieces_.end() ? end : std::min(end, piece->cleanedOffset);
        found.push_back({sourceOffset(cleaned), sourceOffset(stop - 1) + 1});
        cleaned = stop;
        if (piece != pieces_.end()) {
            ++piece;
        }
    }
    if (found.empty()) {
        const std::size_t begin = contentOf(index).begin;
        found.push_back({begin, begin});
    }
    return found;
}

std::string_view TextDocument::lineEnd() const {
    const std::size_t end = source_.find_first_of(LineEnds);
    if (end == std::string_view::npos) {
        return LineEnds;
    }
    return source_.substr(end, source_.substr(end).starts_with(LineEnds) ? 2 : 1);
}

std::size_t TextDocument::lineBegin(std::size_t offset) const {
    const std::size_t end = source_.substr(0, offset).find_last_of(LineEnds);
    return end == std::string_view::npos ? 0 : end + 1;
}

std::size_t TextDocument::lineStop(std::size_t offset) const {
    return std::min(source_.find_first_of(LineEnds, offset), source_.size());
}

std::size_t TextDocument::nextLine(std::size_t offset) const {
    const std::size_t stop = lineStop(offset);
    return stop + (source_.substr(stop).starts_with(LineEnds) ? 2 : (stop < source_.size() ? 1 : 0));
}

std::string_view TextDocument::indentAt(std::size_t offset) const {
    const std::size_t begin = lineBegin(offset);
    const std::size_t end = std::min(source_.find_first_not_of(IndentCharacters, begin), source_.size());
    return source_.substr(begin, end - begin);
}

bool TextDocument::isLineOver(std::size_t offset) const {
    const std::string_view rest = source_.substr(offset, lineStop(offset) - offset);
    const std::size_t first = rest.find_first_not_of(IndentCharacters);
    return first == std::string_view::npos || rest.substr(first).starts_with(CommentBegin);
}

bool TextDocument::isLineFresh(std::size_t offset) const {
    return lineBegin(offset) + indentAt(offset).size() >= offset;
}

TextEdits TextEdits::takeFrom(std::size_t first) {
    TextEdits taken;
    const auto from = edits_.begin() + static_cast<std::ptrdiff_t>(first);
    taken.edits_.assign(std::make_move_iterator(from), std::make_move_iterator(edits_.end()));
    edits_.erase(from, edits_.end());
    return taken;
}

std::string TextEdits::applied(std::string_view text, TextRange part) const {
    std::vector<const Edit*> sorted;
    sorted.reserve(edits_.size());
    for (const Edit& edit : edits_) {
        sorted.push_back(&edit);
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Edit* a, const Edit* b) { return a->range.begin < b->range.begin; });
    std::string result;
    std::size_t at = part.begin;
    for (const Edit* edit : sorted) {
        if (edit->range.begin >= part.begin && edit->range.end <= part.end) {
            // Where a broken nesting makes ranges overlap, the later one loses what is gone already.
            const std::size_t begin = std::max(at, edit->range.begin);
            result += text.substr(at, begin - at);
            result += edit->text;
            at = std::max(at, edit->range.end);
        }
    }
    return result += text.substr(at, std::max(at, part.end) - at);
}

} // namespace varrocade
