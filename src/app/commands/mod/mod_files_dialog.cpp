#include "app/commands/mod/mod_files_dialog.h"

#include "app/windows/application.h"
#include "app/workspace/names/name_filter.h"
#include "editors/form/dialog_frame_win32.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <algorithm>
#include <set>

namespace varrocade {

bool mayRemoveFromMod(const std::vector<std::string>& names, const std::string& caption) {
    const std::string which = names.size() == 1 ? names.front() : std::to_string(names.size()) + " files";
    const Answer answer =
        showMessage({.text = "Are you sure you want to remove " + which +
                             " from the mod?\n\nThe game's files of the same names, where there are any, "
                             "count again. The mod's are kept in the folder Backups.",
                     .caption = caption,
                     .buttons = MessageButtons::YesNo,
                     .icon = MessageIcon::Question});
    return answer == Answer::Yes;
}

namespace {

/// Files of one category with a filter, of which any number can be selected. What is selected and then hidden
/// by the filter stays selected.
class ModFilesDialog final : public DialogFrame {
public:
    explicit ModFilesDialog(ModFiles& files)
        : DialogFrame(IDD_MOD_FILES, files.caption, std::string(files.caption)), files_(files) {
        onButton(IDC_MOD_FILES_ALL, [this] {
            SendMessageA(list(), LB_SETSEL, TRUE, -1);
            follow();
        });
    }

private:
    [[nodiscard]] HWND list() { return GetDlgItem(handle(), IDC_MOD_FILES_LIST); }

    void init() override {
        for (const Category category : AllCategories) {
            SendDlgItemMessageA(handle(), IDC_MOD_FILES_KIND, CB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(std::string(categoryName(category)).c_str()));
        }
        files_.category = theWorkspace().category;
        SendDlgItemMessageA(handle(), IDC_MOD_FILES_KIND, CB_SETCURSEL, static_cast<WPARAM>(files_.category),
                            0);
        port().setText(IDOK, files_.needs ? "Copy" : "Remove");
        port().setChecked(IDC_MOD_FILES_NEEDS, files_.needs == CopyNeeds::Yes);
        ShowWindow(GetDlgItem(handle(), IDC_MOD_FILES_NEEDS), files_.needs ? SW_SHOWNA : SW_HIDE);
        selected_.insert(files_.chosen);
        readNames();
    }

    void readNames() {
        names_ = files_.names(theWorkspace(), files_.category);
        std::sort(names_.begin(), names_.end());
        show();
    }

    void show() {
        const std::string filter = port().text(IDC_MOD_FILES_FILTER);
        shown_.clear();
        SendMessageA(list(), WM_SETREDRAW, FALSE, 0);
        SendMessageA(list(), LB_RESETCONTENT, 0, 0);
        for (const std::string& name : names_) {
            if (!passesFilter(name, filter)) {
                continue;
            }
            const LRESULT row = SendMessageA(list(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
            if (selected_.contains(name)) {
                SendMessageA(list(), LB_SETSEL, TRUE, row);
            }
            shown_.push_back(name);
        }
        SendMessageA(list(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(list(), nullptr, TRUE);
        follow();
    }

    /// Takes over what is selected of what is shown.
    void follow() {
        for (std::size_t i = 0; i < shown_.size(); ++i) {
            if (SendMessageA(list(), LB_GETSEL, i, 0) > 0) {
                selected_.insert(shown_[i]);
            } else {
                selected_.erase(shown_[i]);
            }
        }
        const std::size_t count = picked().size();
        port().setText(IDC_MOD_FILES_COUNT,
                       std::to_string(count) + " of " + std::to_string(names_.size()) + " selected");
        port().setEnabled(IDOK, count > 0);
    }

    [[nodiscard]] std::vector<std::string> picked() const {
        std::vector<std::string> picked;
        std::copy_if(names_.begin(), names_.end(), std::back_inserter(picked),
                     [this](const std::string& name) { return selected_.contains(name); });
        return picked;
    }

    bool accept() override {
        files_.picked = picked();
        if (files_.needs) {
            files_.needs = port().isChecked(IDC_MOD_FILES_NEEDS) ? CopyNeeds::Yes : CopyNeeds::No;
            return true;
        }
        return mayRemoveFromMod(files_.picked, caption());
    }

    bool notice(int control, int notification) override {
        if (control == IDC_MOD_FILES_LIST && notification == LBN_SELCHANGE) {
            follow();
        } else if (control == IDC_MOD_FILES_FILTER && notification == EN_CHANGE) {
            show();
        } else if (control == IDC_MOD_FILES_KIND && notification == CBN_SELCHANGE) {
            files_.category =
                static_cast<Category>(SendDlgItemMessageA(handle(), IDC_MOD_FILES_KIND, CB_GETCURSEL, 0, 0));
            selected_.clear();
            shown_.clear();
            readNames();
        }
        return false;
    }

    ModFiles& files_;
    std::vector<std::string> names_; ///< of the category
    std::vector<std::string> shown_; ///< those that the filter lets through
    std::set<std::string> selected_;
};

} // namespace

bool chooseModFiles(ModFiles& files) {
    return ModFilesDialog(files).run(application().window);
}

} // namespace varrocade
