// "What this mod changes".

#include "app/commands/mod/mod_commands.h"
#include "app/commands/mod/mod_files_dialog.h"
#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "app/workspace/mod/change_rows.h"
#include "app/workspace/record_files.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "mod/changes/changes_text.h"
#include "mod/changes/revert.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, 3> ChangeColumns = {{
    {"What", 310},
    {"The game's", 160},
    {"The mod's", 190},
}};

/// The changes of the mod as a table of files and their values; each can go back.
class ModChangesDialog final : public DialogFrame {
public:
    ModChangesDialog() : DialogFrame(IDD_MOD_CHANGES, "What this mod changes") {
        onButton(IDC_MOD_REVERT, [this] { revert(false); });
        onButton(IDC_MOD_REVERT_FILE, [this] { revert(true); });
        onButton(IDC_MOD_COPY_TEXT, [this] { copy(ChangesFormat::Plain); });
        onButton(IDC_MOD_COPY_MARKDOWN, [this] { copy(ChangesFormat::Markdown); });
        onButton(IDC_MOD_CHANGE_OPEN, [this] { open(); });
    }

    [[nodiscard]] bool hasReverted() const { return hasReverted_; }
    /// The file to go to, or none.
    [[nodiscard]] const FileChange* fileToOpen() const { return opened_; }

private:
    [[nodiscard]] HWND table() { return GetDlgItem(handle(), IDC_MOD_CHANGE_LIST); }

    void init() override {
        prepareTable(table(), ChangeColumns);
        compare();
    }

    bool accept() override { return true; }

    bool notice(int control, int notification) override {
        if (control == IDC_MOD_CHANGE_FILTER && notification == EN_CHANGE) {
            list();
        }
        return false;
    }

    bool receive(UINT message, WPARAM, LPARAM detail) override {
        const auto* notification = reinterpret_cast<const NMHDR*>(detail);
        if (message != WM_NOTIFY || notification->idFrom != IDC_MOD_CHANGE_LIST) {
            return false;
        }
        if (notification->code == LVN_ITEMCHANGED) {
            follow();
        } else if (notification->code == NM_DBLCLK) {
            open();
        }
        return false;
    }

    /// The files are compared as they are on the disk.
    void compare() {
        const Workspace& workspace = theWorkspace();
        changes_ = findModChanges(workspace.programFolder, workspace.modFolder);
        port().setText(IDC_MOD_CHANGE_COUNT, changesSummary(changes_));
        list();
    }

    void list() {
        SendMessageA(table(), WM_SETREDRAW, FALSE, 0);
        ListView_DeleteAllItems(table());
        rows_ = changeRows(changes_, port().text(IDC_MOD_CHANGE_FILTER));
        for (ChangeRow& row : rows_) {
            addTableRow(table(), row.cells);
        }
        SendMessageA(table(), WM_SETREDRAW, TRUE, 0);
        port().setEnabled(IDC_MOD_COPY_TEXT, !changes_.files.empty());
        port().setEnabled(IDC_MOD_COPY_MARKDOWN, !changes_.files.empty());
        follow();
    }

    [[nodiscard]] std::vector<std::size_t> chosen() {
        std::vector<std::size_t> places;
        for (int row = ListView_GetNextItem(table(), -1, LVNI_SELECTED); row >= 0;
             row = ListView_GetNextItem(table(), row, LVNI_SELECTED)) {
            places.push_back(static_cast<std::size_t>(row));
        }
        return places;
    }

    void follow() {
        const std::vector<std::size_t> places = chosen();
        const bool areValues = std::any_of(places.begin(), places.end(),
                                           [this](std::size_t row) { return rows_[row].value.has_value(); });
        port().setEnabled(IDC_MOD_REVERT, areValues);
        port().setEnabled(IDC_MOD_REVERT_FILE, !places.empty());
        port().setEnabled(IDC_MOD_CHANGE_OPEN, places.size() == 1);
    }

    void revert(bool areFiles) {
        const std::vector<std::size_t> places = chosen();
        const std::vector<WantedRevert> wanted = wantedReverts(changes_, rows_, places, areFiles);
        if (wanted.empty() || !mayRevertFiles(wanted)) {
            return;
        }
        std::vector<FileFailure> failures;
        for (const WantedRevert& one : wanted) {
            if (auto failure = revertOne(one)) {
                failures.push_back(std::move(*failure));
            } else {
                hasReverted_ = true;
            }
        }
        compare();
        const int row = std::min(static_cast<int>(places.front()), ListView_GetItemCount(table()) - 1);
        ListView_SetItemState(table(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(table(), row, FALSE);
        SetFocus(table());
        tell(failures);
    }

    static std::optional<FileFailure> revertOne(const WantedRevert& one) {
        Workspace& workspace = theWorkspace();
        return one.value != nullptr ? revertValueInFile(*workspace.files, workspace.backups,
                                                        {workspace.programFolder, workspace.modFolder},
                                                        one.file->category, one.file->name, one.value->path)
                                    : revertFile(*workspace.files, workspace.backups, workspace.modFolder,
                                                 one.file->category, one.file->name);
    }

    void tell(const std::vector<FileFailure>& failures) {
        constexpr std::size_t mostTold = 6;
        std::string text;
        for (std::size_t i = 0; i < std::min(failures.size(), mostTold); ++i) {
            text += (text.empty() ? "" : "\n\n") + failures[i].path + "\n" + failures[i].reason;
        }
        if (failures.size() > mostTold) {
            text += "\n\nand " + std::to_string(failures.size() - mostTold) + " more";
        }
        if (!text.empty()) {
            showMessage({.text = std::move(text), .caption = caption(), .icon = MessageIcon::Warning});
        }
    }

    bool mayRevertFiles(const std::vector<WantedRevert>& wanted) {
        std::vector<std::string> names;
        for (const WantedRevert& one : wanted) {
            if (one.value == nullptr) {
                names.push_back(one.file->name);
            }
        }
        return names.empty() || mayRemoveFromMod(names, caption());
    }

    void copy(ChangesFormat format) {
        const Workspace& workspace = theWorkspace();
        std::string text = changesText(changes_, format,
                                       workspace.modSettings ? workspace.modSettings->name : std::string());
        // Other programs expect the system's line ends on the clipboard.
        for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2)) {
            text.insert(at, 1, '\r');
        }
        copyToClipboard(handle(), text);
    }

    void open() {
        const std::vector<std::size_t> places = chosen();
        if (places.size() == 1) {
            opened_ = &changes_.files[rows_[places.front()].file];
            end();
        }
    }

    ModChanges changes_;
    std::vector<ChangeRow> rows_;
    const FileChange* opened_ = nullptr;
    bool hasReverted_ = false;
};

} // namespace

void showModChanges() {
    ModChangesDialog dialog;
    dialog.run(application().window);
    Workspace& workspace = theWorkspace();
    if (dialog.hasReverted()) {
        loadCatalogue(workspace);
        workspace.listener->listOutdated(workspace);
        noticeOutsideChanges(workspace);
    }
    if (const FileChange* file = dialog.fileToOpen()) {
        showFile(workspace, file->category, file->name);
    }
}

} // namespace varrocade
