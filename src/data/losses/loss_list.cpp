#include "data/losses/loss_list.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

/// A file of nothing but faults says enough with so many.
constexpr std::size_t MaxLosses = 10000;

struct LossKindTraits {
    std::string_view key;
    Severity severity;
};

/// By `LossKind`. What is only spelt otherwise is no reason to ask anybody.
constexpr std::array<LossKindTraits, 4> LossKinds = {{{finding_key::Dropped, Severity::Error},
                                                      {finding_key::Dropped, Severity::Warning},
                                                      {finding_key::Changed, Severity::Warning},
                                                      {finding_key::Respelt, Severity::Note}}};

} // namespace

std::string lossText(const Finding& loss) {
    return std::to_string(loss.line) + ": " + std::string(loss.key) + ": " + loss.message;
}

void LossList::add(SourcePlace place, LossKind kind, std::string message, std::string_view field) {
    if (isFull_) {
        return;
    }
    isFull_ = losses_.size() >= MaxLosses;
    const LossKindTraits& traits = LossKinds[static_cast<std::size_t>(kind)];
    losses_.push_back({.key = traits.key,
                       .severity = traits.severity,
                       .line = place.line,
                       .column = place.column,
                       .field = std::string(field),
                       .message = isFull_ ? "more than can be listed is lost" : std::move(message)});
}

std::vector<Finding> LossList::take() {
    std::stable_sort(losses_.begin(), losses_.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return std::move(losses_);
}

} // namespace varrocade
