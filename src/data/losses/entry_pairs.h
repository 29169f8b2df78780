#pragma once
// Which entry of the saved file is which of the file.

#include "data/losses/traced_file.h"

#include <cstdint>
#include <span>
#include <vector>

namespace varrocade {

/// Pairs entries of the same element in paired entries, by the values of their key fields first, as writers
/// put some entries in another order, and then in the order of the files.
class EntryPairs {
public:
    EntryPairs(const TracedFile& file, const FieldHistory& history, const TracedFile& saved,
               const FieldHistory& savedHistory, std::span<const FieldId> keys);

    /// The entry in the saved file; 0 for 0, which stands for the whole file.
    [[nodiscard]] std::uint32_t partnerOf(std::uint32_t entry) const { return partners_[entry]; }
    /// Whether the saved file has no such entry.
    [[nodiscard]] bool isGone(std::uint32_t entry) const { return partners_[entry] == TagNode::None; }

private:
    std::vector<std::uint32_t> partners_;
};

} // namespace varrocade
