#include "app/windows/problems/problems_view.h"

#include "app/windows/application.h"
#include "app/workspace/problems/fix_problems.h"
#include "editors/form/form_port_win32.h"
#include "resources/resource.h"
#include "tools/checks/engine/check_rules.h"

#include <commctrl.h>

#include <string>

namespace varrocade {

namespace {

ProblemsState& viewState() {
    return application().problems;
}

} // namespace

const Problem* chosenProblem() {
    const ProblemsState& problems = viewState();
    return problems.chosen < problems.shown.size() ? &problems.shown[problems.chosen] : nullptr;
}

void showProblemWords() {
    HWND dialog = viewState().window;
    if (dialog == nullptr) {
        return;
    }
    const Problem* problem = chosenProblem();
    const std::string fix = problem != nullptr ? fixName(viewState().book, *problem) : std::string();
    std::string text;
    if (problem != nullptr) {
        const Finding& finding = problem->finding;
        const CheckRule* rule = findCheckRule(finding.key);
        text = finding.message + (finding.hint.empty() ? "" : "; " + finding.hint) + " [" +
               std::string(finding.key) + "]";
        text += rule == nullptr ? std::string()
                                : "\r\n" + std::string(rule->sentence) + " " + std::string(rule->help);
        text += fix.empty() ? "" : "\r\nFix: " + fix;
    }
    SetDlgItemTextA(dialog, IDC_PROBLEMS_HELP, text.c_str());
    DialogPort port(dialog);
    port.setEnabled(IDOK, problem != nullptr);
    port.setEnabled(IDC_PROBLEMS_FIX, !fix.empty());
    port.setEnabled(IDC_PROBLEMS_FIX_ALL,
                    problem != nullptr &&
                        fixableLike(viewState().book, viewState().shown, *problem).size() > 1);
    port.setEnabled(IDC_PROBLEMS_COPY, !viewState().shown.empty());
}

void showProblemCount() {
    if (viewState().window == nullptr) {
        return;
    }
    ProblemsState& problems = viewState();
    std::string text = problems.book.check() == nullptr && problems.search.isRunning()
                           ? std::string()
                           : problemCounts(problems.shown);
    if (problems.search.isRunning()) {
        constexpr int thousandthsOfPercent = 10;
        text += (text.empty() ? "" : "; ") + std::string("checking all files: ") +
                std::to_string(problems.search.thousandths() / thousandthsOfPercent) + " %";
    } else if (!problems.told.empty()) {
        text += "; " + problems.told;
    }
    SetDlgItemTextA(problems.window, IDC_PROBLEMS_COUNT, text.c_str());
}

void showProblemList() {
    ProblemsState& problems = viewState();
    const Problem* former = chosenProblem();
    const Problem chosen = former != nullptr ? *former : Problem();
    problems.shown = problemsIn(problems.book, theWorkspace(), problems.view);
    problems.chosen = placeOf(problems.shown, chosen, problems.chosen).value_or(0);
    if (problems.window == nullptr) {
        return;
    }
    HWND list = GetDlgItem(problems.window, IDC_PROBLEMS_LIST);
    ListView_SetItemCountEx(list, static_cast<int>(problems.shown.size()), LVSICF_NOSCROLL);
    InvalidateRect(list, nullptr, FALSE);
    showChosenProblem();
    showProblemCount();
}

void showChosenProblem() {
    if (viewState().window != nullptr) {
        if (chosenProblem() != nullptr) {
            HWND list = GetDlgItem(viewState().window, IDC_PROBLEMS_LIST);
            const int row = static_cast<int>(viewState().chosen);
            ListView_SetItemState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            ListView_EnsureVisible(list, row, FALSE);
        }
        showProblemWords();
    }
}

} // namespace varrocade
