#include "view/sheet/table_layout.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

namespace varrocade {

namespace {

/// What a column needs, in pixels.
struct ColumnNeeds {
    int whole = 0; ///< all cells in one line
    int glued = 0; ///< no plate broken
    int word = 0;  ///< no word broken
};

/// The longest piece between two places where a text may be broken: blanks, and in the name of a file, which
/// has none, underscores.
int longestPiece(const TextWidth& widthOf, std::string_view words) {
    const bool isName = words.find(' ') == std::string_view::npos;
    int longest = 0;
    while (!words.empty()) {
        const std::size_t found = words.find(isName ? '_' : ' ');
        const std::size_t end = found == std::string_view::npos ? words.size() : found + (isName ? 1 : 0);
        longest = std::max(longest, widthOf(words.substr(0, end)));
        words.remove_prefix(std::min(words.size(), isName ? end : end + 1));
    }
    return longest;
}

/// Calls `visit(column, cell, isHead)` for all cells.
template <typename Visit>
void forEachCell(const SheetTable& table, Visit visit) {
    const std::size_t columns = table.rows.front().cells.size();
    for (const SheetRow& row : table.rows) {
        for (std::size_t column = 0; column < std::min(columns, row.cells.size()); ++column) {
            visit(column, row.cells[column], &row == &table.rows.front());
        }
    }
}

std::vector<ColumnNeeds> needsOf(const TextWidth& widthOf, const SheetTable& table) {
    std::vector<ColumnNeeds> needs(table.rows.front().cells.size());
    forEachCell(table, [&](std::size_t column, const std::string& cell, bool isHead) {
        ColumnNeeds& need = needs[column];
        const int word = longestPiece(widthOf, cell);
        need.word = std::max(need.word, word);
        need.glued = std::max(need.glued, longestPiece(widthOf, gluedPlates(cell)));
        need.whole = std::max(need.whole, isHead ? word : widthOf(cell));
    });
    return needs;
}

int total(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// Narrows the widest columns, none below what it needs at least, until all fit or none can give more.
template <typename Least>
void narrow(std::vector<int>& widths, int free, Least leastOf) {
    for (int over = total(widths) - free; over > 0;) {
        std::size_t widest = widths.size();
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (widths[i] > leastOf(i) && (widest == widths.size() || widths[i] > widths[widest])) {
                widest = i;
            }
        }
        if (widest == widths.size()) {
            return;
        }
        const int less = std::min({over, std::max(1, widths[widest] / 8), widths[widest] - leastOf(widest)});
        widths[widest] -= less;
        over -= less;
    }
}

/// The widths of columns that stand side by side within `width`.
TableBand bandOf(std::span<const std::size_t> places, const std::vector<ColumnNeeds>& needs, int width,
                 int gap) {
    std::vector<int> widths;
    for (const std::size_t place : places) {
        widths.push_back(needs[place].whole);
    }
    const int free = width - gap * static_cast<int>(places.size() - 1);
    narrow(widths, free, [&](std::size_t i) { return needs[places[i]].glued; });
    narrow(widths, free, [&](std::size_t i) { return needs[places[i]].word; });
    // Not even words fit: a window as narrow as that is nobody's.
    narrow(widths, free, [](std::size_t) { return 1; });
    TableBand band;
    for (std::size_t i = 0; i < places.size(); ++i) {
        band.columns.push_back({places[i], widths[i], widths[i] >= needs[places[i]].glued});
    }
    return band;
}

} // namespace

std::string gluedPlates(std::string_view cell) {
    constexpr char unbroken = '\xA0';
    std::string glued(cell);
    for (std::size_t i = 0; i + 2 < glued.size(); ++i) {
        if (glued[i] == ' ' && glued[i + 2] == ' ' && (glued[i + 1] == '@' || glued[i + 1] == '/')) {
            glued[i] = unbroken;
            if (glued[i + 1] == '@') {
                glued[i + 2] = unbroken;
            }
        }
    }
    return glued;
}

std::vector<TableBand> tableBands(const TextWidth& widthOf, const SheetTable& table, int width, int gap) {
    const std::size_t columns = table.rows.front().cells.size();
    std::vector<int> whole(columns, 0);
    forEachCell(table, [&](std::size_t column, const std::string& cell, bool) {
        whole[column] = std::max(whole[column], widthOf(cell));
    });
    if (total(whole) + gap * static_cast<int>(columns - 1) <= width) {
        TableBand band{.isLast = true};
        for (std::size_t i = 0; i < columns; ++i) {
            band.columns.push_back({i, whole[i]});
        }
        return {std::move(band)};
    }
    const std::vector<ColumnNeeds> needs = needsOf(widthOf, table);
    std::vector<TableBand> bands;
    std::vector<std::size_t> places = {0};
    int least = needs.front().word;
    for (std::size_t i = 1; i < columns; ++i) {
        if (least + gap + needs[i].word > width && places.size() > 1) {
            bands.push_back(bandOf(places, needs, width, gap));
            places = {0};
            least = needs.front().word;
        }
        places.push_back(i);
        least += gap + needs[i].word;
    }
    bands.push_back(bandOf(places, needs, width, gap));
    bands.back().isLast = true;
    return bands;
}

} // namespace varrocade
