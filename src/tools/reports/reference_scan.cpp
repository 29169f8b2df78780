#include "tools/reports/reference_scan.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "mod/mod_settings.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// Where a file that is nowhere should be: in the folder that its name is made for, otherwise in the first.
std::string expectedPath(const Reference& reference) {
    const auto fits = [&](const ImageSource& source) {
        return !source.prefix.empty() && reference.name.starts_with(source.prefix);
    };
    const auto made = std::find_if(reference.folders.begin(), reference.folders.end(), fits);
    const auto plain = std::find_if(reference.folders.begin(), reference.folders.end(),
                                    [](const ImageSource& source) { return source.prefix.empty(); });
    const ImageSource& source = made != reference.folders.end()    ? *made
                                : plain != reference.folders.end() ? *plain
                                                                   : reference.folders.front();
    return std::string(source.folder) + std::string(reference.name) + std::string(reference.ending);
}

} // namespace

ReferenceScan::ReferenceScan(GameFolders folders)
    : files_(std::move(folders)), noteUser_([this](const Reference& reference) { note(reference); }) {}

void ReferenceScan::note(const Reference& reference) {
    if (reference.folders.empty()) {
        return;
    }
    // Thousands of units name the same few hundred files: each is looked for once.
    ListsByName& lists = lists_[reference.folders.data()];
    auto known = lists.find(reference.name);
    if (known == lists.end()) {
        known = lists.emplace(reference.name, listOf(reference)).first;
    }
    const std::size_t user = users_.size() - 1;
    std::vector<std::size_t>* list = known->second;
    if (list != nullptr && (list->empty() || list->back() != user)) {
        list->push_back(user);
    }
}

/// The list of those who name a file; null for one that nobody misses.
std::vector<std::size_t>* ReferenceScan::listOf(const Reference& reference) {
    if (const AssetFile* file = files_.find(reference)) {
        return &usages_[file];
    }
    if (reference.kind == ReferenceKind::Flag) {
        // A nation without a flag has none: nobody wrote its name down.
        return nullptr;
    }
    std::string below = expectedPath(reference);
    MissingFile& missing = missing_[loweredText(below)];
    if (missing.below.empty()) {
        missing.kind = reference.kind;
        missing.below = std::move(below);
    }
    return &missing.users;
}

/// Weapons come first: units name them by names that only the weapons' files have.
void ReferenceScan::list() {
    std::vector<GameFile> all = listAllFiles(files_.bases(), failures_);
    std::stable_partition(all.begin(), all.end(),
                          [](const GameFile& file) { return file.category == Category::Weapons; });
    users_.reserve(all.size() + 2);
    // A unit has some pictures of its own.
    constexpr std::size_t filesAUnit = 4;
    usages_.reserve(filesAUnit * all.size());
    users_.push_back({.name = "the game"});
    forEachGameReference([this](const Reference& reference) {
        // What the game would take if there were one is not missing.
        if (files_.find(reference) != nullptr) {
            note(reference);
        }
    });
    const std::string& mod = files_.bases().mod;
    if (!mod.empty()) {
        users_.push_back({.name = std::string(ModFileName)});
        if (const auto settings = loadModSettings(mod)) {
            forEachReference(*settings, noteUser_);
        }
    }
    walk_ = GameFileWalk(std::move(all));
}

void ReferenceScan::read(const GameFile& file, std::string_view content) {
    std::string name(categoryName(file.category));
    name.append(": ").append(file.name);
    users_.push_back({std::move(name), file});
    Diagnostics diagnostics;
    if (file.category == Category::Weapons) {
        const WeaponRecord weapon = readWeapon(content, file.name, diagnostics);
        files_.nameWeapon(weapon.name, file.name);
        forEachReference(weapon, noteUser_);
        return;
    }
    forEachReference(readUnit(content, file.name, diagnostics), noteUser_);
}

bool ReferenceScan::step() {
    if (!isListed_) {
        isListed_ = true;
        list();
        return true;
    }
    return walk_.step([this](const GameFile& file, std::string_view content) { read(file, content); });
}

JobProgress ReferenceScan::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

std::vector<FileFailure> ReferenceScan::failures() const {
    std::vector<FileFailure> all = failures_;
    all.insert(all.end(), walk_.failures().begin(), walk_.failures().end());
    return all;
}

const std::vector<std::size_t>* ReferenceScan::usersOf(const AssetFile& file) const {
    const auto usage = usages_.find(&file);
    return usage == usages_.end() ? nullptr : &usage->second;
}

std::vector<MissingFile> ReferenceScan::missing() const {
    std::vector<MissingFile> files;
    files.reserve(missing_.size());
    for (const auto& [key, file] : missing_) {
        files.push_back(file);
    }
    return files;
}

void appendUsers(std::string& text, const ReferenceScan& scan, const std::vector<std::size_t>& users) {
    for (const std::size_t user : users) {
        text.append(1, '\t').append(scan.users()[user].name).append("\r\n");
    }
}

} // namespace varrocade
