#include "editors/reports/import_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "editors/reports/import_form.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <array>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, SheetChangeHeads.size()> ChangeColumns = {{
    {SheetChangeHeads[0], 44, true},
    {SheetChangeHeads[1], 220},
    {SheetChangeHeads[2], 250},
    {SheetChangeHeads[3], 130},
    {SheetChangeHeads[4], 130},
}};
constexpr std::array<TableColumn, SheetNoteHeads.size()> NoteColumns = {{
    {SheetNoteHeads[0], 44, true},
    {SheetNoteHeads[1], 730},
}};

class ImportDialog final : public DialogFrame {
public:
    explicit ImportDialog(const SheetImport& import)
        : DialogFrame(IDD_IMPORT_SHEET, "Import spreadsheet"), import_(import) {
        onButton(IDC_COPY_TABLE, [this] { copyToClipboard(handle(), importTable(import_)); });
    }

private:
    void init() override {
        port().setText(IDC_IMPORT_SUMMARY, importSummary(import_));
        HWND changes = GetDlgItem(handle(), IDC_IMPORT_CHANGES);
        prepareTable(changes, ChangeColumns);
        // Of a table of any length only what is seen is asked for.
        ListView_SetItemCountEx(changes, static_cast<int>(import_.changes().size()), LVSICF_NOINVALIDATEALL);
        ListView_SetItemState(changes, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        showValues();
        HWND notes = GetDlgItem(handle(), IDC_IMPORT_NOTES);
        prepareTable(notes, NoteColumns);
        for (auto& note : importNotes(import_)) {
            addTableRow(notes, note);
        }
        port().setEnabled(IDOK, canWrite(import_));
    }

    bool accept() override { return canWrite(import_); }
    bool notice(int, int) override { return true; }

    bool receive(UINT message, WPARAM, LPARAM detail) override {
        if (message != WM_NOTIFY) {
            return false;
        }
        const auto* head = reinterpret_cast<const NMHDR*>(detail);
        if (head->idFrom == IDC_IMPORT_CHANGES && head->code == LVN_GETDISPINFOA) {
            giveCell(reinterpret_cast<NMLVDISPINFOA*>(detail)->item);
        } else if (head->idFrom == IDC_IMPORT_CHANGES && head->code == LVN_ITEMCHANGED) {
            showValues();
        }
        return true;
    }

    /// Long texts, which the table has no room for.
    void showValues() {
        const int row = selectedTableRow(GetDlgItem(handle(), IDC_IMPORT_CHANGES));
        port().setText(IDC_IMPORT_VALUES,
                       row < 0 ? std::string()
                               : changedValues(import_.changes()[static_cast<std::size_t>(row)]));
    }

    void giveCell(LVITEMA& item) {
        const auto row = static_cast<std::size_t>(item.iItem);
        if ((item.mask & LVIF_TEXT) != 0 && row < import_.changes().size()) {
            cell_ = changeCells(import_.changes()[row]).at(static_cast<std::size_t>(item.iSubItem));
            item.pszText = cell_.data();
        }
    }

    const SheetImport& import_;
    std::string cell_; ///< that the table was given last
};

} // namespace

bool confirmImport(HWND owner, const SheetImport& import) {
    return ImportDialog(import).run(owner);
}

} // namespace varrocade
