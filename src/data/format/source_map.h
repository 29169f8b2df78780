#pragma once
// Where in a file something stands: lines and columns for messages, found without a pass over the file for
// each.

#include "data/format/clean_text.h"
#include "data/format/tag_tree.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace varrocade {

/// A place in a file, both counts from 1; columns are bytes.
struct SourcePlace {
    std::size_t line = 1;
    std::size_t column = 1;
    bool operator==(const SourcePlace&) const = default;
};

/// The lines of a file. Building it is one pass, finding a place a search among the lines. CR LF, LF and a
/// lone CR end a line.
class LineIndex {
public:
    /// `content` must live as long as the index.
    explicit LineIndex(std::string_view content);

    /// The place of the character at an offset of the file.
    [[nodiscard]] SourcePlace placeOf(std::size_t offset) const;
    /// A line without its end; empty behind the last one.
    [[nodiscard]] std::string_view line(std::size_t number) const;

private:
    std::string_view content_;
    std::vector<std::size_t> begins_;
};

/// Finds in a file what a tree was made of.
class SourceMap {
public:
    /// `tree` is what `fileContent` was parsed into; both must live as long as the map.
    SourceMap(const TagTree& tree, std::string_view fileContent);

    /// The place of the character at an offset of the tree's content.
    [[nodiscard]] SourcePlace placeAt(std::size_t offset) const;
    /// Where an element begins, with its "<".
    [[nodiscard]] SourcePlace placeOf(const TagNode& element) const;
    /// Where the text of an element begins; the element itself when it has none.
    [[nodiscard]] SourcePlace placeOfText(const TagNode& element) const;
    /// The place of a part of the file itself.
    [[nodiscard]] SourcePlace placeInFile(std::string_view part) const;

    /// What cleaning kept of the lines; none for a tree that was parsed as the file stands.
    [[nodiscard]] const std::vector<KeptPiece>& pieces() const { return pieces_; }
    /// The first piece that begins behind a character of the cleaned content, as an index.
    [[nodiscard]] std::size_t firstPieceBehind(std::size_t cleanedOffset) const;

private:
    const TagTree& tree_;
    std::string_view fileContent_;
    std::vector<KeptPiece> pieces_;
    LineIndex lines_;
};

} // namespace varrocade
