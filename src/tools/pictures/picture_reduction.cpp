#include "tools/pictures/picture_reduction.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/image_names.h"
#include "pictures/png_reduction.h"
#include "platform/safe_save.h"
#include "tools/references.h"

#include <algorithm>
#include <array>
#include <iterator>
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
    return {file.path, file.below(), size, factor < 1 ? scaledSize(size, factor) : size};
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

/// Scales all of a set; false, with nothing changed, where one cannot be.
bool scaleAll(const ReductionSet& set, std::vector<ReducedPicture>& pictures) {
    std::vector<ReducedPicture> scaled = pictures;
    for (std::size_t i = 0; i < set.size(); ++i) {
        if (scaled[i].outcome != ReductionOutcome::Failed) {
            take(scaled[i], scaledPng(scaled[i].former, set[i].wanted), ReductionOutcome::Scaled,
                 set[i].wanted);
        }
        if (scaled[i].outcome != ReductionOutcome::Scaled) {
            return false;
        }
    }
    pictures = std::move(scaled);
    return true;
}

} // namespace

std::vector<ReducedPicture> reduceSet(const ReductionSet& set) {
    std::vector<ReducedPicture> pictures;
    std::transform(set.begin(), set.end(), std::back_inserter(pictures), startedWith);
    const bool isScaled = std::any_of(set.begin(), set.end(),
                                      [](const PictureToReduce& each) { return each.wanted != each.size; });
    if (isScaled && scaleAll(set, pictures)) {
        return pictures;
    }
    for (ReducedPicture& picture : pictures) {
        if (picture.outcome != ReductionOutcome::Failed) {
            take(picture, recompressedPng(picture.former), ReductionOutcome::Recompressed,
                 picture.sizeBefore);
        }
    }
    return pictures;
}

void ReductionJob::start(const GameFolders& folders, const ReductionOptions& options,
                         std::optional<SquadRecord> open) {
    plan_.start(folders, options, std::move(open));
    isPlanned_ = false;
    results_.clear();
}

bool ReductionJob::step() {
    if (!isPlanned_) {
        isPlanned_ = !plan_.step();
    } else if (results_.size() < plan_.sets().size()) {
        results_.push_back(reduceSet(plan_.sets()[results_.size()]));
    }
    return !isPlanned_ || results_.size() < plan_.sets().size();
}

JobProgress ReductionJob::progress() const {
    if (!isPlanned_) {
        return plan_.progress();
    }
    const std::vector<ReductionSet>& sets = plan_.sets();
    const std::size_t done = results_.size();
    return {done, sets.size(), done < sets.size() ? sets[done].front().below : std::string()};
}

std::optional<FileFailure> writeReducedSet(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, std::vector<ReducedPicture>& set) {
    std::optional<FileFailure> failure;
    std::size_t written = 0;
    for (; written < set.size() && !failure; ++written) {
        const ReducedPicture& picture = set[written];
        std::string now;
        if (picture.content.empty()) {
            continue;
        }
        if (!files.read(picture.path, now)) {
            failure = FileFailure{picture.path, files.lastError()};
        } else if (now != picture.former) {
            failure = FileFailure{picture.path, "was changed meanwhile"};
        } else {
            failure = replaceDataFile(files, backups, base, picture.path, picture.content);
        }
    }
    if (!failure) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i + 1 < written; ++i) {
        if (!set[i].content.empty()) {
            // Backups has it too, should even this fail.
            static_cast<void>(saveFile(files, set[i].path, set[i].former));
        }
    }
    for (ReducedPicture& picture : set) {
        picture.outcome = ReductionOutcome::Failed;
        picture.reason = failure->path == picture.path ? failure->reason : "belongs to one that failed";
        picture.sizeAfter = picture.sizeBefore;
        picture.bytesAfter = picture.bytesBefore;
    }
    return failure;
}

std::string_view outcomeName(ReductionOutcome outcome) {
    constexpr auto names = std::to_array<std::string_view>({"as it is", "recompressed", "scaled", "failed"});
    return names.at(static_cast<std::size_t>(outcome));
}

} // namespace varrocade
