#include "app/commands/weapon_problems.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "data/category.h"
#include "data/finding_text.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/table_win32.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <array>
#include <string>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, 3> ProblemColumns = {{
    {"File", 210},
    {"Problem", 280},
    {"Folder", 300},
}};

using ProblemCells = std::array<std::string, ProblemColumns.size()>;

struct ProblemsDialog {
    const std::vector<Finding>& problems;
    std::string chosen = {}; ///< the weapon to show when the dialog has closed
};

ProblemCells cellsOf(const Finding& problem) {
    const std::size_t name = problem.file.rfind('\\') + 1;
    return {problem.file.substr(name), sentence(problem), problem.file.substr(0, name)};
}

/// The weapon behind a problem, when the list of weapons has it.
std::string weaponOf(const Finding& problem) {
    const std::string folder = categoryFolder(baseFolder(theWorkspace()), Category::Weapons);
    return problem.file.starts_with(folder) && problem.file.ends_with(DataFileEnding)
               ? problem.file.substr(folder.size(),
                                     problem.file.size() - folder.size() - DataFileEnding.size())
               : std::string();
}

std::string selectedWeapon(HWND dialog, const ProblemsDialog& context) {
    const int row = selectedTableRow(GetDlgItem(dialog, IDC_PROBLEM_LIST));
    return row < 0 ? std::string() : weaponOf(context.problems[static_cast<std::size_t>(row)]);
}

void fillProblems(HWND dialog, const ProblemsDialog& context) {
    HWND table = GetDlgItem(dialog, IDC_PROBLEM_LIST);
    prepareTable(table, ProblemColumns);
    for (const Finding& problem : context.problems) {
        ProblemCells cells = cellsOf(problem);
        addTableRow(table, cells);
    }
    ListView_SetItemState(table, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void copyProblems(HWND dialog, const ProblemsDialog& context) {
    std::string text;
    for (const Finding& problem : context.problems) {
        text += problem.file + "\t" + sentence(problem) + "\r\n";
    }
    copyToClipboard(dialog, text);
}

void showSelected(HWND dialog, ProblemsDialog& context) {
    context.chosen = selectedWeapon(dialog, context);
    if (!context.chosen.empty()) {
        EndDialog(dialog, 0);
    }
}

INT_PTR CALLBACK problemsProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ProblemsDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        fillProblems(dialog, *context);
        return TRUE;
    case WM_NOTIFY:
        if (context != nullptr && reinterpret_cast<const NMHDR*>(pointer)->code == LVN_ITEMCHANGED) {
            DialogPort(dialog).setEnabled(IDC_SHOW_FILE, !selectedWeapon(dialog, *context).empty());
        } else if (context != nullptr && reinterpret_cast<const NMHDR*>(pointer)->code == NM_DBLCLK) {
            showSelected(dialog, *context);
        }
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(parameter) == IDOK || LOWORD(parameter) == IDCANCEL) {
            EndDialog(dialog, 0);
        } else if (LOWORD(parameter) == IDC_COPY_TABLE) {
            copyProblems(dialog, *context);
        } else if (LOWORD(parameter) == IDC_SHOW_FILE) {
            showSelected(dialog, *context);
        }
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void showWeaponProblems() {
    ProblemsDialog context{.problems = theWorkspace().catalogue.problems()};
    runDialog(application().window, IDD_WEAPON_PROBLEMS, problemsProcedure, &context);
    if (!context.chosen.empty()) {
        showFile(theWorkspace(), Category::Weapons, context.chosen);
    }
}

} // namespace varrocade
