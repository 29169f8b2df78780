// The window "Problems".

#include "app/windows/problems/problems_window.h"

#include "app/windows/application.h"
#include "app/windows/problems/open_problems.h"
#include "app/windows/problems/problem_search.h"
#include "app/windows/problems/problems_view.h"
#include "app/workspace/problems/fix_problems.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/table_win32.h"
#include "resources/resource.h"
#include "tools/checks/engine/check_rules.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace varrocade {

namespace {

constexpr UINT_PTR SearchTimer = 1;
constexpr UINT SearchPollMilliseconds = 50;

constexpr std::array<int, ProblemColumnCount> ColumnWidths = {64, 180, 44, 130, 230, 146};

struct ScopeRow {
    ProblemScope scope;
    const char* name;
};

constexpr auto Scopes = std::to_array<ScopeRow>({{ProblemScope::OpenRecord, "Open file"},
                                                 {ProblemScope::Category, "Category"},
                                                 {ProblemScope::Folder, "Whole folder"}});

/// How a control follows the size of the window.
struct Anchor {
    int control;
    bool movesRight;
    bool movesDown;
    bool growsWide;
    bool growsHigh;
};

constexpr auto Anchors = std::to_array<Anchor>({{IDC_PROBLEMS_COUNT, false, false, true, false},
                                                {IDC_PROBLEMS_LIST, false, false, true, true},
                                                {IDC_PROBLEMS_HELP, false, true, true, false},
                                                {IDOK, false, true, false, false},
                                                {IDC_PROBLEMS_FIX, false, true, false, false},
                                                {IDC_PROBLEMS_FIX_ALL, false, true, false, false},
                                                {IDC_PROBLEMS_COPY, false, true, false, false},
                                                {IDC_PROBLEMS_AGAIN, false, true, false, false},
                                                {IDCANCEL, true, true, false, false}});

ProblemsState& windowState() {
    return application().problems;
}

HWND listOf(HWND dialog) {
    return GetDlgItem(dialog, IDC_PROBLEMS_LIST);
}

void fillCell(NMLVDISPINFOA& info) {
    const auto row = static_cast<std::size_t>(info.item.iItem);
    if ((info.item.mask & LVIF_TEXT) != 0 && row < windowState().shown.size() && info.item.cchTextMax > 0) {
        const auto cells = cellsOf(windowState().shown[row]);
        lstrcpynA(info.item.pszText, cells.at(static_cast<std::size_t>(info.item.iSubItem)).c_str(),
                  info.item.cchTextMax);
    }
}

/// A second click on a head turns the order round.
void sortBy(ProblemColumn column) {
    ProblemView& view = windowState().view;
    view.isDescending = view.sortedBy == column && !view.isDescending;
    view.sortedBy = column;
    showProblemList();
}

void readView(HWND dialog) {
    ProblemView& view = windowState().view;
    const LRESULT scope = SendDlgItemMessageA(dialog, IDC_PROBLEMS_SCOPE, CB_GETCURSEL, 0, 0);
    view.scope = scope >= 0 ? Scopes.at(static_cast<std::size_t>(scope)).scope : view.scope;
    DialogPort port(dialog);
    view.showsErrors = port.isChecked(IDC_PROBLEMS_ERRORS);
    view.showsWarnings = port.isChecked(IDC_PROBLEMS_WARNINGS);
    view.showsNotes = port.isChecked(IDC_PROBLEMS_NOTES);
    showProblemList();
}

void fix(const std::vector<Problem>& problems) {
    if (IsWindowEnabled(application().window) == FALSE) {
        return;
    }
    const FixResult result = fixProblems(windowState().book, theWorkspace(), problems);
    const auto counted = [](std::size_t count, const std::string& what) {
        return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    windowState().told = counted(result.fixed, "problem") + " fixed in " + counted(result.files, "file");
    if (result.inMemory > 0) {
        windowState().told += ", " + std::to_string(result.inMemory) + " of them not saved yet";
    }
    theWorkspace().listener->recordChanged();
    theWorkspace().listener->marksChanged();
    showProblemList();
}

void openChosen() {
    if (const Problem* problem = chosenProblem()) {
        windowState().hasGone = true;
        goToProblem(Problem(*problem), true);
    }
}

ProblemsLayout& firstLayout() {
    return windowState().layout;
}

void keepLayout(HWND dialog) {
    ProblemsLayout& layout = firstLayout();
    RECT client{};
    RECT frame{};
    GetClientRect(dialog, &client);
    GetWindowRect(dialog, &frame);
    layout.client = {client.right, client.bottom};
    layout.frame = {frame.right - frame.left, frame.bottom - frame.top};
    for (const Anchor& anchor : Anchors) {
        RECT place{};
        GetWindowRect(GetDlgItem(dialog, anchor.control), &place);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
        layout.places[anchor.control] = place;
    }
}

void layOutDialog(HWND dialog, int width, int height) {
    const ProblemsLayout& layout = firstLayout();
    const LONG wider = width - layout.client.cx;
    const LONG higher = height - layout.client.cy;
    for (const Anchor& anchor : Anchors) {
        const auto found = layout.places.find(anchor.control);
        if (found == layout.places.end()) {
            continue;
        }
        const RECT& place = found->second;
        SetWindowPos(
            GetDlgItem(dialog, anchor.control), nullptr, place.left + (anchor.movesRight ? wider : 0),
            place.top + (anchor.movesDown ? higher : 0),
            place.right - place.left + (anchor.growsWide ? wider : 0),
            place.bottom - place.top + (anchor.growsHigh ? higher : 0), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    InvalidateRect(dialog, nullptr, TRUE);
}

/// At the lower edge of the main window: list, drawing and the top of the sheet stay in sight.
void placeBelow(HWND dialog) {
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    RECT around{};
    GetWindowRect(application().window, &around);
    const SIZE size = firstLayout().frame;
    const LONG right = std::min(around.right, work.right);
    const LONG bottom = std::min(around.bottom, work.bottom);
    SetWindowPos(dialog, nullptr, std::max(work.left, right - size.cx), std::max(work.top, bottom - size.cy),
                 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void fillDialog(HWND dialog) {
    const ProblemView& view = windowState().view;
    for (const ScopeRow& row : Scopes) {
        SendDlgItemMessageA(dialog, IDC_PROBLEMS_SCOPE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.name));
    }
    SendDlgItemMessageA(dialog, IDC_PROBLEMS_SCOPE, CB_SETCURSEL, static_cast<WPARAM>(view.scope), 0);
    DialogPort port(dialog);
    port.setChecked(IDC_PROBLEMS_ERRORS, view.showsErrors);
    port.setChecked(IDC_PROBLEMS_WARNINGS, view.showsWarnings);
    port.setChecked(IDC_PROBLEMS_NOTES, view.showsNotes);
    std::array<TableColumn, ProblemColumnCount> columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns.at(i) = {problemHeads().at(i), ColumnWidths.at(i),
                         i == static_cast<std::size_t>(ProblemColumn::Line)};
    }
    prepareTable(listOf(dialog), columns);
    keepLayout(dialog);
    placeBelow(dialog);
    SetTimer(dialog, SearchTimer, SearchPollMilliseconds, nullptr);
}

bool notify(HWND dialog, const NMHDR& header, LPARAM detail) {
    if (header.idFrom != IDC_PROBLEMS_LIST) {
        return false;
    }
    switch (header.code) {
    case LVN_GETDISPINFOA:
        fillCell(*reinterpret_cast<NMLVDISPINFOA*>(detail));
        return true;
    case LVN_COLUMNCLICK:
        sortBy(static_cast<ProblemColumn>(reinterpret_cast<const NMLISTVIEW*>(detail)->iSubItem));
        return true;
    case LVN_ITEMCHANGED:
        if (const int row = selectedTableRow(listOf(dialog)); row >= 0) {
            windowState().chosen = static_cast<std::size_t>(row);
            showProblemWords();
        }
        return true;
    case NM_DBLCLK:
        openChosen();
        return true;
    default:
        return false;
    }
}

void pressed(HWND dialog, int control) {
    const Problem* problem = chosenProblem();
    switch (control) {
    case IDOK:
        openChosen();
        break;
    case IDCANCEL:
        DestroyWindow(dialog);
        break;
    case IDC_PROBLEMS_FIX:
        if (problem != nullptr) {
            fix({*problem});
        }
        break;
    case IDC_PROBLEMS_FIX_ALL:
        if (problem != nullptr) {
            fix(fixableLike(windowState().book, windowState().shown, *problem));
        }
        break;
    case IDC_PROBLEMS_COPY:
        copyToClipboard(dialog, problemsAsText(windowState().shown));
        break;
    case IDC_PROBLEMS_AGAIN:
        windowState().told.clear();
        searchProblemsAgain();
        break;
    case IDC_PROBLEMS_ERRORS:
    case IDC_PROBLEMS_WARNINGS:
    case IDC_PROBLEMS_NOTES:
        readView(dialog);
        break;
    default:
        break;
    }
}

/// The first problem, where somebody has pressed F8 before any was known.
void goToDueProblem() {
    ProblemsState& problems = windowState();
    if (std::exchange(problems.isStepDue, false) && !problems.shown.empty()) {
        problems.chosen = 0;
        problems.hasGone = true;
        showChosenProblem();
        goToProblem(Problem(problems.shown.front()), false);
    }
}

INT_PTR CALLBACK problemsWindowProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM detail) {
    switch (message) {
    case WM_INITDIALOG:
        windowState().window = dialog;
        fillDialog(dialog);
        return TRUE;
    case WM_NOTIFY:
        return notify(dialog, *reinterpret_cast<const NMHDR*>(detail), detail) ? TRUE : FALSE;
    case WM_TIMER:
        if (windowState().search.isRunning()) {
            takeSearch();
            showProblemCount();
        }
        if (windowState().book.check() != nullptr) {
            goToDueProblem();
        }
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(parameter) == CBN_SELCHANGE) {
            readView(dialog);
        } else if (HIWORD(parameter) == BN_CLICKED) {
            pressed(dialog, LOWORD(parameter));
        }
        return TRUE;
    case WM_SIZE:
        if (parameter != SIZE_MINIMIZED) {
            layOutDialog(dialog, LOWORD(detail), HIWORD(detail));
        }
        return TRUE;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(detail)->ptMinTrackSize = {firstLayout().frame.cx,
                                                                 firstLayout().frame.cy};
        return TRUE;
    case WM_DESTROY:
        KillTimer(dialog, SearchTimer);
        windowState().search.cancel();
        windowState().isStepDue = false;
        windowState().window = nullptr;
        return TRUE;
    default:
        return FALSE;
    }
}

void createProblemsDialog() {
    HWND dialog = CreateDialogParamA(application().instance, MAKEINTRESOURCEA(IDD_PROBLEMS),
                                     application().window, problemsWindowProcedure, 0);
    if (dialog != nullptr) {
        showProblemList();
        ShowWindow(dialog, SW_SHOW);
        SetFocus(listOf(dialog));
    }
}

void step(bool isForwards) {
    followProblemFolder();
    if (IsWindowEnabled(application().window) == FALSE) {
        return;
    }
    if (windowState().book.check() == nullptr) {
        windowState().isStepDue = true;
        openProblemsWindow();
        return;
    }
    ProblemsState& problems = windowState();
    showProblemList();
    const std::size_t count = problems.shown.size();
    if (count == 0) {
        MessageBeep(MB_OK);
        return;
    }
    const std::size_t onwards = isForwards ? 1 : count - 1;
    problems.chosen = problems.hasGone ? (problems.chosen + onwards) % count : problems.chosen;
    problems.hasGone = true;
    showChosenProblem();
    goToProblem(Problem(problems.shown[problems.chosen]), false);
}

} // namespace

void openProblemsWindow() {
    followProblemFolder();
    if (windowState().window == nullptr) {
        createProblemsDialog();
    } else {
        SetForegroundWindow(windowState().window);
    }
    if (windowState().book.check() == nullptr && !windowState().search.isRunning()) {
        startProblemSearch();
    }
}

bool isProblemsNavigation(MSG& message) {
    return windowState().window != nullptr && IsDialogMessageA(windowState().window, &message) != 0;
}

void goToNextProblem() {
    step(true);
}

void goToPreviousProblem() {
    step(false);
}

} // namespace varrocade
