#include "app/workspace/journal.h"

#include "app/workspace/positions.h"
#include "app/workspace/record/journal_copies.h"
#include "app/workspace/record/kept_changes.h"
#include "app/workspace/record/leftovers.h"
#include "app/workspace/record/unsaved_moves.h"
#include "app/workspace/record/unsaved_records.h"
#include "platform/messages.h"
#include "platform/safe_save.h"

#include <utility>

namespace varrocade {

namespace {

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

/// Where a file has its name in another case of letters now, so has its copy.
void followSpelling(Workspace& workspace, const std::string& path) {
    auto& written = workspace.journal.written;
    const auto former = written.find(path);
    if (former != written.end() && former->first != path && workspace.files->rename(former->first, path)) {
        auto entry = written.extract(former);
        entry.key() = path;
        written.insert(std::move(entry));
    }
}

/// A copy that was found.
struct Copy {
    std::string base;
    Category category = Category::Vehicles;
    std::string name;
    std::string path;
    std::string content;
};

std::vector<Copy> findCopies(Workspace& workspace) {
    std::vector<Copy> copies;
    for (const std::string& base : baseFolders(workspace)) {
        for (const Category category : AllCategories) {
            for (std::string& name :
                 namesOfFiles(categoryFolder(base + std::string(UnsavedFolder), category))) {
                Copy copy{base, category, std::move(name), {}, {}};
                copy.path = journalPath(base, category, copy.name);
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
    if (!copy.content.starts_with(journalHead(record.content))) {
        // Saving asks: the file is not the one that was changed.
        record.isChangedOutside = true;
        record.content.clear();
    }
    return record;
}

void restore(Workspace& workspace, const std::vector<Copy>& copies) {
    for (const Copy& copy : copies) {
        // Where the case of letters makes another file, there may be a second copy, which waits for its turn.
        if (isInMemory(workspace, copy.base, copy.category, copy.name)) {
            continue;
        }
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

} // namespace

std::optional<FileFailure> writeJournal(Workspace& workspace, JournalMoves moves) {
    auto& written = workspace.journal.written;
    auto gone = written;
    std::optional<FileFailure> failure;
    for (const OpenRecord* record : unsavedRecords(workspace)) {
        const RecordState state = moves == JournalMoves::Dropped ? withoutMoves(*record) : record->present;
        const auto text = fileTextOf(record->category, state.record);
        if (!text || state.record == record->saved.record) {
            continue;
        }
        const std::string path = journalPath(record->base, record->category, fileNameOf(state.record));
        gone.erase(path);
        followSpelling(workspace, path);
        std::string copy = journalHead(record->content) + *text;
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
        // What stays would be offered at the next start: it is tried again.
        if (workspace.files->remove(path) || !workspace.files->exists(path)) {
            written.erase(path);
        }
    }
    return failure;
}

void keepJournal(Workspace& workspace) {
    const auto failure = writeJournal(workspace);
    const bool isNew = failure && !std::exchange(workspace.journal.hasFailed, true);
    if (!failure) {
        workspace.journal.hasFailed = false;
    } else if (isNew) {
        tellNotKept(*failure);
    }
}

bool mayExit(Workspace& workspace) {
    if (!mayLeavePositions(workspace)) {
        return false;
    }
    if (const auto failure = writeJournal(workspace, JournalMoves::Dropped)) {
        tellNotKept(*failure);
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
