#include "app/workspace/journal.h"

#include "app/workspace/file_actions.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/unsaved_moves.h"
#include "app/workspace/record/unsaved_records.h"
#include "platform/messages.h"
#include "platform/safe_save.h"

#include <array>
#include <cstdio>
#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view UnsavedFolder = "Backups\\Unsaved\\";
/// Begins the first line of a copy, which the readers take for a comment. Behind it stands the fingerprint of
/// the file that was changed.
constexpr std::string_view HeadBegin = "//unsaved changes to ";
constexpr std::string_view HeadEnd = "\r\n";

/// FNV-1a of a content, in hexadecimal digits: tells whether a file is still the one that was changed.
std::string fingerprint(std::string_view content) {
    constexpr std::uint64_t start = 14695981039346656037ULL;
    constexpr std::uint64_t prime = 1099511628211ULL;
    std::uint64_t hash = start;
    for (const char character : content) {
        hash = (hash ^ static_cast<unsigned char>(character)) * prime;
    }
    std::array<char, 24> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(hash));
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string copyPath(const std::string& base, Category category, const std::string& name) {
    return dataFilePath(base + std::string(UnsavedFolder), category, name);
}

/// Writes a copy. One that another run has left there goes to the backups first.
std::optional<FileFailure> writeCopy(Workspace& workspace, const OpenRecord& record, const std::string& path,
                                     const std::string& text) {
    FileOperations& files = *workspace.files;
    if (!workspace.journal.written.contains(path) && files.exists(path)) {
        std::string former;
        if (!files.read(path, former)) {
            return FileFailure{path, files.lastError()};
        }
        const std::string file =
            dataFilePath(record.base, record.category, fileNameOf(record.present.record));
        if (auto failure = workspace.backups.keepContent(files, record.base, file, former)) {
            return failure;
        }
    }
    if (auto failure = createFolders(files, path.substr(0, path.rfind('\\') + 1))) {
        return failure;
    }
    return saveFile(files, path, text);
}

/// A copy that was found.
struct Copy {
    std::string base;
    Category category = Category::Vehicles;
    std::string name;
    std::string path;
    std::string content;
};

std::vector<std::string> baseFolders(const Workspace& workspace) {
    std::vector<std::string> bases = {workspace.programFolder};
    if (workspace.modMode && workspace.modFolder != workspace.programFolder) {
        bases.push_back(workspace.modFolder);
    }
    return bases;
}

std::vector<Copy> findCopies(Workspace& workspace) {
    std::vector<Copy> copies;
    for (const std::string& base : baseFolders(workspace)) {
        for (const Category category : AllCategories) {
            for (std::string& name :
                 namesOfFiles(categoryFolder(base + std::string(UnsavedFolder), category))) {
                Copy copy{base, category, std::move(name), {}, {}};
                copy.path = copyPath(base, category, copy.name);
                if (workspace.files->read(copy.path, copy.content)) {
                    copies.push_back(std::move(copy));
                }
            }
        }
    }
    return copies;
}

/// The record of a copy with its file's state behind it.
OpenRecord recordOf(Workspace& workspace, const Copy& copy) {
    OpenRecord record;
    record.base = copy.base;
    record.category = copy.category;
    record.present.record = readRecord(copy.category, copy.content, copy.name);
    if (workspace.files->read(dataFilePath(copy.base, copy.category, copy.name), record.content)) {
        record.saved.record = readRecord(copy.category, record.content, copy.name);
        record.history.start(record.saved);
        record.history.note("Unsaved changes", record.present);
    } else {
        record.history.start(record.present);
    }
    const std::string head = std::string(HeadBegin) + fingerprint(record.content) + std::string(HeadEnd);
    if (!copy.content.starts_with(head)) {
        // Saving asks: the file is not the one that was changed.
        record.isChangedOutside = true;
        record.content.clear();
    }
    return record;
}

void restore(Workspace& workspace, const std::vector<Copy>& copies) {
    for (const Copy& copy : copies) {
        workspace.journal.written[copy.path] = copy.content;
        OpenRecord record = recordOf(workspace, copy);
        if (record.isModified()) {
            workspace.aside.push_back(std::move(record));
        }
    }
    workspace.listener->marksChanged();
}

void dropCopies(Workspace& workspace, const std::vector<Copy>& copies) {
    for (const Copy& copy : copies) {
        const std::string file = dataFilePath(copy.base, copy.category, copy.name);
        if (!workspace.backups.keepContent(*workspace.files, copy.base, file, copy.content)) {
            workspace.files->remove(copy.path);
        }
    }
}

Answer askAboutCopies(const std::vector<Copy>& copies) {
    constexpr std::size_t mostLines = 15;
    std::string text = "These changes were not saved when the editor ended:\n\n";
    for (std::size_t i = 0; i < copies.size() && i < mostLines; ++i) {
        text += std::string(categoryName(copies[i].category)) + ": " + copies[i].name + "\n";
    }
    if (copies.size() > mostLines) {
        text += "and " + std::to_string(copies.size() - mostLines) + " more\n";
    }
    return showMessage({.text = text +
                                "\nYes: bring them back, still unsaved (File > Changed files lists them)\n"
                                "No: drop them (a copy of each is kept in the folder Backups)\n"
                                "Cancel: ask again at the next start",
                        .caption = "Unsaved changes",
                        .buttons = MessageButtons::YesNoCancel,
                        .icon = MessageIcon::Question});
}

/// Whether a file that a save was cut off in was written to its end.
bool isWhole(std::string_view content) {
    const std::size_t last = content.find_last_not_of("\r\n\t ");
    content = content.substr(0, last == std::string_view::npos ? 0 : last + 1);
    return content.ends_with("</squad>") || content.ends_with("</weapon>");
}

/// Puts a leftover that is whole, and is not what the file holds anyway, into the journal.
void recoverLeftover(Workspace& workspace, const std::string& base, Category category,
                     const std::string& leftover) {
    FileOperations& files = *workspace.files;
    const std::string path = categoryFolder(base, category) + leftover;
    const std::string name =
        leftover.substr(0, leftover.rfind(std::string(DataFileEnding) + std::string(TemporaryEnding)));
    const std::string target = dataFilePath(base, category, name);
    std::string content;
    std::string present;
    if (!files.read(path, content)) {
        return;
    }
    const bool isRead = files.read(target, present);
    if (isWhole(content) && (!isRead || content != present)) {
        const std::string copy = copyPath(base, category, name);
        const bool isKept = files.exists(copy)
                                ? !workspace.backups.keepContent(files, base, target, content)
                                : !createFolders(files, copy.substr(0, copy.rfind('\\') + 1)) &&
                                      !saveFile(files, copy,
                                                std::string(HeadBegin) + fingerprint(present) +
                                                    std::string(HeadEnd) + content);
        if (!isKept) {
            return;
        }
    }
    files.remove(path);
}

/// Gives a file its name back that was cut off between the steps of renaming it.
void finishRenaming(Workspace& workspace, const std::string& folder, std::string_view name) {
    const std::string path = folder + std::string(name);
    name.remove_suffix(RenamingEnding.size());
    workspace.files->rename(path, folder + std::string(name));
}

void recoverLeftovers(Workspace& workspace) {
    const std::string mark = std::string(DataFileEnding) + std::string(TemporaryEnding);
    std::vector<std::string> names;
    for (const std::string& base : baseFolders(workspace)) {
        for (const Category category : AllCategories) {
            listFiles(categoryFolder(base, category), "", names);
            for (const std::string& name : names) {
                if (name.ends_with(std::string(DataFileEnding) + std::string(RenamingEnding))) {
                    finishRenaming(workspace, categoryFolder(base, category), name);
                }
                const std::size_t place = name.rfind(mark);
                if (place != std::string::npos &&
                    name.find_first_not_of("0123456789", place + mark.size()) == std::string::npos) {
                    recoverLeftover(workspace, base, category, name);
                }
            }
        }
    }
}

void tellJournalFailure(const FileFailure& failure) {
    debugLine("ERROR: " + failure.path + ": " + failure.reason);
    showMessage(
        {.text = failure.path + "\n\n" + failure.reason +
                 "\n\nThe unsaved changes are in the editor's memory only. They can be saved or discarded.",
         .caption = "Couldn't keep the unsaved changes",
         .icon = MessageIcon::Warning});
}

} // namespace

std::optional<FileFailure> writeJournal(Workspace& workspace, JournalMoves moves) {
    std::map<std::string, std::string>& written = workspace.journal.written;
    std::map<std::string, std::string> gone = written;
    std::optional<FileFailure> failure;
    for (const OpenRecord* record : unsavedRecords(workspace)) {
        const RecordState state = moves == JournalMoves::Dropped ? withoutMoves(*record) : record->present;
        const auto text = fileTextOf(record->category, state.record);
        if (!text || state.record == record->saved.record) {
            continue;
        }
        const std::string path = copyPath(record->base, record->category, fileNameOf(state.record));
        gone.erase(path);
        std::string copy =
            std::string(HeadBegin) + fingerprint(record->content) + std::string(HeadEnd) + *text;
        if (const auto former = written.find(path); former != written.end() && former->second == copy) {
            continue;
        }
        if (auto failed = writeCopy(workspace, *record, path, copy)) {
            failure = failure ? failure : failed;
        } else {
            written[path] = std::move(copy);
        }
    }
    for (const auto& [path, content] : gone) {
        workspace.files->remove(path);
        written.erase(path);
    }
    return failure;
}

void keepJournal(Workspace& workspace) {
    const auto failure = writeJournal(workspace);
    const bool isNew = failure && !std::exchange(workspace.journal.hasFailed, true);
    if (!failure) {
        workspace.journal.hasFailed = false;
    } else if (isNew) {
        tellJournalFailure(*failure);
    }
}

bool mayExit(Workspace& workspace) {
    if (!mayLeavePositions(workspace)) {
        return false;
    }
    if (const auto failure = writeJournal(workspace, JournalMoves::Dropped)) {
        tellJournalFailure(*failure);
        return false;
    }
    return true;
}

void offerUnsavedChanges(Workspace& workspace) {
    recoverLeftovers(workspace);
    const std::vector<Copy> copies = findCopies(workspace);
    if (copies.empty()) {
        return;
    }
    switch (askAboutCopies(copies)) {
    case Answer::Yes:
        restore(workspace, copies);
        break;
    case Answer::No:
        dropCopies(workspace, copies);
        break;
    default:
        break;
    }
}

} // namespace varrocade
