#include "app/windows/menus/list_menu.h"

#include "app/commands/commands.h"
#include "app/windows/application.h"
#include "app/windows/menus/popup_menu.h"
#include "resources/resource.h"

#include <windowsx.h>

#include <array>

namespace varrocade {

namespace {

struct ListMenuRow {
    int command; ///< 0 for a line between
    const char* text;
};

constexpr auto Rows = std::to_array<ListMenuRow>({
    {IDC_EDIT_DETAILS, "&Details...\tEnter"},
    {0, nullptr},
    {IDC_DUPLICATE, "D&uplicate...\tCtrl+D"},
    {IDM_RENAME, "&Rename...\tF2"},
    {IDM_DELETE, "De&lete...\tDel"},
    {0, nullptr},
    {IDM_WHERE_USED, "&Where used...\tCtrl+U"},
    {IDM_RENAME_EVERYWHERE, "Rename &everywhere...\tShift+F2"},
    {0, nullptr},
    {IDM_SAVE, "&Save\tCtrl+Shift+S"},
    {IDM_DISCARD, "D&iscard changes"},
});

POINT menuPlace(HWND list, LPARAM detail) {
    POINT pixel{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    if (pixel.x == -1 && pixel.y == -1) {
        // From the keyboard: below the selected entry.
        RECT entry{};
        SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(SendMessageA(list, LB_GETCURSEL, 0, 0)),
                     reinterpret_cast<LPARAM>(&entry));
        pixel = {entry.left + (entry.bottom - entry.top), entry.bottom};
        ClientToScreen(list, &pixel);
    }
    return pixel;
}

} // namespace

void showListMenu(HWND list, LPARAM detail) {
    if (!isRecordOpen(theWorkspace())) {
        return;
    }
    const PopupMenu menu;
    for (const ListMenuRow& row : Rows) {
        if (row.command == 0) {
            menu.addSeparator();
        } else {
            menu.add(row.command, row.text, isCommandEnabled(row.command));
        }
    }
    menu.run(application().window, menuPlace(list, detail));
}

} // namespace varrocade
