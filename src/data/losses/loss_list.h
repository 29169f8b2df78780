#pragma once
// Collecting what a save would lose.

#include "data/format/clean_text.h"
#include "data/format/tag_node.h"
#include "data/losses/save_loss.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// Finds lines without a pass over the file for each.
class LineMap {
public:
    explicit LineMap(std::string_view fileContent) : pieces_(keptPieces(fileContent)) {}

    [[nodiscard]] const std::vector<KeptPiece>& pieces() const { return pieces_; }
    /// The line of a character of the cleaned content.
    [[nodiscard]] std::size_t lineAt(std::size_t cleanedOffset) const;
    /// The first piece that begins behind a character of the cleaned content, as an index.
    [[nodiscard]] std::size_t firstPieceBehind(std::size_t cleanedOffset) const;

private:
    std::vector<KeptPiece> pieces_;
};

class LossList {
public:
    void add(std::size_t line, LossKind kind, std::string message);
    /// Everything by its line; the losses of one line in the order in which they were found.
    [[nodiscard]] std::vector<SaveLoss> take();

private:
    std::vector<SaveLoss> losses_;
    bool isFull_ = false;
};

/// A text between quotation marks, cut when it is long and without control characters.
std::string quoted(std::string_view text);

/// "<name>", cut when it is long.
std::string tagText(std::string_view name);

/// An element with its text, if it has one.
std::string elementText(const TagNode& node);

} // namespace varrocade
