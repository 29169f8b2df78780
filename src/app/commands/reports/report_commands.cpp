#include "app/commands/reports/report_commands.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "editors/reports/mod_check_dialog.h"
#include "editors/reports/progress_dialog.h"
#include "editors/reports/result_dialog.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "tools/reports/duplicate_files.h"
#include "tools/reports/missing_voices.h"
#include "tools/reports/png_usage.h"
#include "tools/reports/unit_sheets.h"
#include "tools/reports/unused_files.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// Asks, makes a report, and writes its files into the base folder.
/// `title` is of the window that tells what was created.
void confirmThenReport(const std::string& caption, std::string question, std::string title,
                       FileReport& report) {
    if (showMessage({.text = std::move(question),
                     .caption = caption,
                     .buttons = MessageButtons::YesNo,
                     .icon = MessageIcon::Question}) != Answer::Yes ||
        !runJobInWindow(application().window, caption, report)) {
        return;
    }
    Workspace& workspace = theWorkspace();
    const std::vector<ReportFile> files = report.files();
    const std::vector<FileFailure> unwritten = writeReport(*workspace.files, baseFolder(workspace), files);
    for (const FileFailure& failure : unwritten) {
        showCouldNotSave(failure.path);
    }
    if (unwritten.size() < files.size()) {
        std::string details;
        for (const ReportFile& file : files) {
            const bool isWritten =
                std::none_of(unwritten.begin(), unwritten.end(), [&](const FileFailure& failure) {
                    return failure.path == baseFolder(workspace) + file.name;
                });
            details += isWritten ? file.name + "\n" : std::string();
        }
        if (!unwritten.empty()) {
            details += "\nThese could not be written:\n" + failureLines(unwritten);
        }
        if (const std::vector<FileFailure> unread = report.failures(); !unread.empty()) {
            details += "\nThese files could not be read and are left out:\n" + failureLines(unread);
        }
        showJobResult(application().window,
                      {.caption = std::move(title),
                       .summary = "Created " + std::to_string(files.size() - unwritten.size()) +
                                  " files in the folder:",
                       .folder = baseFolder(workspace),
                       .details = std::move(details)});
    }
}

/// The mod in use beside the installed game; without its folder the program's own is taken for it.
GameFolders foldersToCompare(const Workspace& workspace) {
    GameFolders folders = gameFolders(workspace);
    if (!workspace.gameFolder.empty()) {
        folders.program = workspace.gameFolder;
        if (folders.program.back() != '\\') {
            folders.program += '\\';
        }
    }
    return folders;
}

void checkMod(const std::string& caption, int dialogTemplate, ModCheck& check) {
    HWND window = application().window;
    if (!runJobInWindow(window, caption, check)) {
        return;
    }
    if (const std::vector<FileFailure> unread = check.failures(); !unread.empty()) {
        tellFailures(caption, "These files could not be looked at:\n", unread);
    }
    Workspace& workspace = theWorkspace();
    const ModCheckOutcome outcome =
        showModCheck(window, dialogTemplate, {*workspace.files, workspace.modFolder}, check.rows());
    if (outcome.hasMoved) {
        application().pictures.clear();
        refreshAll(workspace);
    }
    if (outcome.shown) {
        showFile(workspace, outcome.shown->category, outcome.shown->name);
    }
}

} // namespace

void generateSpreadsheets() {
    UnitSheets sheets(gameFolders(theWorkspace()));
    confirmThenReport(
        "Generate unit spreadsheets",
        "This will create the tab separated .csv files:\n\n    Vehicles.csv\n    Infantry.csv\n    AT "
        "Guns.csv\n\ncontaining the unit data",
        "Unit spreadsheets", sheets);
}

void generatePngUsage() {
    PngUsage usage(gameFolders(theWorkspace()));
    confirmThenReport(
        "Create PNG usage files",
        "This will create a .txt file showing which vehicle PNGs are not being used, and which PNGs are "
        "used by which vehicles",
        "PNG usage files", usage);
}

void checkDuplicateFiles() {
    DuplicateFiles check(foldersToCompare(theWorkspace()));
    checkMod("Check mod for unneeded duplicate files", IDD_CHECK_DUPLICATES, check);
}

void checkUnusedFiles() {
    UnusedFiles check(foldersToCompare(theWorkspace()));
    checkMod("Check mod for unused files", IDD_CHECK_UNUSED, check);
}

void checkVoiceFiles() {
    MissingVoices check(foldersToCompare(theWorkspace()));
    checkMod("Check mod for missing voice files", IDD_CHECK_VOICES, check);
}

} // namespace varrocade
