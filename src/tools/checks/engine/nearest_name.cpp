#include "tools/checks/engine/nearest_name.h"

#include "data/finding_text.h"
#include "data/format/texts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace varrocade {

namespace {

/// Longer names are no names: comparing them would only take time.
constexpr std::size_t LongestName = 128;

/// A bit for each kind of letter that a name has. A kind that the other lacks takes an edit at least, so that
/// most names need no table.
std::uint64_t letterKinds(std::string_view name) {
    std::uint64_t kinds = 0;
    for (const char c : name) {
        kinds |= std::uint64_t{1} << (static_cast<unsigned char>(lowered(c)) % 64U);
    }
    return kinds;
}

} // namespace

std::size_t editDistance(std::string_view a, std::string_view b, std::size_t limit) {
    const std::size_t difference = a.size() > b.size() ? a.size() - b.size() : b.size() - a.size();
    if (difference > limit || a.size() > LongestName || b.size() > LongestName) {
        return limit + 1;
    }
    const std::uint64_t kindsOfA = letterKinds(a);
    const std::uint64_t kindsOfB = letterKinds(b);
    const auto lacking = std::max(std::popcount(kindsOfA & ~kindsOfB), std::popcount(kindsOfB & ~kindsOfA));
    if (static_cast<std::size_t>(lacking) > limit) {
        return limit + 1;
    }
    // Rows of the table: the present one, the one above, and the one above that for swapped letters.
    using Row = std::array<std::size_t, LongestName + 1>;
    std::array<Row, 3> rows;
    const auto row = [&rows](std::size_t i) -> Row& { return rows[i % rows.size()]; };
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row(0)[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        const Row& twoAbove = row(i + 1);
        const Row& above = row(i - 1);
        Row& present = row(i);
        present[0] = i;
        std::size_t least = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool isSame = lowered(a[i - 1]) == lowered(b[j - 1]);
            present[j] = std::min({above[j] + 1, present[j - 1] + 1, above[j - 1] + (isSame ? 0U : 1U)});
            const bool isSwapped = i > 1 && j > 1 && lowered(a[i - 1]) == lowered(b[j - 2]) &&
                                   lowered(a[i - 2]) == lowered(b[j - 1]);
            if (isSwapped) {
                present[j] = std::min(present[j], twoAbove[j - 2] + 1);
            }
            least = std::min(least, present[j]);
        }
        if (least > limit) {
            return limit + 1;
        }
    }
    return std::min(row(a.size())[b.size()], limit + 1);
}

namespace {

/// How many letters a name has behind what all of its family begin with: "QUALITY_".
std::size_t ownLength(std::string_view name) {
    const std::size_t prefix = name.find('_');
    const bool isFamily = !name.empty() && name.front() >= 'A' && name.front() <= 'Z';
    return isFamily && prefix != std::string_view::npos ? name.size() - prefix - 1 : name.size();
}

} // namespace

NearestName::NearestName(std::string_view wanted)
    : wanted_(trimmed(wanted)), distance_(1 + std::max<std::size_t>(1, ownLength(wanted_) / 3)) {}

void NearestName::offer(std::string_view name) {
    if (name.empty() || (distance_ == 0 && best_ == name)) {
        return;
    }
    const std::size_t limit = best_.empty() ? distance_ - 1 : distance_;
    const std::size_t distance = editDistance(wanted_, name, limit);
    if (distance < distance_) {
        distance_ = distance;
        best_ = name;
        isOnly_ = true;
    } else if (distance == distance_ && !best_.empty() && name != best_) {
        isOnly_ = false;
    }
}

const std::string& NearestName::onlyName() const {
    static const std::string none;
    return isOnly_ ? best_ : none;
}

std::string NearestName::hint() const {
    return best_.empty() ? std::string() : "did you mean " + quoted(best_) + "?";
}

} // namespace varrocade
