#include "editors/form/table_win32.h"

#include <commctrl.h>

namespace varrocade {

void prepareTable(HWND table, std::span<const TableColumn> columns) {
    ListView_SetExtendedListViewStyle(table, LVS_EX_FULLROWSELECT);
    HDC screen = GetDC(table);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(table, screen);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::string head(columns[i].head);
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.fmt = columns[i].isNumber ? LVCFMT_RIGHT : LVCFMT_LEFT;
        column.cx = MulDiv(columns[i].width, dpi, USER_DEFAULT_SCREEN_DPI);
        column.pszText = head.data();
        SendMessageA(table, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
    }
}

void addTableRow(HWND table, std::span<std::string> cells) {
    LVITEMA item{};
    item.iItem = ListView_GetItemCount(table);
    for (std::size_t column = 0; column < cells.size(); ++column) {
        item.mask = LVIF_TEXT;
        item.iSubItem = static_cast<int>(column);
        item.pszText = cells[column].data();
        SendMessageA(table, column == 0 ? LVM_INSERTITEMA : LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    }
}

int selectedTableRow(HWND table) {
    return static_cast<int>(SendMessageA(table, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

} // namespace varrocade
