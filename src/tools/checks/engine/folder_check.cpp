#include "tools/checks/engine/folder_check.h"

#include "data/finding_text.h"
#include "mod/mod_settings.h"
#include "platform/file_operations.h"
#include "tools/checks/engine/mod_file_check.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <thread>
#include <utility>

namespace varrocade {

std::string shownPath(Category category, std::string_view name) {
    return "Data/" + std::string(categoryName(category)) + "/" + std::string(name) +
           std::string(DataFileEnding);
}

namespace {

/// Calls `work` with each number below `threads`, in a thread each.
template <typename Work>
void inThreads(std::size_t threads, Work work) {
    std::vector<std::thread> workers;
    workers.reserve(threads);
    for (std::size_t i = 1; i < threads; ++i) {
        workers.emplace_back(work, i);
    }
    work(std::size_t{0});
    for (std::thread& worker : workers) {
        worker.join();
    }
}

} // namespace

FolderCheck::FolderCheck(const GameFolders& folders, bool looksIntoPictures)
    : looksIntoPictures_(looksIntoPictures) {
    // Listing waits for the disk, and reading the weapons for the processor.
    constexpr std::size_t lister = 1;
    inThreads(
        2, [&](std::size_t thread) { thread == lister ? list(folders) : learnFolders(knowledge_, folders); });
    if (failure_) {
        return;
    }
    std::string content;
    const std::string& base = folders.mod.empty() ? folders.program : folders.mod;
    if (readWholeFile(base + std::string(SuppressionListName), content)) {
        suppressions_ = SuppressionList(content, ofFolder_);
    }
    if (readWholeFile(base + std::string(ModFileName), modContent_)) {
        std::vector<Finding> found = checkModFile(modContent_, &knowledge_);
        std::erase_if(found, [this](const Finding& finding) { return suppressions_.covers(finding); });
        std::move(found.begin(), found.end(), std::back_inserter(ofFolder_));
    }
}

void FolderCheck::list(const GameFolders& folders) {
    std::size_t missing = 0;
    for (const Category category : AllCategories) {
        GameFileList list = listGameFiles(folders, category);
        missing += list.failures.empty() ? 0 : 1;
        if (!list.failures.empty() && !failure_) {
            failure_ = list.failures.front();
        }
        for (GameFile& file : list.files) {
            CheckedFile& entry = files_.emplace_back();
            entry.isChecked = folders.mod.empty() || file.isOfMod;
            entry.shown = shownPath(file.category, file.name);
            entry.file = std::move(file);
        }
    }
    // A mod, or a game in the making, need not have all five.
    if (missing < CategoryCount) {
        failure_.reset();
    }
}

/// A file that cannot be read has that as its one finding.
bool FolderCheck::read(CheckedFile& entry, std::string& content) const {
    if (readWholeFile(entry.file.path, content)) {
        return true;
    }
    Finding finding = cannotRead({entry.shown, systemFiles().lastError()});
    finding.file = entry.shown;
    finding.line = 1;
    finding.column = 1;
    entry.found.assign(1, std::move(finding));
    return false;
}

void FolderCheck::look(std::size_t number, Desk& desk, UnitSurvey& survey) {
    CheckedFile& entry = files_[number];
    if (!read(entry, desk.content)) {
        return;
    }
    if (entry.file.category != Category::Weapons) {
        readForCheck(toCheck(entry, desk), desk.read);
        survey.add(static_cast<std::uint32_t>(number), entry.file.category, entry.shown, desk.read.unit);
    }
    check(entry, desk);
}

void FolderCheck::lookAgain(std::size_t number, Desk& desk) {
    CheckedFile& entry = files_[number];
    if (entry.isChecked && read(entry, desk.content)) {
        readForCheck(toCheck(entry, desk), desk.read);
        check(entry, desk);
    }
}

FileToCheck FolderCheck::toCheck(const CheckedFile& entry, const Desk& desk) const {
    return {entry.file.category, entry.file.name, entry.shown, desk.content, looksIntoPictures_};
}

/// Checks what lies on the desk.
void FolderCheck::check(CheckedFile& entry, Desk& desk) const {
    if (!entry.isChecked) {
        return;
    }
    const bool isWeapon = entry.file.category == Category::Weapons;
    entry.found = checkFile(knowledge_, toCheck(entry, desk), isWeapon ? nullptr : &desk.read);
    std::erase_if(entry.found, [this](const Finding& finding) { return suppressions_.covers(finding); });
    entry.content = entry.found.empty() ? std::string() : desk.content;
}

void FolderCheck::finishSurvey() {
    outstanding_ = survey_.finish(knowledge_);
}

bool FolderCheck::step() {
    if (looked_ < files_.size()) {
        look(looked_++, desk_, survey_);
        if (looked_ == files_.size()) {
            finishSurvey();
        }
        return true;
    }
    if (lookedAgain_ < outstanding_.size()) {
        lookAgain(outstanding_[lookedAgain_++], desk_);
    }
    return !isDone();
}

namespace {

/// Calls `visit(thread, i)` with each number from `from` below `count`, on so many threads.
template <typename Visit>
void share(std::size_t threads, std::size_t from, std::size_t count, Visit visit) {
    constexpr std::size_t perTurn = 16;
    std::atomic<std::size_t> next = from;
    inThreads(std::min(threads, (count - from) / perTurn + 1), [&](std::size_t thread) {
        for (std::size_t begin = next.fetch_add(perTurn); begin < count; begin = next.fetch_add(perTurn)) {
            for (std::size_t i = begin; i < std::min(begin + perTurn, count); ++i) {
                visit(thread, i);
            }
        }
    });
}

} // namespace

void FolderCheck::run(std::size_t threads) {
    threads = threads == 0 ? std::max(1U, std::thread::hardware_concurrency()) : threads;
    std::vector<Desk> desks(threads);
    if (looked_ < files_.size()) {
        std::vector<UnitSurvey> surveys(threads, UnitSurvey(knowledge_));
        share(threads, looked_, files_.size(),
              [&](std::size_t thread, std::size_t i) { look(i, desks[thread], surveys[thread]); });
        for (UnitSurvey& one : surveys) {
            survey_.join(std::move(one));
        }
        looked_ = files_.size();
        finishSurvey();
    }
    share(threads, lookedAgain_, outstanding_.size(),
          [&](std::size_t thread, std::size_t i) { lookAgain(outstanding_[i], desks[thread]); });
    lookedAgain_ = outstanding_.size();
}

WalkProgress FolderCheck::progress() const {
    const bool isFirstLook = looked_ < files_.size();
    const std::size_t at = isFirstLook                          ? looked_
                           : lookedAgain_ < outstanding_.size() ? outstanding_[lookedAgain_]
                                                                : files_.size();
    return {.done = looked_ + lookedAgain_,
            .total = files_.size() + outstanding_.size(),
            .name = at < files_.size() ? std::string_view(files_[at].file.name) : std::string_view()};
}

std::vector<Finding> FolderCheck::findings() const {
    std::vector<Finding> all = ofFolder_;
    for (const CheckedFile& entry : files_) {
        std::copy(entry.found.begin(), entry.found.end(), std::back_inserter(all));
    }
    return all;
}

std::vector<Finding> FolderCheck::checkAgain(Category category, std::string_view name,
                                             std::string_view content) const {
    const std::string shown = shownPath(category, name);
    std::vector<Finding> found = checkFile(
        knowledge_,
        {.category = category, .name = name, .shown = shown, .content = content, .looksIntoPictures = true});
    std::erase_if(found, [this](const Finding& finding) { return suppressions_.covers(finding); });
    return found;
}

std::string_view FolderCheck::contentOf(std::string_view shown) const {
    if (shown == ModFileName) {
        return modContent_;
    }
    const auto found = std::find_if(files_.begin(), files_.end(),
                                    [shown](const CheckedFile& entry) { return entry.shown == shown; });
    return found == files_.end() ? std::string_view() : std::string_view(found->content);
}

} // namespace varrocade
