#pragma once
// The findings about one file while its rules run: rules name elements, offsets or values, and the places in
// the file are looked up for what is found only. Most files have nothing wrong.

#include "data/category.h"
#include "data/element_table.h"
#include "data/finding.h"
#include "data/format/source_map.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What a rule says beside the place; severity and default hint follow from the key.
struct Remark {
    std::string_view key;
    std::string message;
    std::string value = {};
    std::string expected = {};
    std::string hint = {};
    std::string field = {};
    std::string replacement = {};
};

class FileFindings {
public:
    /// All must live as long as this. `file` is what the findings call it.
    FileFindings(std::string_view file, const TagTree& tree, std::string_view content,
                 const ElementTable& table)
        : file_(file), tree_(tree), content_(content), table_(table) {}

    /// About an offset of the tree's content.
    void atOffset(std::size_t offset, Remark remark);
    /// About an offset of the file itself.
    void atByte(std::size_t offset, Remark remark);
    void atElement(const TagNode& element, Remark remark);
    void atText(const TagNode& element, Remark remark);
    /// About a value of the record, by its path from the record on. Where the file does not name the value,
    /// the place is that of the element around it.
    void atValue(std::string_view path, Remark remark);
    /// About the value that a finding of another part of the program names.
    void atValue(Finding finding);
    /// About the file as a whole.
    void atFile(Remark remark);

    [[nodiscard]] const std::string& file() const { return file_; }
    /// The outermost element, or the root where there is none.
    [[nodiscard]] const TagNode& firstElement() const {
        return tree_.nodes()[tree_.nodes().size() > 1 ? 1 : 0];
    }
    [[nodiscard]] const SourceMap& places();
    [[nodiscard]] bool empty() const { return found_.empty(); }
    [[nodiscard]] std::vector<Finding>& found() { return found_; }

private:
    void add(SourcePlace place, Remark remark);
    [[nodiscard]] SourcePlace placeOfValue(std::string_view path);

    std::string file_;
    const TagTree& tree_;
    std::string_view content_;
    const ElementTable& table_;
    std::optional<SourceMap> places_;
    std::optional<std::map<std::string, std::uint32_t, std::less<>>> nodes_; ///< by path
    std::vector<Finding> found_;
};

/// The path of what a finding is about: its field where that is a path, otherwise that of the value at its
/// place in the file. Findings about the text of a file name elements only.
std::string pathOfFinding(Category category, std::string_view content, const Finding& finding);

/// The elements of a file by the paths of what they set, as `forEachField` names them: values, and the
/// entries that hold them.
std::map<std::string, std::uint32_t, std::less<>> pathsOfElements(const TagTree& tree,
                                                                  const ElementTable& table);

} // namespace varrocade
