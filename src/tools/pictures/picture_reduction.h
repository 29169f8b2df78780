#pragma once
// "Reduce image sizes": which pictures of a game or mod are made smaller, and doing it.

#include "data/game_files.h"
#include "pictures/png_codec.h"
#include "platform/backups.h"
#include "tools/background_work.h"
#include "tools/job.h"
#include "tools/pictures/picture_sets.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varrocade {

struct ReductionOptions {
    /// The vehicle whose pictures are meant; all pictures of the game, or of the mod in use, where it is
    /// empty.
    std::string vehicle = {};
    /// Whether what has more pixels than the game needs is scaled; all else keeps its pixels.
    bool scalesDown = false;
};

struct PictureToReduce {
    std::string path;
    std::string below; ///< the path below the base folder, for people
    PictureSize size;
    PictureSize wanted; ///< the same where it is not to be scaled
};

/// Pictures that are written together or not at all: the scale of a vehicle's drawing hangs on all of them.
using ReductionSet = std::vector<PictureToReduce>;

/// Finds out what is to be done, in steps of a file. Nothing is scaled where a unit cannot be read: what it
/// needs is not known then.
class ReductionPlan : public Job {
public:
    /// `open`, where there is one, counts as it is in the window in place of its file.
    void start(const GameFolders& folders, const ReductionOptions& options,
               std::optional<SquadRecord> open = std::nullopt);
    bool step() override;

    [[nodiscard]] JobProgress progress() const override;
    /// Complete once `step` gave false.
    [[nodiscard]] const std::vector<ReductionSet>& sets() const { return result_; }
    [[nodiscard]] std::vector<FileFailure> failures() const override { return failures_; }
    /// Whether the vehicle that was asked for is there.
    [[nodiscard]] bool isVehicleFound() const { return isVehicleFound_; }

private:
    void finish();
    void addFile(const GameFile& file, std::string_view content);
    void noteWanted(const SquadRecord& unit);
    [[nodiscard]] std::vector<const AssetFile*> wantedFiles();
    [[nodiscard]] PictureToReduce planned(const AssetFile& file, double factor);

    GameFolders folders_;
    ReductionOptions options_;
    std::optional<SquadRecord> open_;
    GameFileWalk walk_;
    std::unique_ptr<GamePictures> pictures_;
    std::unique_ptr<PictureSets> sets_;
    std::vector<const AssetFile*> ofVehicle_;
    std::vector<ReductionSet> result_;
    std::vector<FileFailure> failures_;
    bool isVehicleFound_ = false;
    bool isDone_ = true;
};

enum class ReductionOutcome : std::uint8_t { Unchanged, Recompressed, Scaled, Failed };

struct ReducedPicture {
    std::string path;
    std::string below;
    ReductionOutcome outcome = ReductionOutcome::Unchanged;
    PictureSize sizeBefore = {};
    PictureSize sizeAfter = {};
    std::size_t bytesBefore = 0;
    std::size_t bytesAfter = 0;
    std::string content = {}; ///< what is to be written; empty where nothing is
    std::string former = {};  ///< what the file holds
    std::string reason = {};  ///< why nothing could be done
};

/// Reads and makes smaller what a set names; nothing is written. Where one of several pictures cannot be
/// scaled to fewer bytes, none is, and they keep their pixels.
std::vector<ReducedPicture> reduceSet(const ReductionSet& set);

/// The same in steps of a picture.
class SetReduction {
public:
    explicit SetReduction(const ReductionSet& set, SearchWatch watch = {});
    /// False when nothing is left to do.
    bool step();
    [[nodiscard]] std::vector<ReducedPicture>& pictures() { return pictures_; }
    /// How many pictures are done. Where one cannot be scaled, they begin anew.
    [[nodiscard]] std::size_t done() const { return next_; }
    [[nodiscard]] const std::string& nextName() const;

private:
    void scaleNext();

    const ReductionSet* set_;
    SearchWatch watch_; ///< of the picture at hand
    std::vector<ReducedPicture> pictures_;
    std::vector<ReducedPicture> scaled_; ///< counts once all are scaled
    bool isScaling_;
    std::string notScaled_; ///< why
    std::size_t next_ = 0;
};

/// Plans in steps of a file, then makes the pictures smaller on a thread of its own, for a window: a large
/// picture takes seconds. Nothing is written. A job that is dropped tells the thread to end, which it does
/// after the file that it tries.
class ReductionJob : public Job {
public:
    ReductionJob() = default;
    ReductionJob(const ReductionJob&) = delete;
    ReductionJob& operator=(const ReductionJob&) = delete;
    ~ReductionJob() override { abandon(); }

    void start(const GameFolders& folders, const ReductionOptions& options,
               std::optional<SquadRecord> open = std::nullopt);
    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    /// Units that could not be read; pictures tell in `results`.
    [[nodiscard]] std::vector<FileFailure> failures() const override { return plan_.failures(); }
    /// The sets, once all is done.
    [[nodiscard]] std::vector<std::vector<ReducedPicture>>& results() { return results_; }

private:
    struct Work;
    static void reduceAll(Work& work);
    void beginWork();
    void abandon();

    ReductionPlan plan_;
    std::shared_ptr<Work> work_; ///< shared with the thread
    BackgroundWork thread_;
    std::vector<std::vector<ReducedPicture>> results_;
};

/// Writes the pictures of a set, their former contents to Backups first. Where one fails, those that were
/// written get back what they held, all are `Failed` or as they were, and the failure is told.
std::optional<FileFailure> writeReducedSet(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, std::vector<ReducedPicture>& set);

/// Writes sets that were made smaller, one a step.
class ReductionWriter : public Job {
public:
    ReductionWriter(FileOperations& files, BackupKeeper& backups, std::string base,
                    std::vector<std::vector<ReducedPicture>*> sets)
        : files_(files), backups_(backups), base_(std::move(base)), sets_(std::move(sets)) {}

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override { return failures_; }
    /// How many sets were gone through.
    [[nodiscard]] std::size_t done() const { return done_; }

private:
    FileOperations& files_;
    BackupKeeper& backups_;
    std::string base_;
    std::vector<std::vector<ReducedPicture>*> sets_;
    std::size_t done_ = 0;
    std::vector<FileFailure> failures_;
};

/// A word for people: "scaled", "recompressed", "as it is", "failed".
std::string_view outcomeName(ReductionOutcome outcome);

} // namespace varrocade
