#include "app/commands/changed_files.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "app/workspace/record/chosen_records.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "editors/form/form_port_win32.h"
#include "resources/resource.h"

#include <optional>
#include <vector>

namespace varrocade {

namespace {

struct ChangedFilesDialog {
    std::optional<std::size_t> chosen; ///< the record to show when the dialog has closed
};

/// The places of the selected records.
std::vector<std::size_t> selectedRecords(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_CHANGED_LIST);
    const LRESULT count = SendMessageA(list, LB_GETSELCOUNT, 0, 0);
    std::vector<int> rows(count > 0 ? static_cast<std::size_t>(count) : 0);
    if (!rows.empty()) {
        SendMessageA(list, LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
    }
    return {rows.begin(), rows.end()};
}

void updateChangedButtons(HWND dialog) {
    const std::size_t count = selectedRecords(dialog).size();
    DialogPort port(dialog);
    port.setEnabled(IDOK, count == 1);
    port.setEnabled(IDC_SAVE_CHOSEN, count > 0);
    port.setEnabled(IDC_DISCARD_CHOSEN, count > 0);
    port.setEnabled(IDC_SAVE_ALL, canSaveAll(theWorkspace()));
}

/// Shows what is unsaved; the dialog goes when nothing is.
void fillChanged(HWND dialog) {
    const Workspace& workspace = theWorkspace();
    HWND list = GetDlgItem(dialog, IDC_CHANGED_LIST);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    const auto records = unsavedRecords(workspace);
    for (const OpenRecord* record : records) {
        SendMessageA(list, LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(unsavedRecordText(workspace, *record).c_str()));
    }
    SendMessageA(list, LB_SETSEL, TRUE, 0);
    // A button that is disabled would keep the keyboard.
    SetFocus(list);
    updateChangedButtons(dialog);
    if (records.empty()) {
        EndDialog(dialog, 0);
    }
}

void choose(HWND dialog, ChangedFilesDialog& context) {
    const std::vector<std::size_t> selected = selectedRecords(dialog);
    if (selected.size() == 1) {
        context.chosen = selected.front();
        EndDialog(dialog, 0);
    }
}

INT_PTR CALLBACK changedProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ChangedFilesDialog>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        fillChanged(dialog);
        return FALSE;
    }
    if (message != WM_COMMAND) {
        return FALSE;
    }
    switch (LOWORD(parameter)) {
    case IDOK:
        choose(dialog, *context);
        break;
    case IDC_CHANGED_LIST:
        if (HIWORD(parameter) == LBN_DBLCLK) {
            choose(dialog, *context);
        } else if (HIWORD(parameter) == LBN_SELCHANGE) {
            updateChangedButtons(dialog);
        }
        break;
    case IDC_SAVE_CHOSEN:
        saveChosen(theWorkspace(), selectedRecords(dialog));
        fillChanged(dialog);
        break;
    case IDC_DISCARD_CHOSEN:
        discardChosen(theWorkspace(), selectedRecords(dialog));
        fillChanged(dialog);
        break;
    case IDC_SAVE_ALL:
        saveAll(theWorkspace());
        fillChanged(dialog);
        break;
    case IDCANCEL:
        EndDialog(dialog, 0);
        break;
    default:
        break;
    }
    return TRUE;
}

} // namespace

void showChangedFiles() {
    ChangedFilesDialog context;
    runDialog(application().window, IDD_CHANGED_FILES, changedProcedure, &context);
    if (context.chosen) {
        showUnsaved(theWorkspace(), *context.chosen);
    }
}

} // namespace varrocade
