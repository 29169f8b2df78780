#include "tag_tree_model.h"

namespace varrocade::tests {

namespace {

void appendPiece(std::string& cleaned, std::string piece) {
    piece = piece.substr(0, piece.find("//"));
    const std::size_t begin = piece.find_first_not_of(" \t");
    if (begin != std::string::npos) {
        cleaned += piece.substr(begin, piece.find_last_not_of(" \t") - begin + 1);
    }
}

void appendLine(std::string& cleaned, const std::string& line) {
    constexpr std::size_t pieceLength = 510;
    for (std::size_t at = 0; at < line.size(); at += pieceLength) {
        appendPiece(cleaned, line.substr(at, pieceLength));
    }
}

class Model {
public:
    Model(const std::string& text, std::size_t mostNodes) : text_(text), nodesLeft_(mostNodes) {}

    bool parse(std::size_t start, std::size_t end, ModelNode& node) {
        if (start < text_.size() && text_[start] != '<') {
            node.text = text_.substr(start, end - start);
            return true;
        }
        std::size_t cursor = start;
        while (cursor < end && text_[cursor] == '<') {
            const std::size_t tagEnd = text_.find('>', cursor);
            if (tagEnd == std::string::npos || tagEnd >= end) {
                break;
            }
            const std::string name = text_.substr(cursor + 1, tagEnd - cursor - 1);
            const std::string closingTag = "</" + name + ">";
            const std::size_t closing = text_.find(closingTag, cursor);
            if (closing == std::string::npos) {
                break;
            }
            if (nodesLeft_ == 0) {
                return false;
            }
            --nodesLeft_;
            ModelNode child{name, {}, {}};
            if (!parse(tagEnd + 1, closing, child)) {
                return false;
            }
            node.children.push_back(std::move(child));
            cursor = closing + closingTag.size();
        }
        return true;
    }

private:
    const std::string& text_;
    std::size_t nodesLeft_;
};

bool isSameNode(const TagTree& tree, std::uint32_t index, const ModelNode& model, std::uint32_t& next) {
    const TagNode& node = tree.nodes()[index];
    if (node.name != model.name || node.text != model.text || node.childCount != model.children.size()) {
        return false;
    }
    std::uint32_t child = node.firstChild;
    std::uint32_t last = TagNode::None;
    for (const ModelNode& modelChild : model.children) {
        // Depth first: the next node in the vector is the next one in the file.
        if (child != next || tree.nodes()[child].parent != index) {
            return false;
        }
        ++next;
        if (!isSameNode(tree, child, modelChild, next)) {
            return false;
        }
        last = child;
        child = tree.nodes()[child].nextSibling;
    }
    return child == TagNode::None && node.lastChild == last;
}

void describeNode(const TagTree& tree, std::uint32_t index, std::string& out) {
    const TagNode& node = tree.nodes()[index];
    out.append(node.name).append(node.text.empty() ? "" : "=").append(node.text);
    for (std::uint32_t child = node.firstChild; child != TagNode::None;
         child = tree.nodes()[child].nextSibling) {
        out += child == node.firstChild ? '{' : ' ';
        describeNode(tree, child, out);
    }
    out += node.firstChild == TagNode::None ? "" : "}";
}

} // namespace

std::string modelCleaned(std::string_view content) {
    std::string cleaned;
    std::string line;
    for (const char c : content) {
        // An empty line adds nothing, so each of CR and LF may end a line of its own.
        if (c == '\r' || c == '\n') {
            appendLine(cleaned, line);
            line.clear();
        } else {
            line += c;
        }
    }
    appendLine(cleaned, line);
    return cleaned;
}

bool parseModel(std::string_view cleaned, std::size_t mostNodes, ModelNode& root) {
    root = ModelNode();
    const std::string text(cleaned);
    return text.empty() || Model(text, mostNodes).parse(0, text.size(), root);
}

bool isSameTree(const TagTree& tree, const ModelNode& model) {
    std::uint32_t next = 1;
    return tree.root().parent == TagNode::None && isSameNode(tree, 0, model, next) &&
           next == tree.nodes().size();
}

std::string differenceFromModel(std::string_view document) {
    constexpr std::size_t mostNodes = 2000;
    TagTree tree;
    tree.parse(document);
    TagTree ofCleaned;
    ofCleaned.parseCleaned(document);
    const std::string cleaned = modelCleaned(document);
    if (ofCleaned.content() != cleaned) {
        return "cleaned to " + std::string(ofCleaned.content()) + "\nand not to " + cleaned;
    }
    ModelNode model;
    if (!parseModel(cleaned, mostNodes, model)) {
        return {};
    }
    if (!isSameTree(tree, model)) {
        return "parsed as " + describe(tree);
    }
    return isSameTree(ofCleaned, model) ? std::string() : "parsed when cleaned as " + describe(ofCleaned);
}

std::string describe(const TagTree& tree) {
    std::string out;
    describeNode(tree, 0, out);
    return out;
}

} // namespace varrocade::tests
