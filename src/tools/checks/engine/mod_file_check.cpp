#include "tools/checks/engine/mod_file_check.h"

#include "data/element_table.h"
#include "data/finding_text.h"
#include "mod/mod_elements.h"
#include "mod/mod_settings.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/suppressions.h"
#include "tools/checks/rules/element_rules.h"
#include "tools/checks/rules/mod_name_rules.h"
#include "tools/checks/rules/structure_rules.h"

#include <algorithm>
#include <array>
#include <span>
#include <tuple>
#include <utility>

namespace varrocade {

namespace {

namespace ck = check_key;

/// What is far larger than a mod's settings ever are is read, but not looked through.
constexpr std::size_t LargestModFile = std::size_t{4} << 20U;

constexpr auto StructureKeys =
    std::to_array<std::string_view>({ck::EmptyFile, ck::UnclosedElement, ck::StrayClosingTag, ck::CrossedTags,
                                     ck::BrokenTag, ck::StrayText, ck::NestedInItself});

/// Editors put such a mark before a text that they save as Unicode.
bool hasUnicodeMark(std::string_view content) {
    constexpr auto marks = std::to_array<std::string_view>({"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"});
    return std::any_of(marks.begin(), marks.end(),
                       [content](std::string_view mark) { return content.starts_with(mark); });
}

void checkModValues(std::span<const TagNode> nodes, FileFindings& out) {
    const ElementTable& table = modElements();
    std::vector<std::uint8_t> places(nodes.size(), 0);
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const TagNode& node = nodes[i];
        const bool isInForeign = node.parent != 0 && places[node.parent] == 0;
        const ElementRow* row = isInForeign ? nullptr : table.find(places[node.parent], node.name);
        if (row == nullptr) {
            continue;
        }
        places[i] = row->place;
        if (row->place == 0 && node.childCount == 0 && !row->fields.empty()) {
            checkValueText(node, *row->fields.front(), out);
        }
    }
}

} // namespace

std::vector<Finding> checkModFile(std::string_view content, const CheckKnowledge* knowledge) {
    if (content.size() > LargestModFile) {
        return {};
    }
    TagTree tree;
    tree.parse(content);
    FileFindings out(ModFileName, tree, content, modElements());
    const std::vector<TagNode>& nodes = tree.nodes();
    const bool hasSettings = std::any_of(nodes.begin(), nodes.end(), [](const TagNode& node) {
        return node.parent == 0 && node.name == mod_element::Mod;
    });
    const bool isMarked = !hasSettings && hasUnicodeMark(content);
    if (!isMarked && !tree.isVerbatim() &&
        tree.content().find(tagText(mod_element::Mod)) != std::string::npos) {
        std::vector<TagNode> mended;
        checkStructure(tree.content(), modElements(), out, mended);
        checkModValues(mended, out);
    } else if (!isMarked) {
        checkModValues(nodes, out);
    }
    if (!hasSettings && out.empty()) {
        out.atFile({.key = ck::EmptyFile,
                    .message = isMarked
                                   ? "the file begins with a mark of Unicode, so that nothing of it is read"
                                   : "the file holds no <mod>, so that nothing of it is read",
                    .hint = isMarked ? "save it as ANSI text" : "settings stand between <mod> and </mod>"});
    }
    if (knowledge != nullptr) {
        checkModNames(*knowledge, tree, content, out);
    }
    std::vector<Finding> found = std::move(out.found());
    std::stable_sort(found.begin(), found.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
    applyComments(content, out.file(), found);
    if (knowledge == nullptr) {
        // A comment may be about what was not looked at.
        std::erase_if(found, [](const Finding& finding) { return finding.key == ck::BadSuppression; });
    }
    return found;
}

std::vector<Finding> checkModFileOf(const std::string& modFolder) {
    std::string content;
    return readWholeFile(modFolder + std::string(ModFileName), content) ? checkModFile(content)
                                                                        : std::vector<Finding>();
}

bool hidesSettings(const Finding& finding) {
    return std::find(StructureKeys.begin(), StructureKeys.end(), finding.key) != StructureKeys.end();
}

} // namespace varrocade
