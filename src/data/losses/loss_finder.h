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

/// For `losses` none of which says that something is read back otherwise: where what was saved is not what
/// reading it and saving it again gives, adds one that names the first such line. Broken nesting and order
/// take values elsewhere, beyond what comparing them one by one can tell.
void addReadBack(std::string_view fileContent, std::string_view saved, std::string_view savedAgain,
                 std::vector<Finding>& losses);

} // namespace varrocade
