#include "data/format/source_map.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::string_view LineEnds = "\r\n";

} // namespace

LineIndex::LineIndex(std::string_view content) : content_(content), begins_(1, 0) {
    for (std::size_t end = content.find_first_of(LineEnds); end != std::string_view::npos;
         end = content.find_first_of(LineEnds, begins_.back())) {
        begins_.push_back(end + (content.substr(end).starts_with(LineEnds) ? 2 : 1));
    }
}

SourcePlace LineIndex::placeOf(std::size_t offset) const {
    const auto behind = std::upper_bound(begins_.begin(), begins_.end(), offset);
    return {static_cast<std::size_t>(behind - begins_.begin()), offset - behind[-1] + 1};
}

std::string_view LineIndex::line(std::size_t number) const {
    if (number == 0 || number > begins_.size()) {
        return {};
    }
    const std::string_view rest = content_.substr(begins_[number - 1]);
    return rest.substr(0, rest.find_first_of(LineEnds));
}

SourceMap::SourceMap(const TagTree& tree, std::string_view fileContent)
    : tree_(tree), fileContent_(fileContent), lines_(fileContent) {
    if (!tree.isVerbatim()) {
        pieces_ = keptPieces(fileContent);
    }
}

SourcePlace SourceMap::placeAt(std::size_t offset) const {
    if (tree_.isVerbatim()) {
        return lines_.placeOf(offset);
    }
    const std::size_t behind = firstPieceBehind(offset);
    if (behind == 0) {
        return {};
    }
    const KeptPiece& piece = pieces_[behind - 1];
    const SourcePlace begin = placeInFile(piece.text);
    return {begin.line, begin.column + (offset - piece.cleanedOffset)};
}

SourcePlace SourceMap::placeOf(const TagNode& element) const {
    return placeAt(tree_.offsetOf(element.name) - 1);
}

SourcePlace SourceMap::placeOfText(const TagNode& element) const {
    return element.text.empty() ? placeOf(element) : placeAt(tree_.offsetOf(element.text));
}

SourcePlace SourceMap::placeInFile(std::string_view part) const {
    return lines_.placeOf(static_cast<std::size_t>(part.data() - fileContent_.data()));
}

std::size_t SourceMap::firstPieceBehind(std::size_t cleanedOffset) const {
    const auto behind = std::upper_bound(
        pieces_.begin(), pieces_.end(), cleanedOffset,
        [](std::size_t offset, const KeptPiece& piece) { return offset < piece.cleanedOffset; });
    return static_cast<std::size_t>(behind - pieces_.begin());
}

} // namespace varrocade
