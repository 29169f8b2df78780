#include "editors/reports/progress_dialog.h"

#include "editors/form/form_port_win32.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <chrono>

namespace varrocade {

namespace {

constexpr UINT_PTR JobTimer = 1;

struct ProgressDialog {
    const std::string& caption;
    Job& job;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

void showProgress(HWND dialog, const ProgressDialog& context) {
    const JobProgress progress = context.job.progress();
    DialogPort port(dialog);
    port.setText(IDC_JOB_FILE, std::to_string(progress.done) + " of " + std::to_string(progress.total) +
                                   (progress.name.empty() ? "" : ": ") + progress.name);
    port.setText(IDC_JOB_TIME, timeToGoText(progress, std::chrono::duration_cast<std::chrono::milliseconds>(
                                                          std::chrono::steady_clock::now() - context.start)));
    constexpr int whole = 1000;
    SendDlgItemMessageA(dialog, IDC_JOB_BAR, PBM_SETRANGE32, 0, whole);
    SendDlgItemMessageA(dialog, IDC_JOB_BAR, PBM_SETPOS, static_cast<WPARAM>(whole * progress.share()), 0);
}

/// A part of the work that nobody feels.
void work(HWND dialog, ProgressDialog& context) {
    constexpr std::chrono::milliseconds slice{30};
    const auto end = std::chrono::steady_clock::now() + slice;
    bool isMore = true;
    while (isMore && std::chrono::steady_clock::now() < end) {
        isMore = context.job.step();
    }
    if (isMore) {
        showProgress(dialog, context);
    } else {
        KillTimer(dialog, JobTimer);
        EndDialog(dialog, IDOK);
    }
}

INT_PTR CALLBACK progressProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ProgressDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        SetWindowTextA(dialog, context->caption.c_str());
        SetTimer(dialog, JobTimer, USER_TIMER_MINIMUM, nullptr);
        return TRUE;
    case WM_TIMER:
        work(dialog, *context);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(parameter) == IDCANCEL) {
            KillTimer(dialog, JobTimer);
            EndDialog(dialog, IDCANCEL);
        }
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

bool runJobInWindow(HWND owner, const std::string& caption, Job& job) {
    ProgressDialog context{.caption = caption, .job = job};
    return runDialog(owner, IDD_JOB_PROGRESS, progressProcedure, &context) == IDOK;
}

} // namespace varrocade
