#include "editors/reports/mod_check_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/table_win32.h"
#include "editors/reports/progress_dialog.h"
#include "editors/reports/result_dialog.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, 2> CheckColumns = {{
    {"File", 370},
    {"Why", 420},
}};

struct CheckDialog {
    const ModCheckTools& tools;
    std::vector<ModCheckRow> rows;
    ModCheckOutcome outcome = {};
    std::size_t moved = 0;
};

/// The selected rows, in their order.
std::vector<std::size_t> selectedRows(HWND dialog) {
    std::vector<std::size_t> selected;
    HWND table = GetDlgItem(dialog, IDC_CHECK_ROWS);
    for (int row = ListView_GetNextItem(table, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(table, row, LVNI_SELECTED)) {
        selected.push_back(static_cast<std::size_t>(row));
    }
    return selected;
}

/// The unit or weapon that can be shown, or null: the game's own cannot be while a mod is in use.
const GameFile* chosenUser(HWND dialog, const CheckDialog& context) {
    const std::vector<std::size_t> selected = selectedRows(dialog);
    const LRESULT place = SendDlgItemMessageA(dialog, IDC_CHECK_USERS, LB_GETCURSEL, 0, 0);
    if (selected.size() != 1 || place < 0) {
        return nullptr;
    }
    const ReferenceUser& user = context.rows[selected.front()].users.at(static_cast<std::size_t>(place));
    return user.file && user.file->isOfMod ? &*user.file : nullptr;
}

/// Who names the file of the one selected row.
void showUsers(HWND dialog, const CheckDialog& context) {
    const std::vector<std::size_t> selected = selectedRows(dialog);
    DialogPort port(dialog);
    const bool canMove =
        !selected.empty() && std::all_of(selected.begin(), selected.end(),
                                         [&](std::size_t row) { return !context.rows[row].path.empty(); });
    port.setEnabled(IDC_CHECK_RECYCLE, canMove);
    SendDlgItemMessageA(dialog, IDC_CHECK_USERS, LB_RESETCONTENT, 0, 0);
    if (selected.size() == 1) {
        for (const ReferenceUser& user : context.rows[selected.front()].users) {
            SendDlgItemMessageA(dialog, IDC_CHECK_USERS, LB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(user.name.c_str()));
        }
        SendDlgItemMessageA(dialog, IDC_CHECK_USERS, LB_SETCURSEL, 0, 0);
    }
    port.setEnabled(IDC_CHECK_SHOW, chosenUser(dialog, context) != nullptr);
    port.setEnabled(IDC_CHECK_FOLDER, canMove && selected.size() == 1);
}

void fillRows(HWND dialog, const CheckDialog& context) {
    HWND table = GetDlgItem(dialog, IDC_CHECK_ROWS);
    ListView_DeleteAllItems(table);
    for (const ModCheckRow& row : context.rows) {
        std::array<std::string, CheckColumns.size()> cells = {row.below, row.reason};
        addTableRow(table, cells);
    }
    DialogPort(dialog).setText(IDC_CHECK_SUMMARY, modCheckSummary(context.rows.size(), context.moved));
    ListView_SetItemState(table, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    showUsers(dialog, context);
}

void moveSelected(HWND dialog, CheckDialog& context) {
    std::vector<ModCheckRow> moved;
    std::vector<std::string> paths;
    for (const std::size_t row : selectedRows(dialog)) {
        moved.push_back(context.rows[row]);
        paths.push_back(context.rows[row].path);
    }
    const std::string caption = "Move to recycle bin";
    if (moved.empty() || showMessage({.text = recycleQuestion(moved),
                                      .caption = caption,
                                      .buttons = MessageButtons::YesNo,
                                      .icon = MessageIcon::Question}) != Answer::Yes) {
        return;
    }
    RecycleJob job(context.tools.files, context.tools.modFolder, std::move(paths));
    runJobInWindow(dialog, caption, job);
    context.moved += job.moved().size();
    context.outcome.hasMoved = context.moved > 0;
    std::erase_if(context.rows, [&](const ModCheckRow& row) { return job.moved().count(row.path) != 0; });
    fillRows(dialog, context);
    if (!job.failures().empty()) {
        tellFailures(caption, "These files could not be moved:\n", job.failures());
    }
}

void showUser(HWND dialog, CheckDialog& context) {
    if (const GameFile* file = chosenUser(dialog, context)) {
        context.outcome.shown = *file;
        EndDialog(dialog, 0);
    }
}

void openFolderOf(HWND dialog, const CheckDialog& context) {
    if (const std::vector<std::size_t> selected = selectedRows(dialog); selected.size() == 1) {
        const std::string& path = context.rows[selected.front()].path;
        openFolder(dialog, path.substr(0, path.rfind('\\') + 1), "Open folder");
    }
}

void copyRows(HWND dialog, const CheckDialog& context) {
    std::string text;
    for (const ModCheckRow& row : context.rows) {
        text += row.below + "\t" + row.reason;
        for (const ReferenceUser& user : row.users) {
            text += "\t" + user.name;
        }
        text += "\r\n";
    }
    copyToClipboard(dialog, text);
}

void onCheckCommand(HWND dialog, CheckDialog& context, int control, int notification) {
    switch (control) {
    case IDC_CHECK_RECYCLE:
        moveSelected(dialog, context);
        break;
    case IDC_CHECK_FOLDER:
        openFolderOf(dialog, context);
        break;
    case IDC_CHECK_SHOW:
        showUser(dialog, context);
        break;
    case IDC_CHECK_USERS:
        if (notification == LBN_DBLCLK) {
            showUser(dialog, context);
        } else if (notification == LBN_SELCHANGE) {
            DialogPort(dialog).setEnabled(IDC_CHECK_SHOW, chosenUser(dialog, context) != nullptr);
        }
        break;
    case IDC_COPY_TABLE:
        copyRows(dialog, context);
        break;
    case IDOK:
    case IDCANCEL:
        EndDialog(dialog, 0);
        break;
    default:
        break;
    }
}

INT_PTR CALLBACK checkProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<CheckDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        prepareTable(GetDlgItem(dialog, IDC_CHECK_ROWS), CheckColumns);
        fillRows(dialog, *context);
        return TRUE;
    case WM_NOTIFY:
        if (context != nullptr && reinterpret_cast<const NMHDR*>(pointer)->code == LVN_ITEMCHANGED) {
            showUsers(dialog, *context);
        }
        return TRUE;
    case WM_COMMAND:
        onCheckCommand(dialog, *context, LOWORD(parameter), HIWORD(parameter));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

ModCheckOutcome showModCheck(HWND owner, int dialogTemplate, const ModCheckTools& tools,
                             std::vector<ModCheckRow> rows) {
    CheckDialog context{.tools = tools, .rows = std::move(rows)};
    runDialog(owner, dialogTemplate, checkProcedure, &context);
    return std::move(context.outcome);
}

} // namespace varrocade
