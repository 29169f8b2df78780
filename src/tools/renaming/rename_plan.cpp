#include "tools/renaming/rename_plan.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_name.h"
#include "mod/each_mod_field.h"
#include "mod/mod_settings.h"
#include "mod/mod_text.h"
#include "tools/checks/engine/suppressions.h"
#include "tools/where_used.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// The last part of a name that has folders in it.
std::string_view lastPart(std::string_view name) {
    return name.substr(name.find_last_of("\\/") + 1);
}

bool isOfKind(ReferenceKind reference, RenameKind kind) {
    switch (reference) {
    case ReferenceKind::Weapon:
        return kind == RenameKind::Weapon;
    case ReferenceKind::Picture:
    case ReferenceKind::Uniform:
        return kind == RenameKind::Picture;
    case ReferenceKind::Sound:
        return kind == RenameKind::Sound;
    case ReferenceKind::Flag:
    case ReferenceKind::Nationality:
    case ReferenceKind::Unit: // is in equipment lists alone
        break;
    }
    return false;
}

} // namespace

RenamePlanner::RenamePlanner(RenameRequest request)
    : request_(std::move(request)), assets_(request_.folders) {}

bool RenamePlanner::step() {
    if (isOver_) {
        return false;
    }
    if (!isBegun_) {
        isBegun_ = true;
        begin();
        isOver_ = !plan_.refusals.empty();
        return !isOver_;
    }
    if (walk_.step([this](const GameFile& file, std::string_view content) { read(file, content); })) {
        return true;
    }
    isOver_ = true;
    finish();
    return false;
}

JobProgress RenamePlanner::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

void RenamePlanner::begin() {
    plan_.base = request_.folders.mod.empty() ? request_.folders.program : request_.folders.mod;
    targets_ = findRenameTargets(request_, assets_);
    plan_.refusals = targets_.refusals;
    if (!plan_.refusals.empty()) {
        return;
    }
    for (const RenameTarget& target : targets_.files) {
        plan_.changes.push_back({.file = below(target.path), .from = targets_.from, .to = targets_.to});
        if (request_.kind == RenameKind::Picture || request_.kind == RenameKind::Sound) {
            plan_.rewrites.push_back({.path = target.path, .newPath = target.newPath, .keepsContent = true});
        }
    }
    readSettings();
    readSuppressions();
    std::vector<FileFailure> ignored; // folders that a mod, or a game in the making, need not have
    std::vector<GameFile> all = listAllFiles(request_.folders, ignored);
    if (request_.kind == RenameKind::Unit) {
        // No unit names another.
        std::erase_if(all, [this](const GameFile& file) { return targetOf(file.path) == nullptr; });
    }
    // Weapons come first: units name them by names that only the weapons' files have.
    std::stable_partition(all.begin(), all.end(),
                          [](const GameFile& file) { return file.category == Category::Weapons; });
    walk_ = GameFileWalk(std::move(all));
}

bool RenamePlanner::isNamed(const Reference& reference) {
    if (!isOfKind(reference.kind, request_.kind) ||
        !equalsIgnoringCase(lastPart(bareName(reference.written)), targets_.from)) {
        return false;
    }
    const AssetFile* file = assets_.find(reference);
    if (file != nullptr) {
        return targetOf(file->path()) != nullptr;
    }
    // What names a picture that is not there, beside others of its name, goes along.
    return request_.kind == RenameKind::Picture && !targets_.isOneOfSeveral;
}

const RenameTarget* RenamePlanner::targetOf(std::string_view path) const {
    const auto found = std::find_if(targets_.files.begin(), targets_.files.end(),
                                    [&](const RenameTarget& target) { return target.path == path; });
    return found == targets_.files.end() ? nullptr : &*found;
}

void RenamePlanner::addEdit(Edits& edits, const std::string& file, std::string path,
                            std::string_view written) {
    const std::string_view name = lastPart(bareName(written));
    const std::string_view folders =
        written.substr(0, static_cast<std::size_t>(name.data() - written.data()));
    const std::string to = std::string(folders) + targets_.to;
    if (to.size() + targets_.ending.size() > Text::MaxLength) {
        plan_.refusals.push_back(file + ": the name would be too long for the file");
    }
    edits.push_back({.path = std::move(path), .from = std::string(folders) + std::string(name), .to = to});
}

void RenamePlanner::noteChanges(const std::string& file, const Edits& edits, const EditedText* text) {
    for (std::size_t i = 0; i < edits.size(); ++i) {
        plan_.changes.push_back({.file = file,
                                 .line = text == nullptr ? 0 : text->lines[i],
                                 .path = edits[i].path,
                                 .from = edits[i].from,
                                 .to = edits[i].to});
    }
}

void RenamePlanner::readSettings() {
    const std::string path = plan_.base + std::string(ModFileName);
    std::string content;
    if (!systemFiles().exists(path)) {
        return;
    }
    if (!systemFiles().read(path, content)) {
        plan_.refusals.push_back(path + " cannot be read, and may name it: " + systemFiles().lastError());
        return;
    }
    const ModSettings settings = readModSettings(content);
    Edits edits;
    forEachReference(settings, [&](const Reference& reference) {
        if (isNamed(reference)) {
            addEdit(edits, std::string(ModFileName), reference.path.text(), reference.written);
        }
    });
    if (request_.kind == RenameKind::Unit) {
        forEachListedUnit(settings, [&](const std::string& place, const ModListedUnit& unit) {
            const auto category = categoryOfWord(unit.category);
            if (category && equalsIgnoringCase(bareName(unit.fileName), targets_.from) &&
                targets_.files.front().folder == categoryFolder({}, *category)) {
                addEdit(edits, std::string(ModFileName), place, unit.fileName);
            }
        });
    }
    if (edits.empty()) {
        return;
    }
    const auto edited = editModNames(content, edits);
    if (!edited) {
        plan_.refusals.push_back(path + ": the name cannot be changed in it");
        return;
    }
    noteChanges(std::string(ModFileName), edits, &*edited);
    plan_.rewrites.push_back(
        {.path = path, .newPath = path, .before = std::move(content), .after = edited->text});
}

/// The list beside the data says of which files the checker is not to speak.
void RenamePlanner::readSuppressions() {
    const std::string path = plan_.base + std::string(SuppressionListName);
    std::string content;
    const bool isOfData = request_.kind == RenameKind::Weapon || request_.kind == RenameKind::Unit;
    if (!isOfData || !systemFiles().exists(path)) {
        return;
    }
    if (!systemFiles().read(path, content)) {
        plan_.refusals.push_back(path + " cannot be read, and may name it: " + systemFiles().lastError());
        return;
    }
    RenamedInList renamed{.text = content, .lines = {}};
    for (const RenameTarget& target : targets_.files) {
        const auto listed = [this](const std::string& file) {
            std::string name = below(file);
            std::replace(name.begin(), name.end(), '\\', '/');
            return name;
        };
        const std::string from = listed(target.path);
        const std::string to = listed(target.newPath);
        renamed = renamedInList(renamed.text, from, to);
        for (const std::size_t line : renamed.lines) {
            plan_.changes.push_back(
                {.file = std::string(SuppressionListName), .line = line, .from = from, .to = to});
        }
    }
    if (renamed.text != content) {
        plan_.rewrites.push_back({.path = path, .newPath = path, .before = content, .after = renamed.text});
    }
}

void RenamePlanner::checkWeapon(const WeaponRecord& weapon, const GameFile& file, Edits& edits) {
    const std::string& inside = weapon.name;
    assets_.nameWeapon(inside, file.name);
    if (request_.kind != RenameKind::Weapon) {
        return;
    }
    if (targetOf(file.path) == nullptr) {
        if (equalsIgnoringCase(inside, targets_.to)) {
            plan_.refusals.push_back(below(file.path) + " has that name in it");
        }
    } else if (equalsIgnoringCase(inside, targets_.from)) {
        addEdit(edits, below(file.path), "name", inside);
    } else if (!inside.empty()) {
        plan_.remarks.push_back("The name in its file, " + inside +
                                ", is another and stays, for those who name it so");
    }
}

void RenamePlanner::checkUnit(const SquadRecord& unit, const GameFile& file) {
    // One whose former name did not begin with the nationality either need not do so.
    if (targetOf(file.path) != nullptr && !refusalOfNationality(targets_.from, unit.nationality)) {
        if (auto refusal = refusalOfNationality(targets_.to, unit.nationality)) {
            plan_.refusals.push_back(std::move(*refusal));
        }
    }
}

void RenamePlanner::read(const GameFile& file, std::string_view content) {
    const bool isOwn = file.isOfMod == !request_.folders.mod.empty();
    const std::string name = isOwn ? below(file.path) : file.path;
    Edits edits;
    Diagnostics ignored;
    const ReferenceVisit visit = [&](const Reference& reference) {
        if (isNamed(reference)) {
            addEdit(edits, name, reference.path.text(), reference.written);
        }
    };
    if (file.category == Category::Weapons) {
        const WeaponRecord weapon = readWeapon(content, file.name, ignored);
        if (isOwn) {
            checkWeapon(weapon, file, edits);
        }
        forEachReference(weapon, visit);
    } else {
        const SquadRecord unit = readUnit(content, file.name, ignored);
        checkUnit(unit, file);
        forEachReference(unit, visit);
    }
    const RenameTarget* target = targetOf(file.path);
    if (!isOwn && !edits.empty()) {
        gameUsers_.push_back(std::string(categoryName(file.category)) + ": " + file.name);
        return;
    }
    if (edits.empty() && target == nullptr) {
        return;
    }
    auto edited = edits.empty() ? std::optional(EditedText{.text = std::string(content)})
                                : editNames(file.category, content, file.name, edits);
    if (!edited) {
        plan_.refusals.push_back(name + ": the name cannot be changed in it");
        return;
    }
    if (edited->isAnew) {
        plan_.remarks.push_back(
            name + " is written anew in the game's layout: with the new name in its place alone it "
                   "would be read otherwise");
    }
    noteChanges(name, edits, &*edited);
    plan_.rewrites.push_back({.path = file.path,
                              .newPath = target != nullptr ? target->newPath : file.path,
                              .before = std::string(content),
                              .after = std::move(edited->text)});
}

void RenamePlanner::finish() {
    for (const FileFailure& failure : walk_.failures()) {
        plan_.refusals.push_back(failure.path + " cannot be read, and may name it: " + failure.reason);
    }
    if (!gameUsers_.empty()) {
        constexpr std::size_t most = 5;
        std::string users;
        for (std::size_t i = 0; i < std::min(most, gameUsers_.size()); ++i) {
            users += (i == 0 ? "" : ", ") + gameUsers_[i];
        }
        const std::size_t rest = gameUsers_.size() - std::min(most, gameUsers_.size());
        users += rest > 0 ? " and " + std::to_string(rest) + " more" : std::string();
        plan_.remarks.push_back(
            "The game's own files are left as they are and no longer find the mod's file: " + users);
    }
}

RenamePlan RenamePlanner::take() {
    return std::move(plan_);
}

RenamePlan planRenaming(RenameRequest request) {
    RenamePlanner planner(std::move(request));
    runJob(planner);
    return planner.take();
}

} // namespace varrocade
