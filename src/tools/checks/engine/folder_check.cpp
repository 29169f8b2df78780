#include "tools/checks/engine/folder_check.h"

#include "data/finding_text.h"
#include "mod/mod_settings.h"
#include "platform/file_operations.h"
#include "tools/checks/engine/mod_file_check.h"
#include "tools/parallel.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace varrocade {

std::string shownPath(Category category, std::string_view name) {
    return "Data/" + std::string(categoryName(category)) + "/" + std::string(name) +
           std::string(DataFileEnding);
}

FolderCheck::FolderCheck(const GameFolders& folders, bool looksIntoPictures)
    : looksIntoPictures_(looksIntoPictures) {
    learnFolders(knowledge_, folders);
    list(folders);
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
        if (category == Category::Weapons) {
            firstWeapon_ = files_.size();
            weapons_.resize(list.files.size());
            hiddenWeapons_ = std::move(list.hidden);
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
    entry.found.clear();
    entry.found.push_back(std::move(finding));
    return false;
}

void FolderCheck::lookAtWeapon(CheckedFile& entry, Desk& desk, CatalogueReading& weapon) const {
    if (!read(entry, desk.content)) {
        weapon = unreadForCatalogue({entry.file.path, systemFiles().lastError()});
        return;
    }
    weapon = readForCatalogue(entry.file, desk.content, desk.unit.tree);
    checkWeapon(entry, desk, weapon);
}

void FolderCheck::lookAtUnit(CheckedFile& entry, Desk& desk, std::uint32_t number, UnitSurvey& survey) const {
    if (read(entry, desk.content)) {
        readForCheck(toCheck(entry, desk), desk.unit);
        survey.add(number, entry.file.category, entry.shown, desk.unit.unit);
        checkUnit(entry, desk);
    }
}

void FolderCheck::lookAgain(CheckedFile& entry, Desk& desk) const {
    if (!entry.isChecked || !read(entry, desk.content)) {
        return;
    }
    if (entry.file.category == Category::Weapons) {
        checkWeapon(entry, desk, readForCatalogue(entry.file, desk.content, desk.unit.tree));
    } else {
        readForCheck(toCheck(entry, desk), desk.unit);
        checkUnit(entry, desk);
    }
}

FileToCheck FolderCheck::toCheck(const CheckedFile& entry, const Desk& desk) const {
    return {entry.file.category, entry.file.name, entry.shown, desk.content, looksIntoPictures_};
}

void FolderCheck::checkUnit(CheckedFile& entry, const Desk& desk) const {
    if (entry.isChecked) {
        keep(entry, desk, checkFile(knowledge_, toCheck(entry, desk), &desk.unit));
    }
}

void FolderCheck::checkWeapon(CheckedFile& entry, const Desk& desk, const CatalogueReading& reading) const {
    if (entry.isChecked) {
        const ReadWeaponFile read{desk.unit.tree, reading.entry.weapon, reading.problems};
        keep(entry, desk, checkWeaponFile(knowledge_, toCheck(entry, desk), read));
    }
}

void FolderCheck::keep(CheckedFile& entry, const Desk& desk, std::vector<Finding> found) const {
    std::erase_if(found, [this](const Finding& finding) { return suppressions_.covers(finding); });
    entry.content = found.empty() ? std::string() : desk.content;
    entry.found = std::move(found);
}

void FolderCheck::finishWeapons() {
    knowledge_.ownCatalogue.take(knowledge_.files.bases(), std::move(weapons_), std::move(hiddenWeapons_));
    for (const CatalogueEntry* weapon : learnOwnWeapons(knowledge_)) {
        const auto file =
            std::find_if(files_.begin() + static_cast<std::ptrdiff_t>(firstWeapon_), files_.end(),
                         [weapon](const CheckedFile& entry) { return entry.file.path == weapon->path; });
        if (file != files_.end()) {
            outstanding_.push_back(static_cast<std::uint32_t>(file - files_.begin()));
        }
    }
}

void FolderCheck::finishUnits() {
    const std::vector<std::uint32_t> units = survey_.finish(knowledge_);
    outstanding_.insert(outstanding_.end(), units.begin(), units.end());
    // Some are there twice.
    std::sort(outstanding_.begin(), outstanding_.end());
    outstanding_.erase(std::unique(outstanding_.begin(), outstanding_.end()), outstanding_.end());
}

std::size_t FolderCheck::count() const {
    switch (stage_) {
    case Stage::Weapons:
        return files_.size() - firstWeapon_;
    case Stage::Units:
        return firstWeapon_;
    case Stage::Outstanding:
        return outstanding_.size();
    case Stage::Done:
        break;
    }
    return 0;
}

/// The place among the files of what a stage looks at.
std::size_t FolderCheck::placeOf(std::size_t i) const {
    return stage_ == Stage::Weapons ? firstWeapon_ + i : stage_ == Stage::Units ? i : outstanding_[i];
}

void FolderCheck::look(std::size_t i, Desk& desk, UnitSurvey& survey) {
    CheckedFile& entry = files_[placeOf(i)];
    if (stage_ == Stage::Weapons) {
        lookAtWeapon(entry, desk, weapons_[i]);
    } else if (stage_ == Stage::Units) {
        lookAtUnit(entry, desk, static_cast<std::uint32_t>(i), survey);
    } else {
        lookAgain(entry, desk);
    }
}

void FolderCheck::endStage() {
    if (stage_ == Stage::Weapons) {
        finishWeapons();
    } else if (stage_ == Stage::Units) {
        finishUnits();
    }
    done_ += at_;
    at_ = 0;
    stage_ = static_cast<Stage>(static_cast<unsigned>(stage_) + 1);
}

bool FolderCheck::step() {
    if (at_ < count()) {
        look(at_++, desk_, survey_);
    }
    while (!isDone() && at_ == count()) {
        endStage();
    }
    return !isDone();
}

void FolderCheck::run(unsigned threads) {
    constexpr std::size_t filesPerTurn = 16;
    threads = threadCount(threads);
    std::vector<Desk> desks(threads);
    while (!isDone()) {
        std::vector<UnitSurvey> surveys(threads, UnitSurvey(knowledge_));
        const auto lookAt = [&](std::size_t thread, std::size_t i) {
            look(at_ + i, desks[thread], surveys[thread]);
        };
        shareInParallel(count() - at_, filesPerTurn, lookAt, threads);
        for (UnitSurvey& one : surveys) {
            survey_.join(std::move(one));
        }
        at_ = count();
        endStage();
    }
}

WalkProgress FolderCheck::progress() const {
    return {.done = done_ + at_,
            .total = files_.size() + outstanding_.size(),
            .name = at_ < count() ? std::string_view(files_[placeOf(at_)].file.name) : std::string_view()};
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
