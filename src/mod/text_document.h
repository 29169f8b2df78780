#pragma once
// A tagged text with the places of its elements in the file as it stands, and changes to it that leave all
// else in its place.

#include "data/format/clean_text.h"
#include "data/format/tag_tree.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Part of a text, from the character at `begin` to the one before `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// A file, parsed. `source` must live as long as the document.
class TextDocument {
public:
    explicit TextDocument(std::string_view source);

    [[nodiscard]] std::string_view source() const { return source_; }
    [[nodiscard]] const TagNode& node(std::uint32_t index) const { return tree_.nodes()[index]; }
    [[nodiscard]] std::vector<std::uint32_t> children(std::uint32_t index) const;

    /// An element with its tags.
    [[nodiscard]] TextRange rangeOf(std::uint32_t index) const;
    /// What stands between its tags, as it stands.
    [[nodiscard]] TextRange contentOf(std::uint32_t index) const;
    /// The pieces of an element's text that its value is joined from; comments and line ends lie between
    /// them. An empty text is one empty piece.
    [[nodiscard]] std::vector<TextRange> textPiecesOf(std::uint32_t index) const;

    /// What the lines of the file end with.
    [[nodiscard]] std::string_view lineEnd() const;
    /// The blanks and tabs that begin the line of an offset.
    [[nodiscard]] std::string_view indentAt(std::size_t offset) const;
    [[nodiscard]] std::size_t lineBegin(std::size_t offset) const;
    /// Where the line of an offset ends, before its line end.
    [[nodiscard]] std::size_t lineStop(std::size_t offset) const;
    /// The beginning of the line behind that.
    [[nodiscard]] std::size_t nextLine(std::size_t offset) const;
    /// Whether nothing but blanks, and maybe a comment, stands from an offset to the end of its line.
    [[nodiscard]] bool isLineOver(std::size_t offset) const;
    /// Whether nothing but blanks stands before it.
    [[nodiscard]] bool isLineFresh(std::size_t offset) const;

private:
    [[nodiscard]] std::size_t cleanedBegin(std::uint32_t index) const;
    [[nodiscard]] std::size_t cleanedClosing(std::uint32_t index) const;
    [[nodiscard]] std::size_t sourceOffset(std::size_t cleaned) const;

    std::string_view source_;
    TagTree tree_;
    std::vector<KeptPiece> pieces_;
};

/// Replacements in a text, made all at once.
class TextEdits {
public:
    /// Of edits at one place the earlier ones come first.
    void replace(TextRange range, std::string text) { edits_.push_back({range, std::move(text)}); }
    void insert(std::size_t at, std::string text) { replace({at, at}, std::move(text)); }

    [[nodiscard]] std::size_t count() const { return edits_.size(); }
    /// Takes out the edits from the one with this number on.
    [[nodiscard]] TextEdits takeFrom(std::size_t first);
    /// A part of the text with what is to be replaced in it.
    [[nodiscard]] std::string applied(std::string_view text, TextRange part) const;

private:
    struct Edit {
        TextRange range;
        std::string text;
    };
    std::vector<Edit> edits_;
};

} // namespace varrocade
