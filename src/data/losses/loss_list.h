#pragma once
// Collecting what a save would lose.

#include "data/finding.h"
#include "data/format/source_map.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

enum class LossKind : std::uint8_t {
    Unread, ///< dropped by the reader already: an error of the file
    Dropped,
    Changed,
    Respelt
};

/// One line about a loss: "12: dropped: ...". Its key says what becomes of it: `finding_key::Dropped`,
/// `Changed` or `Respelt`.
std::string lossText(const Finding& loss);

class LossList {
public:
    /// `field`: the element that holds the value, where it is one that files of the kind have.
    void add(SourcePlace place, LossKind kind, std::string message, std::string_view field = {});
    /// Everything by its line; the losses of one line in the order in which they were found.
    [[nodiscard]] std::vector<Finding> take();

private:
    std::vector<Finding> losses_;
    bool isFull_ = false;
};

} // namespace varrocade
