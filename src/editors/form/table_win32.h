#pragma once
// A list view that shows a table.

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

struct TableColumn {
    std::string_view head;
    int width = 0;         ///< pixels at 96 dpi
    bool isNumber = false; ///< aligned to the right
};

/// Gives an empty list view its columns.
void prepareTable(HWND table, std::span<const TableColumn> columns);

/// Appends a row; `cells` are as many as the columns.
void addTableRow(HWND table, std::span<std::string> cells);

/// The place of the selected row, or -1.
int selectedTableRow(HWND table);

} // namespace varrocade
