#pragma once
// Where the readers of units and weapons put what they find.

#include "data/finding.h"
#include "data/format/source_map.h"

#include <optional>
#include <string_view>

namespace varrocade {

/// A file tells at most so much about itself.
inline constexpr std::size_t MaxReaderFindings = 100;

/// Gives findings their file and place, and takes at most `MaxReaderFindings`.
class ReaderFindings {
public:
    /// `file` is what the findings call it. All must live as long as this.
    ReaderFindings(Diagnostics& found, std::string_view file, const TagTree& tree,
                   std::string_view fileContent)
        : found_(found), file_(file), tree_(tree), fileContent_(fileContent) {}

    /// A finding about an element as a whole.
    void addAtElement(const TagNode& element, Finding finding);
    /// A finding about the text of an element.
    void addAtText(const TagNode& element, Finding finding);
    /// An element that found no room in the record. `what`: such as "more than 13 components".
    void addLeftOut(const TagNode& element, std::string_view what);

private:
    [[nodiscard]] bool isFull() const { return found_.size() >= MaxReaderFindings; }
    const SourceMap& places();
    void add(SourcePlace place, Finding finding);

    Diagnostics& found_;
    std::string_view file_;
    const TagTree& tree_;
    std::string_view fileContent_;
    std::optional<SourceMap> places_; ///< made for the first finding: most files have none
};

} // namespace varrocade
