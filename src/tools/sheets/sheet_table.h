#pragma once
// Tables as spreadsheet programs exchange them: tab separated cells, quoted where they must be. Written in
// plain ASCII where the texts are, otherwise in UTF-8 with a byte order mark, which these programs recognise;
// the game's own texts are 8-bit (Windows-1252).

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Appends a cell as it stands, between quotes where a tab, a quote, a line end or a blank at its end needs
/// them.
void appendPlainCell(std::string& out, std::string_view cell);

/// Appends a text as a cell. One that a spreadsheet program would take for a formula, a number, a date or a
/// truth value begins with an apostrophe there; so does one that begins with an apostrophe itself.
void appendTextCell(std::string& out, std::string_view text);

/// Whether a text gets that apostrophe.
bool needsMark(std::string_view text);

/// The text of a cell: without the apostrophe that marks it.
std::string_view withoutMark(std::string_view cell);

/// The bytes of a sheet's file.
std::string sheetFile(std::string table);

/// A text of the game from one of a sheet in UTF-8; nothing where it has a character that the game's files
/// cannot hold.
std::optional<std::string> gameText(std::string_view utf8);

struct TableRow {
    std::size_t line = 0; ///< of the file, from 1, on which it begins
    std::vector<std::string> cells;
};

/// A table as it stands in a file, with whatever separator, quotes and line ends its last program chose.
struct Spreadsheet {
    std::vector<std::string> headings;
    std::vector<TableRow> rows; ///< those with nothing in them left out
    bool isUtf8 = false;        ///< otherwise the bytes are the game's
    std::string problem = {};   ///< why it is no table; empty for one
};

Spreadsheet readTable(std::string_view file);

} // namespace varrocade
