#include "app/workspace/record/leftovers.h"

#include "app/workspace/options_file.h"
#include "app/workspace/record/journal_copies.h"
#include "platform/safe_save.h"
#include "tools/renaming/rename_file.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace varrocade {

namespace {

/// Whether a data file was written to its end.
bool isWhole(std::string_view content) {
    const std::size_t last = content.find_last_not_of("\r\n\t ");
    content = content.substr(0, last == std::string_view::npos ? 0 : last + 1);
    constexpr std::array<std::string_view, 3> ends = {"</squad>", "</aircraft>", "</weapon>"};
    return std::any_of(ends.begin(), ends.end(),
                       [&](std::string_view end) { return content.ends_with(end); });
}

/// An unfinished file and the one that it was to become.
struct Leftover {
    std::string folder; ///< with its backslash
    std::string target; ///< its name
    std::string path;
};

/// Those of a folder, in the order of their making.
std::vector<Leftover> leftoversOf(const std::string& folder) {
    std::vector<std::string> names;
    listFiles(folder, "", names);
    std::sort(names.begin(), names.end());
    std::vector<Leftover> found;
    for (const std::string& name : names) {
        const std::size_t place = name.rfind(TemporaryEnding);
        if (place != std::string::npos && place > 0 &&
            name.find_first_not_of("0123456789", place + TemporaryEnding.size()) == std::string::npos) {
            found.push_back({folder, name.substr(0, place), folder + name});
        }
    }
    return found;
}

/// The name of the data file that a leftover was to become; empty of another file.
std::string dataNameOf(const Leftover& leftover) {
    const std::string& target = leftover.target;
    return target.ends_with(DataFileEnding) ? target.substr(0, target.size() - DataFileEnding.size())
                                            : std::string();
}

/// A save: what is whole, and is not what the file holds anyway, goes into the journal.
void recoverSave(Workspace& workspace, const std::string& base, Category category, const Leftover& leftover) {
    FileOperations& files = *workspace.files;
    const std::string target = leftover.folder + leftover.target;
    std::string content;
    std::string present;
    if (!files.read(leftover.path, content)) {
        return;
    }
    const bool isRead = files.read(target, present);
    if (isWhole(content) && (!isRead || content != present)) {
        const std::string copy = journalPath(base, category, dataNameOf(leftover));
        const bool isKept = files.exists(copy)
                                ? !workspace.backups.keepContent(files, base, target, content)
                                : !createFolders(files, copy.substr(0, copy.rfind('\\') + 1)) &&
                                      !saveFile(files, copy, journalHead(present) + content);
        if (!isKept) {
            return;
        }
    }
    files.remove(leftover.path);
}

/// A copy of unsaved changes: a whole one is newer than the one that it was to replace.
void recoverCopy(Workspace& workspace, const std::string& base, Category category, const Leftover& leftover) {
    FileOperations& files = *workspace.files;
    const std::string target = leftover.folder + leftover.target;
    std::string content;
    std::string former;
    if (!files.read(leftover.path, content)) {
        return;
    }
    if (!isWhole(content)) {
        files.remove(leftover.path);
        return;
    }
    const std::string file = dataFilePath(base, category, dataNameOf(leftover));
    if (!files.exists(target) ||
        (files.read(target, former) && !workspace.backups.keepContent(files, base, file, former))) {
        files.replace(leftover.path, target);
    }
}

/// A backup: what it was to keep may be nowhere else.
void recoverBackup(Workspace& workspace, const Leftover& leftover) {
    FileOperations& files = *workspace.files;
    std::string content;
    if (files.read(leftover.path, content) &&
        (!isWhole(content) || !files.rename(leftover.path, leftover.folder + leftover.target))) {
        files.remove(leftover.path);
    }
}

/// Gives files their names back that were cut off between the steps of renaming them.
void finishRenaming(Workspace& workspace, const std::string& folder) {
    std::vector<std::string> names;
    listFiles(folder, RenamingEnding, names);
    for (const std::string& name : names) {
        const std::string path = folder + name;
        workspace.files->rename(path, path.substr(0, path.size() - RenamingEnding.size()));
    }
}

void recoverIn(Workspace& workspace, const std::string& base, Category category) {
    const std::string folder = categoryFolder(base, category);
    finishRenaming(workspace, folder);
    for (const Leftover& leftover : leftoversOf(folder)) {
        if (!dataNameOf(leftover).empty()) {
            recoverSave(workspace, base, category, leftover);
        }
    }
    for (const Leftover& leftover :
         leftoversOf(categoryFolder(base + std::string(UnsavedFolder), category))) {
        recoverCopy(workspace, base, category, leftover);
    }
    for (const Leftover& leftover : leftoversOf(categoryFolder(base + std::string(BackupFolder), category))) {
        recoverBackup(workspace, leftover);
    }
}

} // namespace

std::vector<std::string> baseFolders(const Workspace& workspace) {
    std::vector<std::string> bases = {workspace.programFolder};
    if (workspace.modMode && workspace.modFolder != workspace.programFolder) {
        bases.push_back(workspace.modFolder);
    }
    return bases;
}

void recoverLeftovers(Workspace& workspace) {
    for (const std::string& base : baseFolders(workspace)) {
        for (const Category category : AllCategories) {
            recoverIn(workspace, base, category);
        }
        // Options and mod settings are still what they were.
        for (const Leftover& leftover : leftoversOf(base)) {
            if (leftover.target == OptionsFileName || leftover.target == ModFileName) {
                workspace.files->remove(leftover.path);
            }
        }
    }
}

} // namespace varrocade
