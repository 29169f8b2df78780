#include "app/commands/changed_files.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "editors/form/form_port_win32.h"
#include "resources/resource.h"

#include <optional>

namespace varrocade {

namespace {

struct ChangedFilesDialog {
    std::optional<std::size_t> chosen; ///< the record to show when the dialog has closed
};

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
    SendMessageA(list, LB_SETCURSEL, 0, 0);
    DialogPort(dialog).setEnabled(IDC_SAVE_ALL, canSaveAll(workspace));
    if (records.empty()) {
        EndDialog(dialog, 0);
    }
}

void choose(HWND dialog, ChangedFilesDialog& context) {
    const LRESULT row = SendDlgItemMessageA(dialog, IDC_CHANGED_LIST, LB_GETCURSEL, 0, 0);
    if (row >= 0) {
        context.chosen = static_cast<std::size_t>(row);
    }
    EndDialog(dialog, 0);
}

INT_PTR CALLBACK changedProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ChangedFilesDialog>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        fillChanged(dialog);
        return TRUE;
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
        }
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
