#include "cli/command_line.h"
#include "data/format/tag_tree.h"
#include "platform/file_operations.h"

namespace varrocade::cli {

namespace {

bool printIndent(std::size_t depth) {
    static const std::string blanks(4096, ' ');
    for (std::size_t rest = 2 * depth; rest > 0;) {
        const std::size_t length = rest < blanks.size() ? rest : blanks.size();
        if (!print(std::string_view(blanks).substr(0, length))) {
            return false;
        }
        rest -= length;
    }
    return true;
}

} // namespace

int treeCommand(Arguments arguments) {
    if (arguments.size() != 1) {
        complain("tree takes one file");
        return CouldNot;
    }
    std::string content;
    if (!readWholeFile(arguments[0], content)) {
        complain(arguments[0] + ": cannot be read: " + systemFiles().lastError());
        return CouldNot;
    }
    TagTree tree;
    tree.parse(content);
    const std::vector<TagNode>& nodes = tree.nodes();
    std::vector<std::uint32_t> depths(nodes.size(), 0);
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const TagNode& node = nodes[i];
        // The root, which is no element itself, stands one level above the first ones.
        depths[i] = node.parent == 0 ? 0 : depths[node.parent] + 1;
        const bool printed = printIndent(depths[i]) && print(node.name) &&
                             (node.text.empty() || (print(" = ") && print(node.text))) && print("\n");
        if (!printed) {
            return CouldNot;
        }
    }
    return Done;
}

} // namespace varrocade::cli
