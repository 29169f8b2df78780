#include "tools/pictures/thumbnails.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/enumerations.h"
#include "pictures/png_codec.h"
#include "platform/safe_save.h"
#include "tools/parallel.h"
#include "tools/pictures/canvas.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <iterator>
#include <mutex>
#include <utility>

namespace varrocade {

namespace {

constexpr double CentimetresPerMetre = 100;
constexpr int CellMargin = 6;
constexpr int MostNameLines = 3;
constexpr int LeastCellWidth = 110; ///< so that most names take few lines
constexpr std::string_view NoNationality = "Other";

/// The scale and size of the thumbnail of something of an extent.
void fitThumbnail(PlannedThumbnail& thumbnail, const ThumbnailOptions& options) {
    const double width = std::max(1.0, thumbnail.greatest.x - thumbnail.least.x);
    const double height = std::max(1.0, thumbnail.greatest.y - thumbnail.least.y);
    if (options.scale <= 0) {
        const double side = options.side;
        thumbnail.pixelsPerCentimetre = std::min({1.0, side / width, side / height});
        thumbnail.size = {options.side, options.side};
        return;
    }
    // Whatever a file says of its size, the thumbnail stays one that can be looked at.
    const double greatest = GreatestThumbnailSide;
    thumbnail.pixelsPerCentimetre =
        std::min({options.scale / CentimetresPerMetre, greatest / width, greatest / height});
    const auto pixels = [&](double length) {
        return std::max(1, static_cast<int>(std::ceil(length * thumbnail.pixelsPerCentimetre)));
    };
    thumbnail.size = {pixels(width), pixels(height)};
}

/// The name without its nationality, which the sheet has as a whole.
std::string_view shortName(const PlannedThumbnail& thumbnail) {
    std::string_view name = thumbnail.name;
    if (name.size() > thumbnail.nationality.size() + 1 && name.starts_with(thumbnail.nationality) &&
        name[thumbnail.nationality.size()] == ' ') {
        name.remove_prefix(thumbnail.nationality.size() + 1);
    }
    return name;
}

/// The sheets of thumbnails of one nationality. So many that each can be opened again.
void addSheets(std::vector<PlannedSheet>& sheets, std::span<const PlannedThumbnail> all, std::size_t first,
               std::size_t count) {
    PictureSize cell{LeastCellWidth, 0};
    for (const PlannedThumbnail& thumbnail : all.subspan(first, count)) {
        cell.width = std::max(cell.width, thumbnail.size.width);
        cell.height = std::max(cell.height, thumbnail.size.height);
    }
    cell.width += 2 * CellMargin;
    cell.height += 2 * CellMargin + MostNameLines * TextLineHeight;
    const auto pixels = static_cast<std::size_t>(cell.width) * static_cast<std::size_t>(cell.height);
    const std::size_t most = std::max<std::size_t>(1, MostPicturePixels / pixels * 3 / 4);
    for (std::size_t done = 0; done < count; done += most) {
        const std::size_t here = std::min(most, count - done);
        const double square = std::sqrt(static_cast<double>(here) * cell.height / cell.width);
        const int columns = std::clamp(static_cast<int>(std::lround(square)), 1, static_cast<int>(here));
        std::string name = all[first].nationality;
        if (done > 0) {
            name += " " + std::to_string(done / most + 1);
        }
        sheets.push_back({std::move(name), first + done, here, columns, cell});
    }
}

} // namespace

void ThumbnailPlan::start(const GameFolders& folders, const ThumbnailOptions& options) {
    options_ = options;
    thumbnails_.clear();
    sheets_.clear();
    pictures_ = std::make_unique<GamePictures>(folders);
    GameFileList list = listGameFiles(folders, Category::Vehicles);
    failures_ = std::move(list.failures);
    std::erase_if(list.files, [&](const GameFile& file) { return file.isOfMod == folders.mod.empty(); });
    walk_ = GameFileWalk(std::move(list.files));
    isDone_ = false;
}

JobProgress ThumbnailPlan::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

bool ThumbnailPlan::step() {
    if (isDone_) {
        return false;
    }
    if (!walk_.step([this](const GameFile& file, std::string_view content) { addFile(file, content); })) {
        finish();
    }
    return !isDone_;
}

void ThumbnailPlan::addFile(const GameFile& file, std::string_view content) {
    Diagnostics diagnostics;
    const SquadRecord unit = readUnit(content, file.name, diagnostics);
    if (!unit.vehicle) {
        failures_.push_back({file.path, "holds no vehicle"});
        return;
    }
    const DrawList drawn = drawVehicle(*unit.vehicle, GamePictures::drawOptions(), *pictures_);
    PlannedThumbnail thumbnail;
    thumbnail.name = file.name;
    thumbnail.nationality = displayName(unit.nationality, NationalityPrefix);
    if (thumbnail.nationality.empty() ||
        thumbnail.nationality.find_first_of("<>:\"/\\|?*.") != std::string::npos) {
        thumbnail.nationality = NoNationality;
    }
    thumbnail.least = drawn.least;
    thumbnail.greatest = drawn.greatest;
    for (const DrawItem& item : drawn.items) {
        if (const auto* picture = std::get_if<PictureItem>(&item)) {
            thumbnail.pictures.push_back(*picture);
            thumbnail.pictures.back().path = pictures_->fileOf(picture->path)->path();
        }
    }
    if (thumbnail.pictures.empty()) {
        failures_.push_back({file.path, "none of its pictures is there"});
        return;
    }
    fitThumbnail(thumbnail, options_);
    thumbnails_.push_back(std::move(thumbnail));
}

void ThumbnailPlan::finish() {
    isDone_ = true;
    failures_.insert(failures_.end(), walk_.failures().begin(), walk_.failures().end());
    std::stable_sort(thumbnails_.begin(), thumbnails_.end(),
                     [](const PlannedThumbnail& a, const PlannedThumbnail& b) {
                         return compareIgnoringCase(a.nationality, b.nationality) < 0;
                     });
    for (std::size_t first = 0; first < thumbnails_.size();) {
        std::size_t end = first;
        while (end < thumbnails_.size() && thumbnails_[end].nationality == thumbnails_[first].nationality) {
            ++end;
        }
        addSheets(sheets_, thumbnails_, first, end - first);
        first = end;
    }
}

Pixmap drawThumbnail(const PlannedThumbnail& thumbnail, std::vector<FileFailure>& failures) {
    Pixmap canvas = emptyPixmap(thumbnail.size);
    const double scale = thumbnail.pixelsPerCentimetre;
    const Point middle{(thumbnail.least.x + thumbnail.greatest.x) / 2,
                       (thumbnail.least.y + thumbnail.greatest.y) / 2};
    std::string content;
    for (const PictureItem& item : thumbnail.pictures) {
        if (!readWholeFile(item.path, content)) {
            failures.push_back({item.path, systemFiles().lastError()});
            continue;
        }
        PngReading reading = readPng(content);
        if (!reading.failure.empty()) {
            failures.push_back({item.path, std::move(reading.failure)});
            continue;
        }
        layOver(canvas, premultiplied(reading.picture),
                {.width = item.width * scale, .height = item.height * scale, .angle = item.angle},
                canvas.width / 2.0 + (item.centre.x - middle.x) * scale,
                canvas.height / 2.0 - (item.centre.y - middle.y) * scale);
    }
    return canvas;
}

Pixmap drawSheet(const PlannedSheet& sheet, std::span<const PlannedThumbnail> planned,
                 std::span<const Pixmap> drawn) {
    const int rows = (static_cast<int>(sheet.count) + sheet.columns - 1) / sheet.columns;
    Pixmap canvas = emptyPixmap({sheet.columns * sheet.cell.width, rows * sheet.cell.height});
    const int shownHeight = sheet.cell.height - 2 * CellMargin - MostNameLines * TextLineHeight;
    for (std::size_t i = 0; i < sheet.count; ++i) {
        const int left = static_cast<int>(i) % sheet.columns * sheet.cell.width;
        const int top = static_cast<int>(i) / sheet.columns * sheet.cell.height;
        const Pixmap& picture = drawn[i];
        layOver(canvas, picture, left + (sheet.cell.width - picture.width) / 2,
                top + CellMargin + (shownHeight - picture.height) / 2);
        int line = top + CellMargin + shownHeight + 2;
        std::vector<std::string> lines = brokenText(shortName(planned[i]), sheet.cell.width - 2 * CellMargin);
        lines.resize(std::min<std::size_t>(lines.size(), MostNameLines));
        for (const std::string& text : lines) {
            writeLine(canvas, text, left + sheet.cell.width / 2, line);
            line += TextLineHeight;
        }
    }
    return canvas;
}

std::string thumbnailFile(const PlannedThumbnail& thumbnail) {
    return thumbnail.nationality + "\\" + thumbnail.name + ".png";
}

std::string sheetFile(const PlannedSheet& sheet) {
    return sheet.name + ".png";
}

/// Draws and writes; what threads share is behind a lock, or each has its own part of it.
class ThumbnailWriter {
public:
    ThumbnailWriter(const ThumbnailPlan& plan, const std::string& folder)
        : plan_(plan), folder_(folder), drawn_(plan.thumbnails().size()), left_(plan.sheets().size()) {
        sheetOf_.resize(plan.thumbnails().size());
        for (std::size_t i = 0; i < plan.sheets().size(); ++i) {
            const PlannedSheet& sheet = plan.sheets()[i];
            left_[i] = sheet.count;
            std::fill_n(sheetOf_.begin() + static_cast<std::ptrdiff_t>(sheet.first), sheet.count, i);
        }
    }

    /// Creates the folders; nothing can be written where that fails.
    bool createAllFolders() {
        std::string last;
        for (const PlannedThumbnail& thumbnail : plan_.thumbnails()) {
            const std::string place = folder_ + thumbnail.nationality + "\\";
            if (place != last) {
                if (auto failure = createFolders(systemFiles(), place)) {
                    failures_.push_back(std::move(*failure));
                    return false;
                }
                last = place;
            }
        }
        return true;
    }

    void write(std::size_t place) {
        const PlannedThumbnail& thumbnail = plan_.thumbnails()[place];
        std::vector<FileFailure> failures;
        drawn_[place] = drawThumbnail(thumbnail, failures);
        save(thumbnailFile(thumbnail), drawn_[place], failures);
        // Who has drawn the last one of a sheet goes on with the sheet.
        if (--left_[sheetOf_[place]] == 0) {
            writeSheet(plan_.sheets()[sheetOf_[place]], failures);
        }
        const std::lock_guard guard(lock_);
        failures_.insert(failures_.end(), failures.begin(), failures.end());
    }

    /// While no thread writes.
    [[nodiscard]] const std::vector<FileFailure>& failures() const { return failures_; }
    [[nodiscard]] std::size_t written() const { return written_; }

private:
    void writeSheet(const PlannedSheet& sheet, std::vector<FileFailure>& failures) {
        const std::span<Pixmap> drawn = std::span(drawn_).subspan(sheet.first, sheet.count);
        const std::span<const PlannedThumbnail> planned(plan_.thumbnails());
        save(sheetFile(sheet), drawSheet(sheet, planned.subspan(sheet.first, sheet.count), drawn), failures);
        std::fill(drawn.begin(), drawn.end(), Pixmap());
    }

    void save(const std::string& name, const Pixmap& pixels, std::vector<FileFailure>& failures) {
        const std::string content = writePng(straightened(pixels));
        if (content.empty()) {
            failures.push_back({folder_ + name, "is too large for the memory"});
        } else if (auto failure = saveFile(systemFiles(), folder_ + name, content)) {
            failures.push_back(std::move(*failure));
        } else {
            ++written_;
        }
    }

    const ThumbnailPlan& plan_;
    const std::string& folder_;
    std::vector<Pixmap> drawn_;
    std::vector<std::size_t> sheetOf_;           ///< of each thumbnail
    std::vector<std::atomic<std::size_t>> left_; ///< thumbnails of each sheet that are not drawn yet
    std::atomic<std::size_t> written_ = 0;
    std::mutex lock_;
    std::vector<FileFailure> failures_;
};

ThumbnailJob::ThumbnailJob(const GameFolders& folders, const ThumbnailOptions& options, std::string folder)
    : folder_(std::move(folder)) {
    plan_.start(folders, options);
}

ThumbnailJob::~ThumbnailJob() = default;

bool ThumbnailJob::step() {
    if (!writer_) {
        if (!plan_.step()) {
            writer_ = std::make_unique<ThumbnailWriter>(plan_, folder_);
            if (!writer_->createAllFolders()) {
                done_ = plan_.thumbnails().size();
            }
        }
    } else if (done_ < plan_.thumbnails().size()) {
        writer_->write(done_++);
    }
    return !writer_ || done_ < plan_.thumbnails().size();
}

JobProgress ThumbnailJob::progress() const {
    if (!writer_) {
        return plan_.progress();
    }
    const std::vector<PlannedThumbnail>& all = plan_.thumbnails();
    return {done_, all.size(), done_ < all.size() ? all[done_].name : std::string()};
}

std::vector<FileFailure> ThumbnailJob::failures() const {
    std::vector<FileFailure> all = plan_.failures();
    if (writer_) {
        all.insert(all.end(), writer_->failures().begin(), writer_->failures().end());
    }
    return all;
}

std::size_t ThumbnailJob::written() const {
    return writer_ ? writer_->written() : 0;
}

std::vector<FileFailure> writeThumbnails(const ThumbnailPlan& plan, const std::string& folder,
                                         unsigned threads) {
    ThumbnailWriter writer(plan, folder);
    if (writer.createAllFolders()) {
        forEachInParallel(
            plan.thumbnails().size(), [&](std::size_t place) { writer.write(place); }, threads);
    }
    return writer.failures();
}

} // namespace varrocade
