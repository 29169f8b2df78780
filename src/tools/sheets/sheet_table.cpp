#include "tools/sheets/sheet_table.h"

#include "data/format/texts.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varrocade {

namespace {

constexpr char TextMark = '\'';
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr unsigned char FirstNotAscii = 0x80;

/// The characters of Windows-1252 from 0x80 to 0x9F; the five that it leaves open stand for themselves.
constexpr std::array<std::uint16_t, 32> Middle1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) >= FirstNotAscii; });
}

void appendUtf8(std::string& out, char byte) {
    const auto value = static_cast<unsigned char>(byte);
    const std::uint16_t character = value >= FirstNotAscii && value < FirstNotAscii + Middle1252.size()
                                        ? Middle1252.at(value - FirstNotAscii)
                                        : std::uint16_t{value};
    const auto put = [&](unsigned bits) { out += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (character < FirstNotAscii) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

/// Takes the next character off a text in UTF-8; nothing where there is none of it.
std::optional<std::uint32_t> takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || length > text.size() || first > 0xF4) {
        return std::nullopt;
    }
    std::uint32_t character = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        character = character << 6U | (next & 0x3FU);
    }
    text.remove_prefix(length);
    return character;
}

bool isWholeUtf8(std::string_view text) {
    while (!text.empty()) {
        if (!takeCharacter(text)) {
            return false;
        }
    }
    return true;
}

bool endsRow(char c) {
    return c == '\r' || c == '\n';
}

/// Reads the cells of a table one after the other.
class TableReader {
public:
    TableReader(std::string_view text, char separator) : text_(text), separator_(separator) {}

    [[nodiscard]] bool isAtEnd() const { return text_.empty(); }

    TableRow row() {
        TableRow result{.line = line_, .cells = {cell()}};
        while (!text_.empty() && text_.front() == separator_) {
            text_.remove_prefix(1);
            result.cells.push_back(cell());
        }
        takeLineEnd();
        return result;
    }

private:
    std::string cell() {
        if (text_.starts_with('"')) {
            if (auto quoted = quotedCell()) {
                return std::move(*quoted);
            }
        }
        const std::size_t length =
            static_cast<std::size_t>(std::find_if(text_.begin(), text_.end(),
                                                  [this](char c) { return c == separator_ || endsRow(c); }) -
                                     text_.begin());
        std::string result(text_.substr(0, length));
        text_.remove_prefix(length);
        return result;
    }

    /// Nothing where the quotes do not enclose a whole cell: then they belong to a text that was not quoted.
    std::optional<std::string> quotedCell() {
        std::string result;
        std::size_t lines = 0;
        for (std::size_t at = 1; at < text_.size(); ++at) {
            if (text_[at] != '"') {
                lines += text_[at] == '\n' ? 1 : 0;
                result += text_[at];
            } else if (at + 1 < text_.size() && text_[at + 1] == '"') {
                result += text_[at++];
            } else if (at + 1 == text_.size() || text_[at + 1] == separator_ || endsRow(text_[at + 1])) {
                text_.remove_prefix(at + 1);
                line_ += lines;
                return result;
            } else {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    void takeLineEnd() {
        if (text_.starts_with('\r')) {
            text_.remove_prefix(1);
            if (!text_.starts_with('\n')) {
                ++line_;
                return;
            }
        }
        if (text_.starts_with('\n')) {
            text_.remove_prefix(1);
            ++line_;
        }
    }

    std::string_view text_;
    char separator_;
    std::size_t line_ = 1;
};

/// The first character that separates cells on the first line; a tab where none does.
char separatorOf(std::string_view text) {
    const std::string_view first = text.substr(0, text.find_first_of("\r\n"));
    if (first.find('\t') != std::string_view::npos) {
        return '\t';
    }
    const std::size_t place = first.find_first_of(";,");
    return place == std::string_view::npos ? '\t' : first[place];
}

constexpr bool separates(char c) {
    return c == '\t' || c == '"' || c == '\r' || c == '\n';
}

} // namespace

void appendPlainCell(std::string& out, std::string_view cell) {
    const bool isQuoted = std::any_of(cell.begin(), cell.end(), separates) ||
                          (!cell.empty() && (isBlank(cell.front()) || isBlank(cell.back())));
    if (!isQuoted) {
        out += cell;
        return;
    }
    out += '"';
    for (const char c : cell) {
        out.append(c == '"' ? 2 : 1, c);
    }
    out += '"';
}

bool needsMark(std::string_view text) {
    constexpr std::string_view formulas = "=+-@'\t\r\n";
    constexpr std::string_view numbers = "0123456789.,:/+-%eE ";
    if (text.empty()) {
        return false;
    }
    return formulas.find(text.front()) != std::string_view::npos ||
           text.find_first_not_of(numbers) == std::string_view::npos || equalsIgnoringCase(text, "true") ||
           equalsIgnoringCase(text, "false");
}

void appendTextCell(std::string& out, std::string_view text) {
    if (needsMark(text)) {
        std::string marked(1, TextMark);
        marked += text;
        appendPlainCell(out, marked);
    } else {
        appendPlainCell(out, text);
    }
}

std::string_view withoutMark(std::string_view cell) {
    return cell.starts_with(TextMark) ? cell.substr(1) : cell;
}

std::string sheetFile(std::string table) {
    if (isAscii(table)) {
        return table;
    }
    std::string file(ByteOrderMark);
    file.reserve(table.size() + table.size() / 16);
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < FirstNotAscii; };
    for (auto at = table.begin(); at != table.end();) {
        const auto end = std::find_if_not(at, table.end(), isPlain);
        file.append(at, end);
        at = end;
        if (at != table.end()) {
            appendUtf8(file, *at++);
        }
    }
    return file;
}

std::optional<std::string> gameText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<std::uint32_t> character = takeCharacter(utf8);
        if (!character) {
            return std::nullopt;
        }
        const auto middle = std::find(Middle1252.begin(), Middle1252.end(), *character);
        if (*character >= FirstNotAscii && middle != Middle1252.end()) {
            text += static_cast<char>(FirstNotAscii + (middle - Middle1252.begin()));
        } else if (*character < FirstNotAscii ||
                   (*character >= FirstNotAscii + Middle1252.size() && *character <= UINT8_MAX)) {
            text += static_cast<char>(*character);
        } else {
            return std::nullopt;
        }
    }
    return text;
}

Spreadsheet readTable(std::string_view file) {
    Spreadsheet table;
    if (file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF")) {
        table.problem = "it is UTF-16; save it as UTF-8 or as ASCII";
        return table;
    }
    if (file.starts_with(ByteOrderMark)) {
        file.remove_prefix(ByteOrderMark.size());
    }
    table.isUtf8 = isWholeUtf8(file);
    TableReader reader(file, separatorOf(file));
    if (!reader.isAtEnd()) {
        table.headings = reader.row().cells;
    }
    while (!reader.isAtEnd()) {
        TableRow row = reader.row();
        if (std::any_of(row.cells.begin(), row.cells.end(),
                        [](const std::string& c) { return !c.empty(); })) {
            table.rows.push_back(std::move(row));
        }
    }
    return table;
}

} // namespace varrocade
