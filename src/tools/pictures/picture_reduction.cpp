#include "tools/pictures/picture_reduction.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/image_names.h"
#include "pictures/png_reduction.h"
#include "tools/file_replacement.h"
#include "tools/references.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <mutex>
#include <unordered_set>
#include <utility>

namespace varrocade {

void ReductionPlan::start(const GameFolders& folders, const ReductionOptions& options,
                          std::optional<SquadRecord> open) {
    folders_ = folders;
    options_ = options;
    open_ = std::move(open);
    ofVehicle_.clear();
    result_.clear();
    failures_.clear();
    isVehicleFound_ = false;
    isDone_ = false;
    pictures_ = std::make_unique<GamePictures>(folders);
    sets_ = std::make_unique<PictureSets>(*pictures_);
    std::vector<GameFile> files;
    for (const Category category : AllCategories) {
        const bool isNeeded = category == Category::Vehicles || options_.scalesDown;
        if (category == Category::Weapons || !isNeeded) {
            continue;
        }
        GameFileList list = listGameFiles(folders, category);
        failures_.insert(failures_.end(), list.failures.begin(), list.failures.end());
        std::copy_if(list.files.begin(), list.files.end(), std::back_inserter(files),
                     [&](const GameFile& file) {
                         return options_.scalesDown || equalsIgnoringCase(file.name, options_.vehicle);
                     });
    }
    walk_ = GameFileWalk(std::move(files));
}

JobProgress ReductionPlan::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

bool ReductionPlan::step() {
    if (isDone_) {
        return false;
    }
    if (!walk_.step([this](const GameFile& file, std::string_view content) { addFile(file, content); })) {
        finish();
    }
    return !isDone_;
}

void ReductionPlan::addFile(const GameFile& file, std::string_view content) {
    Diagnostics diagnostics;
    const bool isOpen =
        file.category == Category::Vehicles && open_ && equalsIgnoringCase(open_->fileName, file.name);
    const SquadRecord unit = isOpen ? *open_ : readUnit(content, file.name, diagnostics);
    if (options_.scalesDown) {
        sets_->add(unit);
    }
    if (file.category == Category::Vehicles && equalsIgnoringCase(file.name, options_.vehicle)) {
        isVehicleFound_ = true;
        noteWanted(unit);
    }
}

/// The pictures that show the vehicle; what its men wear belongs to all.
void ReductionPlan::noteWanted(const SquadRecord& unit) {
    forEachReference(unit, [this](const Reference& reference) {
        if (reference.kind == ReferenceKind::Picture) {
            const AssetFile* file = pictures_->files().find(reference);
            if (file != nullptr && file->isOfMod != folders_.mod.empty()) {
                ofVehicle_.push_back(file);
            }
        }
    });
}

std::vector<const AssetFile*> ReductionPlan::wantedFiles() {
    std::vector<const AssetFile*> wanted = ofVehicle_;
    if (options_.vehicle.empty()) {
        for (const std::string_view folder : pictureFolders()) {
            for (const AssetFile& file : pictures_->files().list(folder, ImageEnding)) {
                if (file.isOfMod != folders_.mod.empty()) {
                    wanted.push_back(&file);
                }
            }
        }
    }
    return wanted;
}

PictureToReduce ReductionPlan::planned(const AssetFile& file, double factor) {
    const PictureSize size = pictures_->sizeOf(file.below()).value_or(PictureSize{});
    return {file.path(), file.below(), size, factor < 1 ? scaledSize(size, factor) : size};
}

void ReductionPlan::finish() {
    isDone_ = true;
    failures_.insert(failures_.end(), walk_.failures().begin(), walk_.failures().end());
    const std::vector<const AssetFile*> wanted = wantedFiles();
    std::unordered_set<const AssetFile*> isWanted(wanted.begin(), wanted.end());
    if (options_.scalesDown && failures_.empty()) {
        for (const PictureSet& set : sets_->scalable()) {
            if (std::any_of(set.files.begin(), set.files.end(),
                            [&](const AssetFile* file) { return isWanted.count(file) != 0; })) {
                ReductionSet& together = result_.emplace_back();
                for (const AssetFile* file : set.files) {
                    isWanted.erase(file);
                    together.push_back(planned(*file, set.factor));
                }
            }
        }
    }
    for (const AssetFile* file : wanted) {
        if (isWanted.erase(file) != 0) {
            result_.push_back({planned(*file, 1)});
        }
    }
    sets_.reset();
}

namespace {

ReducedPicture startedWith(const PictureToReduce& picture) {
    ReducedPicture reduced{picture.path, picture.below};
    reduced.sizeBefore = reduced.sizeAfter = picture.size;
    if (!readWholeFile(picture.path, reduced.former)) {
        reduced.outcome = ReductionOutcome::Failed;
        reduced.reason = systemFiles().lastError();
    }
    reduced.bytesBefore = reduced.bytesAfter = reduced.former.size();
    return reduced;
}

void take(ReducedPicture& picture, PngReduction reduction, ReductionOutcome outcome, PictureSize size) {
    if (!reduction.failure.empty()) {
        picture.outcome = ReductionOutcome::Failed;
        picture.reason = std::move(reduction.failure);
    } else if (!reduction.content.empty()) {
        picture.outcome = outcome;
        picture.bytesAfter = reduction.content.size();
        picture.sizeAfter = size;
        picture.content = std::move(reduction.content);
    }
}

} // namespace

SetReduction::SetReduction(const ReductionSet& set, SearchWatch watch)
    : set_(&set), watch_(std::move(watch)),
      isScaling_(std::any_of(set.begin(), set.end(),
                             [](const PictureToReduce& each) { return each.wanted != each.size; })) {
    pictures_.reserve(set.size());
}

const std::string& SetReduction::nextName() const {
    const std::size_t next = pictures_.size() < set_->size() ? pictures_.size() : next_;
    return (*set_)[std::min(next, set_->size() - 1)].below;
}

bool SetReduction::step() {
    if (pictures_.size() < set_->size()) {
        pictures_.push_back(startedWith((*set_)[pictures_.size()]));
        return true;
    }
    if (isScaling_) {
        scaleNext();
    } else if (next_ < pictures_.size()) {
        ReducedPicture& picture = pictures_[next_];
        if (picture.outcome != ReductionOutcome::Failed) {
            take(picture, recompressedPng(picture.former, watch_), ReductionOutcome::Recompressed,
                 picture.sizeBefore);
            if (picture.outcome != ReductionOutcome::Failed) {
                picture.reason = notScaled_;
            }
        }
        ++next_;
    }
    return next_ < pictures_.size();
}

/// Where one cannot be scaled, none is.
void SetReduction::scaleNext() {
    ReducedPicture scaled = pictures_[next_];
    if (scaled.outcome != ReductionOutcome::Failed) {
        const PictureSize wanted = (*set_)[next_].wanted;
        take(scaled, scaledPng(scaled.former, wanted, watch_), ReductionOutcome::Scaled, wanted);
    }
    if (scaled.outcome != ReductionOutcome::Scaled) {
        isScaling_ = false;
        notScaled_ = "not scaled, since \"" + scaled.below.substr(scaled.below.rfind('\\') + 1) + "\" " +
                     (scaled.reason.empty() ? "would become no smaller" : scaled.reason);
        scaled_.clear();
        next_ = 0;
        return;
    }
    scaled_.push_back(std::move(scaled));
    if (++next_ == pictures_.size()) {
        isScaling_ = false;
        pictures_ = std::move(scaled_);
    }
}

std::vector<ReducedPicture> reduceSet(const ReductionSet& set) {
    SetReduction reduction(set);
    while (reduction.step()) {
    }
    return std::move(reduction.pictures());
}

/// What the job's thread works on. Whoever comes last of the two gives it back.
struct ReductionJob::Work {
    std::vector<ReductionSet> sets;
    std::mutex lock; ///< of what follows
    std::vector<std::vector<ReducedPicture>> results = {};
    JobProgress progress = {};
    bool isUnwanted = false;
};

void ReductionJob::start(const GameFolders& folders, const ReductionOptions& options,
                         std::optional<SquadRecord> open) {
    abandon();
    plan_.start(folders, options, std::move(open));
    results_.clear();
}

void ReductionJob::abandon() {
    if (work_) {
        const std::lock_guard guard(work_->lock);
        work_->isUnwanted = true;
    }
    thread_.leave();
    work_.reset();
}

namespace {

std::size_t pixelsOf(const PictureToReduce& picture) {
    return static_cast<std::size_t>(picture.wanted.width) * static_cast<std::size_t>(picture.wanted.height);
}

} // namespace

void ReductionJob::beginWork() {
    work_ = std::make_shared<Work>();
    work_->sets = plan_.sets();
    for (const ReductionSet& set : work_->sets) {
        for (const PictureToReduce& picture : set) {
            ++work_->progress.total;
            work_->progress.workTotal += pixelsOf(picture);
        }
    }
    thread_.start([work = work_] { reduceAll(*work); });
}

/// On the job's thread.
void ReductionJob::reduceAll(Work& work) {
    JobProgress before = work.progress; // with the sets that are done
    for (const ReductionSet& set : work.sets) {
        std::optional<SetReduction> reduction;
        const auto goesOn = [&](double share) {
            JobProgress now = before;
            const std::size_t done = reduction->done();
            now.done += done;
            now.name = reduction->nextName();
            for (std::size_t i = 0; i < done; ++i) {
                now.workDone += pixelsOf(set[i]);
            }
            if (done < set.size()) {
                now.workDone += static_cast<std::size_t>(share * static_cast<double>(pixelsOf(set[done])));
            }
            const std::lock_guard guard(work.lock);
            work.progress = std::move(now);
            return !work.isUnwanted;
        };
        reduction.emplace(set, goesOn);
        bool isMore = true;
        while (isMore) {
            if (!goesOn(0)) {
                return;
            }
            isMore = reduction->step();
        }
        before.done += set.size();
        for (std::size_t i = 0; i < set.size(); ++i) {
            before.workDone += pixelsOf(set[i]);
            if (ReducedPicture& picture = reduction->pictures()[i]; picture.content.empty()) {
                picture.former = {};
            }
        }
        const std::lock_guard guard(work.lock);
        work.results.push_back(std::move(reduction->pictures()));
    }
    const std::lock_guard guard(work.lock);
    before.name.clear();
    work.progress = std::move(before);
}

bool ReductionJob::step() {
    if (!work_) {
        if (!plan_.step()) {
            beginWork();
        }
        return true;
    }
    if (!thread_.isDone()) {
        return true;
    }
    results_ = std::move(work_->results);
    return false;
}

JobProgress ReductionJob::progress() const {
    if (!work_) {
        return plan_.progress();
    }
    const std::lock_guard guard(work_->lock);
    return work_->progress;
}

std::optional<FileFailure> writeReducedSet(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, std::vector<ReducedPicture>& set) {
    std::vector<FileReplacement> replacements;
    for (const ReducedPicture& picture : set) {
        if (!picture.content.empty()) {
            replacements.push_back({picture.path, picture.former, picture.content});
        }
    }
    std::optional<FileFailure> failure = replaceTogether(files, backups, base, std::move(replacements));
    for (ReducedPicture& picture : set) {
        if (failure) {
            picture.outcome = ReductionOutcome::Failed;
            picture.reason = failure->path == picture.path ? failure->reason : "belongs to one that failed";
            picture.sizeAfter = picture.sizeBefore;
            picture.bytesAfter = picture.bytesBefore;
        }
    }
    return failure;
}

bool ReductionWriter::step() {
    if (done_ < sets_.size()) {
        if (auto failure = writeReducedSet(files_, backups_, base_, *sets_[done_])) {
            failures_.push_back(std::move(*failure));
        }
        ++done_;
    }
    return done_ < sets_.size();
}

JobProgress ReductionWriter::progress() const {
    return {done_, sets_.size(), done_ < sets_.size() ? sets_[done_]->front().below : std::string()};
}

std::string_view outcomeName(ReductionOutcome outcome) {
    constexpr auto names = std::to_array<std::string_view>({"as it is", "recompressed", "scaled", "failed"});
    return names.at(static_cast<std::size_t>(outcome));
}

} // namespace varrocade
