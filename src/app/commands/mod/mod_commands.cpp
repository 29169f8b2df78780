#include "app/commands/mod/mod_commands.h"

#include "app/windows/application.h"
#include "app/workspace/mod/mod_work.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/record_files.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "mod/changes/changes_text.h"
#include "mod/changes/revert.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <shlobj.h>

#include <array>
#include <memory>

namespace varrocade {

namespace {

/// Tells what went wrong, and what came of the rest.
void tellModWork(const ModWork& work, std::string caption, std::string_view did) {
    std::string text = std::to_string(work.done.size()) + " files " + std::string(did) + ".";
    constexpr std::size_t mostLines = 12;
    for (std::size_t i = 0; i < work.failures.size() && i < mostLines; ++i) {
        text += "\n\n" + work.failures[i].path + "\n" + work.failures[i].reason;
    }
    if (!work.failures.empty() || work.done.size() > 1) {
        showMessage({.text = std::move(text),
                     .caption = std::move(caption),
                     .icon = work.failures.empty() ? MessageIcon::Information : MessageIcon::Warning});
    }
}

/// The changes of the mod as lines of a list; each of a value or of a file can go back.
class ModChangesDialog final : public DialogFrame {
public:
    ModChangesDialog() : DialogFrame(IDD_MOD_CHANGES, "What this mod changes") {
        onButton(IDC_MOD_REVERT, [this] { revert(); });
        onButton(IDC_MOD_COPY_TEXT, [this] { copy(ChangesFormat::Plain); });
        onButton(IDC_MOD_COPY_MARKDOWN, [this] { copy(ChangesFormat::Markdown); });
    }

    [[nodiscard]] bool hasReverted() const { return hasReverted_; }

private:
    struct Line {
        const FileChange* file = nullptr;
        const ValueChange* value = nullptr; ///< null for the file as a whole
    };

    void init() override { list(); }
    bool accept() override { return true; }
    bool notice(int, int) override { return false; }

    void list() {
        const Workspace& workspace = theWorkspace();
        changes_ = findModChanges(workspace.programFolder, workspace.modFolder);
        lines_.clear();
        HWND box = GetDlgItem(handle(), IDC_MOD_CHANGE_LIST);
        SendMessageA(box, LB_RESETCONTENT, 0, 0);
        constexpr std::array<std::string_view, 3> kinds = {"added", "changed", "removed"};
        for (const FileChange& file : changes_.files) {
            add(box, {&file, nullptr},
                std::string(categoryName(file.category)) + ": " + file.name + " (" +
                    std::string(kinds.at(static_cast<std::size_t>(file.kind))) + ")");
            for (const ValueChange& value : file.values) {
                add(box, {&file, &value},
                    "        " + value.path + ": " + shownValue(value.game, value.unit) + " -> " +
                        shownValue(value.mod, value.unit));
            }
        }
        port().setEnabled(IDC_MOD_REVERT, !lines_.empty());
        constexpr WPARAM widest = 900;
        SendMessageA(box, LB_SETHORIZONTALEXTENT, widest, 0);
    }

    void add(HWND box, Line line, const std::string& text) {
        lines_.push_back(line);
        SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }

    void revert() {
        const LRESULT row = SendDlgItemMessageA(handle(), IDC_MOD_CHANGE_LIST, LB_GETCURSEL, 0, 0);
        if (row < 0) {
            return;
        }
        const Line line = lines_[static_cast<std::size_t>(row)];
        if (line.value == nullptr && !mayRevertFile(*line.file)) {
            return;
        }
        Workspace& workspace = theWorkspace();
        const auto failure = line.value != nullptr
                                 ? revertValueInFile(*workspace.files, workspace.backups,
                                                     {workspace.programFolder, workspace.modFolder},
                                                     line.file->category, line.file->name, line.value->path)
                                 : revertFile(*workspace.files, workspace.backups, workspace.modFolder,
                                              line.file->category, line.file->name);
        if (failure) {
            showMessage({.text = failure->path + "\n\n" + failure->reason,
                         .caption = caption(),
                         .icon = MessageIcon::Warning});
        } else {
            hasReverted_ = true;
        }
        list();
        SendDlgItemMessageA(handle(), IDC_MOD_CHANGE_LIST, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    }

    bool mayRevertFile(const FileChange& file) {
        const Answer answer =
            showMessage({.text = "Are you sure you want to remove this file from the mod?\n\n" + file.name +
                                 "\n\nIt is kept in the folder Backups of the mod.",
                         .caption = caption(),
                         .buttons = MessageButtons::YesNo,
                         .icon = MessageIcon::Question});
        return answer == Answer::Yes;
    }

    void copy(ChangesFormat format) {
        const Workspace& workspace = theWorkspace();
        copyToClipboard(handle(), changesText(changes_, format,
                                              workspace.modSettings ? workspace.modSettings->name : "Mod"));
    }

    ModChanges changes_;
    std::vector<Line> lines_;
    bool hasReverted_ = false;
};

struct FreeFolderItem {
    void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};

} // namespace

void toggleGameUnits() {
    Workspace& workspace = theWorkspace();
    showGameUnits(workspace, !workspace.showsGameUnits);
}

bool isGameUnitSelected() {
    return isOfGame(theWorkspace().list, theWorkspace().list.selected);
}

bool isModUnitSelected() {
    const Workspace& workspace = theWorkspace();
    return workspace.modMode && !workspace.list.selected.empty() && !isGameUnitSelected();
}

void copySelectedIntoMod() {
    Workspace& workspace = theWorkspace();
    const std::array<std::string, 1> names = {workspace.list.selected};
    const Answer answer =
        showMessage({.text = "Copy " + names[0] +
                             " into the mod?\n\nYes: with the pictures, weapons and sounds that it "
                             "needs\nNo: the file alone",
                     .caption = "Copy into mod",
                     .buttons = MessageButtons::YesNoCancel,
                     .icon = MessageIcon::Question});
    if (answer == Answer::Yes || answer == Answer::No) {
        tellModWork(copyIntoMod(workspace, workspace.category, names,
                                answer == Answer::Yes ? CopyNeeds::Yes : CopyNeeds::No),
                    "Copy into mod", "copied");
    }
}

void removeSelectedFromMod() {
    Workspace& workspace = theWorkspace();
    const std::array<std::string, 1> names = {workspace.list.selected};
    const Answer answer =
        showMessage({.text = "Are you sure you want to remove " + names[0] +
                             " from the mod?\n\nThe game's file of that name, if there is one, counts "
                             "again. The mod's is kept in the folder Backups.",
                     .caption = "Remove from mod",
                     .buttons = MessageButtons::YesNo,
                     .icon = MessageIcon::Question});
    if (answer == Answer::Yes) {
        tellModWork(removeFromMod(workspace, workspace.category, names), "Remove from mod", "removed");
    }
}

void browseForMod() {
    std::array<char, MAX_PATH> path{};
    BROWSEINFOA browse{};
    browse.hwndOwner = application().window;
    browse.lpszTitle = "Browse for the folder of a mod, which contains Mod.txt...";
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    const std::unique_ptr<ITEMIDLIST, FreeFolderItem> chosen(SHBrowseForFolderA(&browse));
    if (!chosen || SHGetPathFromIDListA(chosen.get(), path.data()) == FALSE) {
        return;
    }
    std::string folder = path.data();
    folder += folder.ends_with('\\') ? "" : "\\";
    if (!hasModFile(folder)) {
        showMessage({.text = folder + "\n\nThere is no Mod.txt in this folder",
                     .caption = "Error",
                     .icon = MessageIcon::Information});
        return;
    }
    openOtherMod(theWorkspace(), folder);
}

void showModChanges() {
    ModChangesDialog dialog;
    dialog.run(application().window);
    if (dialog.hasReverted()) {
        Workspace& workspace = theWorkspace();
        loadCatalogue(workspace);
        workspace.listener->listOutdated(workspace);
        noticeOutsideChanges(workspace);
    }
}

} // namespace varrocade
