#pragma once
// Comparing what a reader made of a file with what it makes of the file that the writer would put in its
// place.

#include "data/finding.h"
#include "data/format/tag_tree.h"
#include "data/losses/reading_trace.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace varrocade {

/// A file's content with its tree, and with what its reader did once that has filled the trace.
struct TracedFile {
    explicit TracedFile(std::string_view fileContent) : content(fileContent) {
        tree.parseCleaned(fileContent);
    }

    std::string_view content;
    TagTree tree;
    ReadingTrace trace;
};

/// The first and the last element to set each field of each entry.
class FieldHistory {
public:
    explicit FieldHistory(const ReadingTrace& trace);

    /// Null where no element sets the field.
    [[nodiscard]] const TracedValue* first(std::uint32_t entry, FieldId field) const;
    [[nodiscard]] const TracedValue* last(std::uint32_t entry, FieldId field) const;

private:
    std::vector<const TracedValue*> values_; ///< by entry, field and node
};

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
