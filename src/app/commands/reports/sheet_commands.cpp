#include "app/commands/reports/sheet_commands.h"

#include "app/windows/application.h"
#include "app/workspace/record/chosen_records.h"
#include "app/workspace/record/sheet_work.h"
#include "app/workspace/record/unsaved_records.h"
#include "editors/reports/import_dialog.h"
#include "editors/reports/progress_dialog.h"
#include "editors/reports/result_dialog.h"
#include "platform/messages.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>

namespace varrocade {

namespace {

std::string importCaption() {
    return std::string(ImportStepName);
}

/// The path of the sheet that the user chooses, or empty.
std::string chosenSheet(const std::string& folder) {
    constexpr std::size_t longestPath = 4096;
    std::array<char, longestPath> path{};
    OPENFILENAMEA choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = application().window;
    choice.lpstrFilter = "Spreadsheets (*.csv)\0*.csv\0Texts (*.txt; *.tsv)\0*.txt;*.tsv\0All files\0*.*\0";
    choice.lpstrFile = path.data();
    choice.nMaxFile = static_cast<DWORD>(path.size());
    choice.lpstrInitialDir = folder.c_str();
    const std::string title = importCaption();
    choice.lpstrTitle = title.c_str();
    choice.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return GetOpenFileNameA(&choice) != FALSE ? path.data() : std::string();
}

/// Reads the sheet beside the files; null where the user cancelled it.
std::unique_ptr<SheetImport> readSheet(const std::string& path) {
    std::string content;
    if (!theWorkspace().files->read(path, content)) {
        showCouldNotLoad(path);
        return nullptr;
    }
    auto import = std::make_unique<SheetImport>(content, path.substr(path.find_last_of("\\/") + 1),
                                                gameFolders(theWorkspace()));
    return runJobInWindow(application().window, importCaption(), *import) ? std::move(import) : nullptr;
}

/// Saves what is unsaved of the files that the sheet changes, if the user wants that; false where he does
/// not, or something stays unsaved.
bool saveFirst(const std::vector<std::size_t>& unsaved) {
    Workspace& workspace = theWorkspace();
    constexpr std::size_t most = 15;
    std::string text = "The sheet changes files that have unsaved changes here:\n";
    const auto records = unsavedRecords(workspace);
    for (std::size_t i = 0; i < std::min(most, unsaved.size()); ++i) {
        text += "\n    " + unsavedRecordText(workspace, *records[unsaved[i]]);
    }
    if (unsaved.size() > most) {
        text += "\n    and " + std::to_string(unsaved.size() - most) + " more";
    }
    text += "\n\nOK saves them first and shows then what the sheet would change.";
    return showMessage({.text = std::move(text),
                        .caption = "Unsaved changes",
                        .buttons = MessageButtons::OkCancel,
                        .icon = MessageIcon::Question}) == Answer::Ok &&
           saveChosen(workspace, unsaved);
}

/// Tells what was written: each file once, with how many of its values were changed.
void tellImported(const SheetImport& import) {
    std::string details;
    const std::vector<SheetChange>& changes = import.changes();
    for (auto change = changes.begin(); change != changes.end();) {
        const auto end = std::find_if(change, changes.end(),
                                      [&](const SheetChange& other) { return other.unit != change->unit; });
        details += change->unit + ": " + std::to_string(end - change) +
                   (end - change == 1 ? " value\n" : " values\n");
        change = end;
    }
    showJobResult(application().window,
                  {.caption = "Imported spreadsheet",
                   .summary = import.writtenText() + " What the files held before is in the folder:",
                   .folder = import.backupFolder(),
                   .details = std::move(details)});
}

/// Writes all, or nothing where something fails or the user cancels.
void writeImport(const SheetImport& import) {
    Workspace& workspace = theWorkspace();
    FileReplacementJob job(*workspace.files, workspace.backups, import.base(), import.files());
    if (!runJobInWindow(application().window, importCaption(), job)) {
        job.putBack();
    } else if (job.failures().empty()) {
        noteImport(workspace, import);
        tellImported(import);
    }
    if (const std::vector<FileFailure> failures = job.failures(); !failures.empty()) {
        tellFailures(importCaption(), "Nothing was imported:\n", failures);
    }
}

} // namespace

void importSpreadsheet() {
    Workspace& workspace = theWorkspace();
    const std::string path = chosenSheet(baseFolder(workspace));
    if (path.empty()) {
        return;
    }
    std::unique_ptr<SheetImport> import = readSheet(path);
    if (!import) {
        return;
    }
    if (const auto unsaved = unsavedAmong(workspace, import->files()); !unsaved.empty()) {
        if (!saveFirst(unsaved)) {
            return;
        }
        import = readSheet(path);
    }
    if (import && confirmImport(application().window, *import)) {
        writeImport(*import);
    }
}

} // namespace varrocade
