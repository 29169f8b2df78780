#pragma once
// Comparing what a reader made of a file with what it makes of the file that the writer would put in its
// place.

#include "data/finding.h"
#include "data/losses/traced_file.h"

#include <span>
#include <string_view>
#include <vector>

namespace varrocade {

/// What is particular to a kind of file.
struct LossKnowledge {
    /// Whether an element of this name means something in some place.
    bool (*isElement)(std::string_view name);
    /// The fields whose values tell the entries of one element apart where a writer puts them in another
    /// order.
    std::span<const FieldId> keys;
    /// Whether a value that the writer leaves out is what its absence means, although it is not the field's
    /// default.
    bool (*goesWithoutSaying)(const FieldHistory& history, const TracedValue& value);
};

/// What of `file` is not in `saved`, or is otherwise there.
std::vector<Finding> findLosses(const TracedFile& file, const TracedFile& saved,
                                const LossKnowledge& knowledge);

} // namespace varrocade
