#include "app/commands/names/rename_commands.h"

#include "app/commands/names/name_dialogs.h"
#include "app/windows/application.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/names/rename_everywhere.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/chosen_records.h"
#include "app/workspace/record/unsaved_records.h"
#include "data/format/texts.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "editors/reports/progress_dialog.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <set>

namespace varrocade {

namespace {

enum class PlanAnswer : std::uint8_t { Cancel, Everywhere, FileOnly };

constexpr std::array<TableColumn, 5> ChangeColumns = {{
    {"File", 190},
    {"Line", 40, true},
    {"Value", 160},
    {"Name", 110},
    {"New name", 110},
}};

/// Shows what a renaming changes, before it does.
class PlanDialog final : public DialogFrame {
public:
    PlanDialog(const RenamePlan& plan, bool offersFileOnly)
        : DialogFrame(IDD_RENAME_EVERYWHERE, "Rename Everywhere"), plan_(plan),
          offersFileOnly_(offersFileOnly) {
        onButton(IDC_COPY_TABLE, [this] { copyToClipboard(handle(), text_); });
        onButton(IDC_RENAME_FILE_ONLY, [this] {
            answer_ = PlanAnswer::FileOnly;
            end();
        });
    }

    PlanAnswer ask(HWND owner) {
        run(owner);
        return answer_;
    }

private:
    void init() override;
    bool accept() override {
        answer_ = PlanAnswer::Everywhere;
        return true;
    }
    bool notice(int, int) override { return false; }

    const RenamePlan& plan_;
    bool offersFileOnly_;
    std::string text_; ///< of the table, for the clipboard
    PlanAnswer answer_ = PlanAnswer::Cancel;
};

void PlanDialog::init() {
    HWND table = GetDlgItem(handle(), IDC_RENAME_LIST);
    prepareTable(table, ChangeColumns);
    std::set<std::string> files;
    for (const NameChange& change : plan_.changes) {
        files.insert(change.file);
        std::array<std::string, ChangeColumns.size()> cells = {
            change.file, change.line > 0 ? std::to_string(change.line) : std::string(),
            change.path.empty() ? "the file's name" : change.path, change.from, change.to};
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text_ += cells[i] + (i + 1 < cells.size() ? "\t" : "\r\n");
        }
        addTableRow(table, cells);
    }
    const NameChange& first = plan_.changes.front();
    port().setText(IDC_RENAME_SUMMARY,
                   first.from + " becomes " + first.to + " in " + std::to_string(plan_.changes.size()) +
                       (plan_.changes.size() == 1 ? " place of " : " places of ") +
                       std::to_string(files.size()) + (files.size() == 1 ? " file" : " files") + " in " +
                       plan_.base + ". Each file is kept in Backups before; Undo takes all of it back.");
    std::string remarks;
    for (const std::string& remark : plan_.remarks) {
        remarks += (remarks.empty() ? "" : "\r\n") + remark;
    }
    port().setText(IDC_RENAME_REMARKS, remarks.empty() ? "Nothing else." : remarks);
    ShowWindow(GetDlgItem(handle(), IDC_RENAME_FILE_ONLY), offersFileOnly_ ? SW_SHOW : SW_HIDE);
}

/// What dialogs stand on: the one that is in front.
HWND frontWindow() {
    return GetLastActivePopup(application().window);
}

/// What a plan has come to; nothing where the user stopped it.
std::optional<RenamePlan> planInWindow(const RenameRequest& request) {
    RenamePlanner planner(request);
    // Most games are looked through before a window would be seen.
    constexpr std::chrono::milliseconds unseen{200};
    const auto end = std::chrono::steady_clock::now() + unseen;
    bool isMore = true;
    while (isMore && std::chrono::steady_clock::now() < end) {
        isMore = planner.step();
    }
    if (isMore && !runJobInWindow(frontWindow(), "Looking through all files", planner)) {
        return std::nullopt;
    }
    return planner.take();
}

/// Has the user save what the renaming would pass over; false where something is still unsaved.
bool saveWhatHasTheName(const RenamePlan& plan, const std::string& name) {
    Workspace& workspace = theWorkspace();
    const std::vector<std::size_t> places = unsavedWithName(workspace, plan, name);
    if (places.empty()) {
        return true;
    }
    std::string files;
    for (const std::size_t place : places) {
        files += "\n    " + unsavedRecordText(workspace, *unsavedRecords(workspace)[place]);
    }
    const Answer answer = showMessage({.text = "These files have the name and changes that are not saved:\n" +
                                               files + "\n\nSave them and go on?",
                                       .caption = "Rename Everywhere",
                                       .buttons = MessageButtons::OkCancel,
                                       .icon = MessageIcon::Warning});
    return answer == Answer::Ok && saveChosen(workspace, places);
}

std::string firstRefusals(const RenamePlan& plan) {
    constexpr std::size_t most = 8;
    std::string text;
    for (std::size_t i = 0; i < std::min(most, plan.refusals.size()); ++i) {
        text += (i == 0 ? "" : "\n") + plan.refusals[i];
    }
    return plan.refusals.size() > most ? text + "\n..." : text;
}

/// A plan for the name, once nothing that has it is unsaved; nothing where the user would rather not.
std::optional<RenamePlan> savedPlan(const RenameRequest& request) {
    auto plan = planInWindow(request);
    if (!plan || !plan->isPossible()) {
        return plan;
    }
    const std::string name = plan->changes.front().from;
    if (unsavedWithName(theWorkspace(), *plan, name).empty()) {
        return plan;
    }
    return saveWhatHasTheName(*plan, name) ? planInWindow(request) : std::nullopt;
}

/// Does what the plan says, after the user has seen it; "" keeps the dialog that asked for the name open.
NameCheck confirmPlan(const std::optional<RenamePlan>& plan) {
    if (!plan) {
        return "";
    }
    if (!plan->isPossible()) {
        return firstRefusals(*plan);
    }
    if (PlanDialog(*plan, false).ask(frontWindow()) != PlanAnswer::Everywhere ||
        !renameEverywhere(theWorkspace(), *plan)) {
        return "";
    }
    application().pictures.clear();
    theWorkspace().listener->recordChanged();
    return std::nullopt;
}

/// Whether a plan changes more than the file that it is for.
bool reachesFurther(const RenamePlan& plan) {
    return std::any_of(plan.changes.begin(), plan.changes.end(),
                       [&](const NameChange& change) { return change.file != plan.changes.front().file; });
}

/// Units of several categories may have one name: the open one is meant.
RenameRequest requestOf(RenameKind kind, const std::string& from, const std::string& to) {
    const Workspace& workspace = theWorkspace();
    const bool isOpenUnit = kind == RenameKind::Unit && equalsIgnoringCase(openFileName(workspace), from);
    return {.folders = gameFolders(workspace),
            .kind = kind,
            .from = (isOpenUnit ? std::string(categoryName(workspace.open.category)) + "\\" : "") + from,
            .to = to};
}

/// Where the name cannot follow everywhere: whether the file is to have it all the same.
bool mayRenameFileOnly(const RenamePlan& plan) {
    return showMessage({.text = "It cannot be renamed everywhere:\n\n" + firstRefusals(plan) +
                                "\n\nRename this file only?",
                        .caption = "Rename Everywhere",
                        .buttons = MessageButtons::OkCancel,
                        .icon = MessageIcon::Warning}) == Answer::Ok;
}

/// The new name of the open record's file: its own, and that in all files that have it where the user wants
/// so. `isDone` tells that the record goes by it already.
NameCheck takeOpenName(const std::string& name, bool& isDone) {
    Workspace& workspace = theWorkspace();
    if (auto refusal = refusalOfRenaming(workspace, name)) {
        return refusal;
    }
    // Only the lists of a mod name units.
    if (workspace.category != Category::Weapons && !workspace.modMode) {
        return renameFile(workspace, name);
    }
    const std::string former = openFileName(workspace);
    const RenameRequest request = requestOf(
        workspace.category == Category::Weapons ? RenameKind::Weapon : RenameKind::Unit, former, name);
    const auto plan = planInWindow(request);
    if (!plan) {
        return "";
    }
    if (!plan->isPossible()) {
        return mayRenameFileOnly(*plan) ? renameFile(workspace, name) : NameCheck("");
    }
    if (!reachesFurther(*plan)) {
        return renameFile(workspace, name);
    }
    switch (PlanDialog(*plan, true).ask(frontWindow())) {
    case PlanAnswer::Cancel:
        return "";
    case PlanAnswer::FileOnly:
        return renameFile(workspace, name);
    case PlanAnswer::Everywhere:
        break;
    }
    if (!saveWhatHasTheName(*plan, former)) {
        return "";
    }
    // What was saved just now is read again.
    const auto fresh = planInWindow(request);
    isDone = fresh && renameEverywhere(workspace, *fresh);
    return isDone ? NameCheck() : NameCheck("");
}

} // namespace

UsedName chosenName() {
    const Application& app = application();
    const Record& record = app.workspace.open.present.record;
    const std::vector<UsedName> names = usedNames(record);
    return names.empty() ? UsedName{} : names[usedNameOf(names, record, app.display.selected)];
}

void renameOpenFile() {
    Workspace& workspace = theWorkspace();
    if (!isRecordOpen(workspace) || !mayLeavePositions(workspace)) {
        return;
    }
    bool isDone = false;
    NameDialog dialog{
        .owner = application().window,
        .kind = NameDialogKind::Rename,
        .take = [&isDone](const NewFileChoice& choice) { return takeOpenName(choice.name, isDone); }};
    dialog.choice.name = openFileName(workspace);
    if (askForName(dialog) && !isDone) {
        showRenamed(workspace);
    }
}

bool canRenameChosen() {
    const UsedName name = chosenName();
    return !name.name.empty() && renameKindOf(name.kind).has_value();
}

void renameChosenEverywhere() {
    renameEverywhere(chosenName());
}

void renameEverywhere(const UsedName& name) {
    Workspace& workspace = theWorkspace();
    const auto kind = renameKindOf(name.kind);
    if (!kind || !mayLeavePositions(workspace)) {
        return;
    }
    NameDialog dialog{.owner = application().window,
                      .kind = NameDialogKind::Rename,
                      .take =
                          [&](const NewFileChoice& choice) {
                              return confirmPlan(savedPlan(requestOf(*kind, name.name, choice.name)));
                          },
                      .title = "Rename the " + std::string(renameWord(*kind)) + " everywhere"};
    const std::size_t last = name.name.find_last_of("\\/") + 1;
    dialog.choice.name = name.name.substr(last);
    askForName(dialog);
}

} // namespace varrocade
