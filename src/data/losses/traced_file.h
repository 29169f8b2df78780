#pragma once
// A file with what its reader made of it.

#include "data/format/tag_tree.h"
#include "data/losses/reading_trace.h"

#include <cstdint>
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

} // namespace varrocade
