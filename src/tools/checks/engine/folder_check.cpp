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

void FolderCheck::survey(CheckedFile& entry, UnitSurvey& survey) const {
    if (!readWholeFile(entry.file.path, entry.content)) {
        Finding finding = cannotRead({entry.shown, systemFiles().lastError()});
        finding.file = entry.shown;
        finding.line = 1;
        finding.column = 1;
        entry.found.push_back(std::move(finding));
        return;
    }
    if (entry.file.category != Category::Weapons) {
        auto read = std::make_unique<ReadUnitFile>();
        readForCheck(entry.toCheck(), *read);
        survey.add(entry.file.category, entry.shown, read->unit);
        entry.read = entry.isChecked ? std::move(read) : nullptr;
    }
}

void FolderCheck::check(CheckedFile& entry) const {
    if (!entry.isChecked || !entry.found.empty()) {
        return;
    }
    entry.found = checkFile(knowledge_, entry.toCheck(looksIntoPictures_), entry.read.get());
    entry.read.reset();
    std::erase_if(entry.found, [this](const Finding& finding) { return suppressions_.covers(finding); });
    if (entry.found.empty()) {
        entry.content = {};
    }
}

void FolderCheck::finishSurvey() {
    survey_.finish(knowledge_);
}

bool FolderCheck::step() {
    if (surveyed_ < files_.size()) {
        survey(files_[surveyed_++], survey_);
        if (surveyed_ == files_.size()) {
            finishSurvey();
        }
        return true;
    }
    if (checked_ < files_.size()) {
        check(files_[checked_++]);
    }
    return !isDone();
}

void FolderCheck::run(std::size_t threads) {
    constexpr std::size_t filesPerTurn = 16;
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t most = files_.size() / filesPerTurn + 1;
    threads = std::min(threads == 0 ? cores : threads, most);
    std::atomic<std::size_t> next = surveyed_;
    const auto share = [&](auto visit) {
        for (std::size_t from = next.fetch_add(filesPerTurn); from < files_.size();
             from = next.fetch_add(filesPerTurn)) {
            for (std::size_t i = from; i < std::min(from + filesPerTurn, files_.size()); ++i) {
                visit(files_[i]);
            }
        }
    };
    if (surveyed_ < files_.size()) {
        std::vector<UnitSurvey> surveys(threads, UnitSurvey(knowledge_));
        inThreads(threads, [&](std::size_t thread) {
            share([&](CheckedFile& file) { survey(file, surveys[thread]); });
        });
        for (UnitSurvey& one : surveys) {
            survey_.join(std::move(one));
        }
        surveyed_ = files_.size();
        finishSurvey();
    }
    next = checked_;
    inThreads(threads, [&](std::size_t) { share([&](CheckedFile& file) { check(file); }); });
    checked_ = files_.size();
}

WalkProgress FolderCheck::progress() const {
    const std::size_t done = surveyed_ + checked_;
    const std::size_t at = surveyed_ < files_.size() ? surveyed_ : checked_;
    return {.done = done,
            .total = 2 * files_.size(),
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
