#pragma once
// What is left of a file of tagged text once comments, indentation and line ends are gone, and on which line
// a part of it stood.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Whether a text can be an element's value: read again it is the same, and nothing behind it is lost. "//"
/// begins a comment even within a value, "</" may close an element further out, and a value that begins with
/// "<" is taken for elements.
bool canBeValue(std::string_view text);

/// Strips comments, line ends and each line's leading and trailing blanks. CR LF, LF and a lone CR end a
/// line; a line of more than `LinePieceLength` characters is cleaned in pieces, as the game's own reader
/// does.
void cleanTaggedText(std::string_view fileContent, std::string& cleaned);

/// What cleaning keeps of a line, or of a piece of a long line.
struct KeptPiece {
    std::string_view text;     ///< a part of the file's content, never empty
    std::size_t line;          ///< from 1
    std::size_t cleanedOffset; ///< where it begins in the cleaned content
};
std::vector<KeptPiece> keptPieces(std::string_view fileContent);

/// The line (from 1) of the file on which the character at `cleanedOffset` of the cleaned content stands.
/// Cleans again, so it costs as much as reading: for messages only.
std::size_t lineOfOffset(std::string_view fileContent, std::size_t cleanedOffset);

/// The line (from 1) on which the character at an offset of a file stands.
std::size_t lineAt(std::string_view fileContent, std::size_t offset);

/// The game's buffer for a line: a longer one is cleaned in pieces of this many characters.
inline constexpr std::size_t LinePieceLength = 510;

} // namespace varrocade
