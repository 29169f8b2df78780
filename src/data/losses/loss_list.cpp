#include "data/losses/loss_list.h"

#include <algorithm>

namespace varrocade {

namespace {

/// A file of nothing but faults says enough with so many.
constexpr std::size_t MaxLosses = 10000;

/// As much of a text as a message shows.
std::string shownBetween(char before, std::string_view text, char after) {
    constexpr std::size_t mostShown = 60;
    std::string result(1, before);
    for (const char c : text.substr(0, mostShown)) {
        result += c >= '\0' && c < ' ' ? '?' : c;
    }
    if (text.size() > mostShown) {
        result += "...";
    }
    result += after;
    return result;
}

} // namespace

std::size_t LineMap::lineAt(std::size_t cleanedOffset) const {
    const std::size_t behind = firstPieceBehind(cleanedOffset);
    return behind == 0 ? 1 : pieces_[behind - 1].line;
}

std::size_t LineMap::firstPieceBehind(std::size_t cleanedOffset) const {
    const auto behind = std::upper_bound(
        pieces_.begin(), pieces_.end(), cleanedOffset,
        [](std::size_t offset, const KeptPiece& piece) { return offset < piece.cleanedOffset; });
    return static_cast<std::size_t>(behind - pieces_.begin());
}

void LossList::add(std::size_t line, LossKind kind, std::string message) {
    if (losses_.size() < MaxLosses) {
        losses_.push_back({line, kind, std::move(message)});
    } else if (!isFull_) {
        isFull_ = true;
        losses_.push_back({line, kind, "more than can be listed is lost"});
    }
}

std::vector<SaveLoss> LossList::take() {
    std::stable_sort(losses_.begin(), losses_.end(),
                     [](const SaveLoss& a, const SaveLoss& b) { return a.line < b.line; });
    return std::move(losses_);
}

std::string quoted(std::string_view text) {
    return shownBetween('"', text, '"');
}

std::string tagText(std::string_view name) {
    return shownBetween('<', name, '>');
}

std::string elementText(const TagNode& node) {
    return node.text.empty() ? tagText(node.name) : tagText(node.name) + " " + quoted(node.text);
}

} // namespace varrocade
