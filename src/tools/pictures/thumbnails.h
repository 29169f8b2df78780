#pragma once
// Small pictures of all vehicles, and a sheet of them for each nationality.

#include "data/game_files.h"
#include "tools/job.h"
#include "tools/pictures/game_pictures.h"
#include "view/painting/pixmap.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

inline constexpr std::string_view ThumbnailFolder = "Thumbnails\\";

struct ThumbnailOptions {
    /// Pixels a metre, the same for all vehicles; 0 where each is fitted.
    double scale = 0;
    /// The side of the square that each vehicle is fitted into, in pixels. None is blown up beyond its
    /// pictures.
    int side = 256;
};
inline constexpr int GreatestThumbnailScale = 400; ///< pixels a metre
inline constexpr int LeastThumbnailSide = 16;
inline constexpr int GreatestThumbnailSide = 2048;

/// A vehicle's thumbnail before it is drawn.
struct PlannedThumbnail {
    std::string name;        ///< of the vehicle
    std::string nationality; ///< as people call it
    PictureSize size;
    double pixelsPerCentimetre = 1;
    Point least; ///< of what is shown, which is in the middle
    Point greatest;
    std::vector<PictureItem> pictures; ///< with the paths of their files
};

/// A sheet: the thumbnails of one nationality with names.
struct PlannedSheet {
    std::string name; ///< the nationality, with a number from the second sheet on
    std::size_t first = 0;
    std::size_t count = 0; ///< of the plan's thumbnails from `first` on
    int columns = 1;
    PictureSize cell;
};

/// Finds out which thumbnails there are, in steps of a file: of the vehicles of the game, or of the mod in
/// use.
class ThumbnailPlan : public Job {
public:
    void start(const GameFolders& folders, const ThumbnailOptions& options);
    bool step() override;

    [[nodiscard]] JobProgress progress() const override;
    /// Complete once `step` gave false: by nationality and name, and the sheets in the same order.
    [[nodiscard]] const std::vector<PlannedThumbnail>& thumbnails() const { return thumbnails_; }
    [[nodiscard]] const std::vector<PlannedSheet>& sheets() const { return sheets_; }
    /// Files that could not be read, and vehicles without any picture.
    [[nodiscard]] std::vector<FileFailure> failures() const override { return failures_; }

private:
    void addFile(const GameFile& file, std::string_view content);
    void finish();

    ThumbnailOptions options_;
    GameFileWalk walk_;
    std::unique_ptr<GamePictures> pictures_;
    std::vector<PlannedThumbnail> thumbnails_;
    std::vector<PlannedSheet> sheets_;
    std::vector<FileFailure> failures_;
    bool isDone_ = true;
};

/// Reads a thumbnail's pictures and lays them over one another. What cannot be read is left out and told.
Pixmap drawThumbnail(const PlannedThumbnail& thumbnail, std::vector<FileFailure>& failures);

/// Lays out a sheet; `drawn` are the sheet's thumbnails.
Pixmap drawSheet(const PlannedSheet& sheet, std::span<const PlannedThumbnail> planned,
                 std::span<const Pixmap> drawn);

/// Where the files go, below the folder of thumbnails: "German\German Tiger.png", "German.png".
std::string thumbnailFile(const PlannedThumbnail& thumbnail);
std::string sheetFile(const PlannedSheet& sheet);

/// Plans, draws and writes in steps of a file, for a window.
class ThumbnailJob : public Job {
public:
    ThumbnailJob(const GameFolders& folders, const ThumbnailOptions& options, std::string folder);
    ~ThumbnailJob() override;

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override;
    /// Complete once all vehicles were read.
    [[nodiscard]] const std::vector<PlannedSheet>& sheets() const { return plan_.sheets(); }
    /// How many PNGs there are so far, thumbnails and sheets.
    [[nodiscard]] std::size_t written() const;

private:
    ThumbnailPlan plan_;
    std::string folder_;
    std::unique_ptr<class ThumbnailWriter> writer_; ///< once it is planned
    std::size_t done_ = 0;
};

/// Creates the folders, and writes all thumbnails and sheets below `folder` on `threads` threads; as many as
/// there are processors where that is 0. A failing file is told and stops nothing.
std::vector<FileFailure> writeThumbnails(const ThumbnailPlan& plan, const std::string& folder,
                                         unsigned threads = 0);

} // namespace varrocade
