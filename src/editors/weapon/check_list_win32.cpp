#include "editors/weapon/check_list_win32.h"

#include "data/format/texts.h"

#include <commctrl.h>

#include <algorithm>

namespace varrocade {

namespace {

constexpr UINT StateImageShift = 12;
constexpr UINT CheckedImage = 2;

UINT imageOf(UINT state) {
    return (state & LVIS_STATEIMAGEMASK) >> StateImageShift;
}

void setChecked(HWND list, std::size_t index, bool isChecked) {
    LVITEMA item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(isChecked ? CheckedImage : 1U);
    SendMessageA(list, LVM_SETITEMSTATE, index, reinterpret_cast<LPARAM>(&item));
}

} // namespace

void prepareCheckList(HWND list) {
    SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    if ((GetWindowLongA(list, GWL_STYLE) & LVS_TYPEMASK) == LVS_REPORT) {
        RECT area{};
        GetClientRect(list, &area);
        LVCOLUMNA column{};
        column.mask = LVCF_WIDTH;
        column.cx = area.right;
        SendMessageA(list, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
    }
}

void showCheckList(HWND list, std::span<const std::string> entries, std::span<const std::string> checked) {
    const auto count = static_cast<std::size_t>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
    for (std::size_t i = entries.size(); i < count; ++i) {
        SendMessageA(list, LVM_DELETEITEM, entries.size(), 0);
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::string text = entries[i];
        LVITEMA item{};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(i);
        item.pszText = text.data();
        SendMessageA(list, i < count ? LVM_SETITEMA : LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        setChecked(list, i, std::any_of(checked.begin(), checked.end(), [&](const std::string& other) {
                       return equalsIgnoringCase(other, text);
                   }));
    }
}

std::optional<CheckChange> checkChangeOf(const NMHDR& notification) {
    if (notification.code != LVN_ITEMCHANGED) {
        return std::nullopt;
    }
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    const UINT former = imageOf(change.uOldState);
    const UINT present = imageOf(change.uNewState);
    // An entry without a box is just coming into being.
    if (former == present || former == 0 || present == 0 || change.iItem < 0) {
        return std::nullopt;
    }
    return CheckChange{.index = static_cast<std::size_t>(change.iItem), .isChecked = present == CheckedImage};
}

} // namespace varrocade
