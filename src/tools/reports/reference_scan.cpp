#include "tools/reports/reference_scan.h"

#include "data/format/texts.h"
#include "mod/mod_settings.h"
#include "tools/file_shares.h"
#include "tools/parallel.h"

#include <algorithm>
#include <iterator>
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

ReferenceScan::ReferenceScan(GameFolders folders) : files_(std::move(folders)) {}

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

void ReferenceScan::list() {
    isListed_ = true;
    toRead_ = listAllFiles(files_.bases(), failures_);
    std::stable_partition(toRead_.begin(), toRead_.end(),
                          [](const GameFile& file) { return file.category == Category::Weapons; });
    users_.reserve(toRead_.size() + 2);
    users_.push_back({.name = "the game"});
    forEachGameReference([this](const Reference& reference) {
        // What the game would take if there were one is not missing.
        if (files_.find(reference) != nullptr) {
            notes_.front().note(reference, 0);
        }
    });
    const std::string& mod = files_.bases().mod;
    if (!mod.empty()) {
        users_.push_back({.name = std::string(ModFileName)});
        if (const auto settings = loadModSettings(mod)) {
            forEachReference(*settings,
                             [this](const Reference& reference) { notes_.front().note(reference, 1); });
        }
    }
    firstFile_ = users_.size();
    for (const GameFile& file : toRead_) {
        std::string name(categoryName(file.category));
        name.append(": ").append(file.name);
        users_.push_back({std::move(name), file});
    }
}

/// Sorts what several threads noted as one would have come to it. Weapons are known by the names that units
/// use before anything is looked for.
void ReferenceScan::sortNamed() {
    std::vector<const NamedWeapon*> weapons;
    for (ReferenceNotes& one : notes_) {
        for (NamedFile& named : one.files()) {
            named_.push_back(&named);
        }
        for (const NamedWeapon& weapon : one.weapons()) {
            weapons.push_back(&weapon);
        }
    }
    // A user is in one thread's notes only.
    std::stable_sort(named_.begin(), named_.end(), [](const NamedFile* a, const NamedFile* b) {
        return a->users.front() < b->users.front();
    });
    std::sort(weapons.begin(), weapons.end(),
              [](const NamedWeapon* a, const NamedWeapon* b) { return a->user < b->user; });
    for (const NamedWeapon* weapon : weapons) {
        files_.nameWeapon(weapon->name, weapon->fileName);
    }
    // A unit has some pictures of its own.
    usages_.reserve(named_.size());
}

void ReferenceScan::settle(NamedFile& named) {
    Reference reference;
    reference.kind = named.kind;
    reference.name = named.name;
    reference.folders = named.folders;
    reference.ending = named.ending;
    std::vector<std::size_t>* list = listOf(reference);
    if (list == nullptr) {
        return;
    }
    if (list->empty()) {
        *list = std::move(named.users);
        return;
    }
    const std::vector<std::size_t> known = std::move(*list);
    list->clear();
    std::set_union(known.begin(), known.end(), named.users.begin(), named.users.end(),
                   std::back_inserter(*list));
}

bool ReferenceScan::step() {
    if (!isListed_) {
        list();
        walk_ = GameFileWalk(std::move(toRead_));
        return true;
    }
    const auto read = [this](const GameFile& file, std::string_view content) {
        notes_.front().read(file, content, firstFile_ + walk_.progress().done);
    };
    if (walk_.step(read)) {
        return true;
    }
    if (named_.empty()) {
        sortNamed();
    }
    constexpr std::size_t namesAStep = 200;
    const std::size_t end = std::min(settled_ + namesAStep, named_.size());
    while (settled_ < end) {
        settle(*named_[settled_++]);
    }
    return settled_ < named_.size();
}

void ReferenceScan::run(unsigned threads) {
    threads = threadCount(threads);
    if (isListed_ || threads == 1) {
        while (step()) {
        }
        return;
    }
    list();
    std::vector<FileShare> shares = shareFiles(toRead_, threads);
    while (notes_.size() < threads) {
        notes_.emplace_back();
    }
    const auto readShares = [&](std::size_t thread) {
        for (std::size_t i = thread; i < shares.size(); i += threads) {
            GameFileWalk& walk = shares[i].walk;
            const std::size_t first = firstFile_ + shares[i].first;
            walk.run([&](const GameFile& file, std::string_view content) {
                notes_[thread].read(file, content, first + walk.progress().done);
            });
        }
    };
    forEachInParallel(threads, readShares, threads);
    appendFailures(failures_, shares);
    readInThreads_ = toRead_.size();
    sortNamed();
    for (NamedFile* named : named_) {
        settle(*named);
    }
    settled_ = named_.size();
}

JobProgress ReferenceScan::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done + readInThreads_, walked.total + readInThreads_, std::string(walked.name)};
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
