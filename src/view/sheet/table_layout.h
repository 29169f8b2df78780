#pragma once
// How a sheet's table is laid out in a given width.

#include "view/sheet/data_sheet.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The pixels of a text in the table's font.
using TextWidth = std::function<int(std::string_view)>;

struct BandColumn {
    std::size_t place = 0; ///< of its cells in the rows
    int width = 0;         ///< in pixels
    bool isGlued = false;  ///< it is wide enough for plates that are not broken
};

/// The columns that stand side by side.
struct TableBand {
    std::vector<BandColumn> columns = {};
    bool isLast = false;
};

/// The columns of a table, mostly in one band. Where they are too wide, first the heads break between their
/// words, then the cells of the widest columns; words are never broken. What does not fit even so goes into
/// further bands below, each of which begins with the first column again. `gap`: pixels between two columns.
std::vector<TableBand> tableBands(const TextWidth& widthOf, const SheetTable& table, int width, int gap);

/// Keeps a plate's angle with its thickness where a cell is broken: "100 @ 24\xB0".
std::string gluedPlates(std::string_view cell);

} // namespace varrocade
