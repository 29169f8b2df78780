#include "app/commands/names/where_used_window.h"

#include "app/commands/mod/edit_mod.h"
#include "app/commands/names/rename_commands.h"
#include "app/windows/application.h"
#include "app/windows/part_selection.h"
#include "app/workspace/category_list.h"
#include "app/workspace/mod/mod_work.h"
#include "data/format/texts.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/table_win32.h"
#include "resources/resource.h"
#include "view/sheet/unit_problems.h"

#include <commctrl.h>

#include <array>
#include <chrono>
#include <set>

namespace varrocade {

namespace {

constexpr UINT_PTR SearchTimer = 1;
/// How long typing has to rest before the files are looked through.
constexpr UINT TypingRest = 300;

constexpr std::array<TableColumn, 4> UseColumns = {{
    {"File", 235},
    {"Line", 40, true},
    {"Value", 200},
    {"Kind", 75},
}};

std::array<std::string, UseColumns.size()> cellsOf(const NameUse& use) {
    return {use.file ? std::string(categoryName(use.file->category)) + ": " + use.file->name : use.below,
            use.line > 0 ? std::to_string(use.line) : std::string(), use.path,
            std::string(referenceWord(use.kind))};
}

/// Opens what a place is in, and selects the part that it belongs to.
void goTo(const NameUse& use) {
    Workspace& workspace = theWorkspace();
    if (!use.file) {
        if (workspace.modMode) {
            editModSettings();
        }
        return;
    }
    if (workspace.modMode && !use.file->isOfMod) {
        showGameUnits(workspace, true);
    }
    showFile(workspace, use.file->category, use.file->name);
    const SquadRecord* unit = openUnit(workspace);
    if (unit != nullptr && equalsIgnoringCase(unit->fileName, use.file->name)) {
        selectPart(partOfField(*unit, use.path));
    }
}

bool isMainWindowFree() {
    return IsWindowEnabled(application().window) != FALSE;
}

} // namespace

WhereUsedWindow::WhereUsedWindow() : DialogFrame(IDD_WHERE_USED, "Where Used") {
    onButton(IDC_SHOW_FILE, [this] { showSelected(); });
    onButton(IDC_USED_RENAME, [this] { renameShown(); });
    onButton(IDC_COPY_TABLE, [this] { copy(); });
}

void WhereUsedWindow::showChosen(HWND owner) {
    const bool wasOpen = isOpen();
    open(owner);
    if (wasOpen) {
        fill();
    }
}

void WhereUsedWindow::init() {
    prepareTable(GetDlgItem(handle(), IDC_USED_LIST), UseColumns);
    fill();
}

void WhereUsedWindow::fill() {
    const Record& record = theWorkspace().open.present.record;
    names_ = usedNames(record);
    std::vector<std::string> texts(names_.size());
    for (std::size_t i = 0; i < names_.size(); ++i) {
        texts[i] = textOf(names_[i]);
    }
    port().setChoices(IDC_USED_NAME, texts);
    if (!texts.empty()) {
        port().setText(IDC_USED_NAME, texts[usedNameOf(names_, record, application().display.selected)]);
    }
    port().focus(IDC_USED_NAME);
    search();
}

void WhereUsedWindow::search() {
    shown_ = usedNameOfText(names_, port().text(IDC_USED_NAME));
    std::vector<std::string> wanted = shown_.others;
    wanted.push_back(shown_.name);
    search_ = std::make_unique<NameSearch>(gameFolders(theWorkspace()), std::move(wanted));
    rows_ = 0;
    ListView_DeleteAllItems(GetDlgItem(handle(), IDC_USED_LIST));
    showSummary(false);
    updateButtons();
    SetTimer(handle(), SearchTimer, USER_TIMER_MINIMUM, nullptr);
}

/// A part of the search that nobody feels.
void WhereUsedWindow::work() {
    if (!search_) {
        search();
        return;
    }
    constexpr std::chrono::milliseconds slice{20};
    const auto end = std::chrono::steady_clock::now() + slice;
    bool isMore = true;
    while (isMore && std::chrono::steady_clock::now() < end) {
        isMore = search_->step();
    }
    addRows();
    showSummary(!isMore);
    if (!isMore) {
        KillTimer(handle(), SearchTimer);
        updateButtons();
    }
}

void WhereUsedWindow::addRows() {
    HWND table = GetDlgItem(handle(), IDC_USED_LIST);
    const bool isFirst = rows_ == 0;
    for (; rows_ < search_->uses().size(); ++rows_) {
        auto cells = cellsOf(search_->uses()[rows_]);
        addTableRow(table, cells);
    }
    if (isFirst && rows_ > 0) {
        ListView_SetItemState(table, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
}

void WhereUsedWindow::showSummary(bool isOver) {
    std::set<std::string> files;
    for (const NameUse& use : search_->uses()) {
        files.insert(use.below);
    }
    const std::size_t places = search_->uses().size();
    std::string text = !isOver ? "Looking through the files..."
                       : places == 0
                           ? "Nothing names it."
                           : std::to_string(places) + (places == 1 ? " place in " : " places in ") +
                                 std::to_string(files.size()) + (files.size() == 1 ? " file. " : " files. ") +
                                 "A double-click opens it.";
    port().setText(IDC_USED_SUMMARY, text);
}

const NameUse* WhereUsedWindow::selectedUse() const {
    const int row = selectedTableRow(GetDlgItem(handle(), IDC_USED_LIST));
    const bool isRow = search_ && row >= 0 && static_cast<std::size_t>(row) < rows_;
    return isRow ? &search_->uses()[static_cast<std::size_t>(row)] : nullptr;
}

void WhereUsedWindow::updateButtons() {
    HWND former = GetFocus();
    const NameUse* use = selectedUse();
    port().setEnabled(IDC_SHOW_FILE, use != nullptr && (use->file || theWorkspace().modMode));
    port().setEnabled(IDC_COPY_TABLE, rows_ > 0);
    if (!shown_.hasKind && search_ && !search_->uses().empty()) {
        shown_.kind = search_->uses().front().kind;
        shown_.hasKind = true;
    }
    port().setEnabled(IDC_USED_RENAME,
                      !shown_.name.empty() && shown_.hasKind && renameKindOf(shown_.kind).has_value());
    if (former != nullptr && IsWindowEnabled(former) == FALSE) {
        SetFocus(GetDlgItem(handle(), IDC_USED_NAME));
    }
}

void WhereUsedWindow::showSelected() {
    if (const NameUse* use = selectedUse(); use != nullptr && isMainWindowFree()) {
        const NameUse wanted = *use;
        goTo(wanted);
    }
}

void WhereUsedWindow::renameShown() {
    if (!isMainWindowFree()) {
        return;
    }
    const UsedName former = shown_;
    renameEverywhere(former);
    if (isOpen()) {
        fill();
    }
}

void WhereUsedWindow::copy() {
    std::string text;
    for (std::size_t row = 0; search_ && row < rows_; ++row) {
        const auto cells = cellsOf(search_->uses()[row]);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text += cells[i] + (i + 1 < cells.size() ? "\t" : "\r\n");
        }
    }
    copyToClipboard(handle(), text);
}

bool WhereUsedWindow::notice(int control, int notification) {
    if (control != IDC_USED_NAME) {
        return false;
    }
    if (notification == CBN_SELCHANGE) {
        completeChoice(handle(), control);
        search();
    } else if (notification == CBN_EDITCHANGE) {
        search_.reset();
        SetTimer(handle(), SearchTimer, TypingRest, nullptr);
    }
    return true;
}

bool WhereUsedWindow::receive(UINT message, WPARAM, LPARAM detail) {
    if (message == WM_TIMER) {
        work();
        return true;
    }
    if (message != WM_NOTIFY) {
        return false;
    }
    const UINT code = reinterpret_cast<const NMHDR*>(detail)->code;
    if (code == LVN_ITEMCHANGED) {
        updateButtons();
    } else if (code == NM_DBLCLK) {
        showSelected();
    }
    return true;
}

bool canShowWhereUsed() {
    return isRecordOpen(theWorkspace());
}

void showWhereUsed() {
    std::shared_ptr<WhereUsedWindow>& window = application().whereUsed;
    if (!window) {
        window = std::make_shared<WhereUsedWindow>();
    }
    window->showChosen(application().window);
}

} // namespace varrocade
