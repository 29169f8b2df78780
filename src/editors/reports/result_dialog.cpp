#include "editors/reports/result_dialog.h"

#include "editors/form/dialog_frame_win32.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <shellapi.h>

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// An edit wants both characters of a line end.
std::string withReturns(const std::string& text) {
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return result;
}

class ResultDialog final : public DialogFrame {
public:
    explicit ResultDialog(const JobResult& result)
        : DialogFrame(IDD_JOB_RESULT, result.caption, result.caption), result_(result) {
        onButton(IDC_JOB_OPEN_FOLDER, [this] { openFolder(handle(), result_.folder, this->caption()); });
    }

private:
    void init() override {
        port().setText(IDC_JOB_SUMMARY, result_.summary);
        port().setText(IDC_JOB_FOLDER, result_.folder);
        port().setText(IDC_JOB_DETAILS, withReturns(result_.details));
    }
    /// Not the text, which would be selected.
    int firstFocus() override { return IDOK; }
    bool accept() override { return true; }
    bool notice(int, int) override { return true; }

    const JobResult& result_;
};

} // namespace

void openFolder(HWND owner, const std::string& folder, const std::string& caption) {
    // Above 32 it has worked.
    constexpr INT_PTR greatestFailure = 32;
    const HINSTANCE opened = ShellExecuteA(owner, "open", folder.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    if (reinterpret_cast<INT_PTR>(opened) <= greatestFailure) {
        showMessage({.text = folder + "\n\nThe system could not open this folder",
                     .caption = caption,
                     .icon = MessageIcon::Warning});
    }
}

void showJobResult(HWND owner, const JobResult& result) {
    ResultDialog(result).run(owner);
}

std::string failureLines(const std::vector<FileFailure>& failures) {
    std::string text;
    for (const FileFailure& failure : failures) {
        text += failure.path + ": " + failure.reason + "\n";
    }
    return text;
}

void tellFailures(const std::string& caption, std::string text, const std::vector<FileFailure>& failures) {
    constexpr std::size_t most = 15;
    for (std::size_t i = 0; i < std::min(most, failures.size()); ++i) {
        text += "\n    " + failures[i].path + ": " + failures[i].reason;
    }
    if (failures.size() > most) {
        text += "\n    and " + std::to_string(failures.size() - most) + " more";
    }
    showMessage({.text = std::move(text), .caption = caption, .icon = MessageIcon::Warning});
}

} // namespace varrocade
