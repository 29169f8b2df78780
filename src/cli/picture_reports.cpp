// The reports that make pictures.

#include "cli/report_command.h"
#include "tools/parallel.h"
#include "tools/pictures/picture_reduction.h"
#include "tools/pictures/thumbnails.h"

#include <algorithm>
#include <charconv>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varrocade::cli {

namespace {

constexpr std::string_view ReduceHeading =
    "picture\tpixels_before\tpixels_after\tbytes_before\tbytes_after\tresult\n";

/// A whole number within a range; nothing where the text is none.
std::optional<int> numberWithin(std::string_view text, int least, int greatest) {
    int number = 0;
    const auto [stopped, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && stopped == text.data() + text.size();
    return isNumber && number >= least && number <= greatest ? std::optional(number) : std::nullopt;
}

/// What the options ask for; nothing, after telling why, where they do not fit.
std::optional<ThumbnailOptions> thumbnailOptions(const ReportRequest& request) {
    ThumbnailOptions options;
    const auto scale = request.values.find(ScaleOption);
    const auto side = request.values.find(FitOption);
    const bool hasScale = scale != request.values.end();
    const bool hasSide = side != request.values.end();
    const auto scaled = hasScale ? numberWithin(scale->second, 1, GreatestThumbnailScale) : std::nullopt;
    const auto fitted =
        hasSide ? numberWithin(side->second, LeastThumbnailSide, GreatestThumbnailSide) : std::nullopt;
    if ((hasScale && hasSide) || hasScale != scaled.has_value() || hasSide != fitted.has_value()) {
        complain(
            "report thumbnails takes either --scale with 1 to " + std::to_string(GreatestThumbnailScale) +
            " pixels a metre, or --fit with the side of a square of " + std::to_string(LeastThumbnailSide) +
            " to " + std::to_string(GreatestThumbnailSide) + " pixels");
        return std::nullopt;
    }
    options.scale = scaled.value_or(0);
    options.side = fitted.value_or(options.side);
    return options;
}

void complainOf(const std::vector<FileFailure>& failures) {
    for (const FileFailure& failure : failures) {
        complain(failure.path + ": " + failure.reason);
    }
}

std::string sizeText(PictureSize size) {
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

std::string reducedRow(const ReducedPicture& picture) {
    std::string row = picture.below + "\t" + sizeText(picture.sizeBefore) + "\t" +
                      sizeText(picture.sizeAfter) + "\t" + std::to_string(picture.bytesBefore) + "\t" +
                      std::to_string(picture.bytesAfter) + "\t" + std::string(outcomeName(picture.outcome));
    if (!picture.reason.empty()) {
        row += ": " + picture.reason;
    }
    return row + "\n";
}

/// Makes all sets smaller on all processors, and writes them where that is asked for.
class SetReducer {
public:
    SetReducer(const std::vector<ReductionSet>& sets, const std::string& base, bool isWriting)
        : sets_(sets), base_(base), isWriting_(isWriting), results_(sets.size()) {}

    void reduceAll() {
        forEachInParallel(sets_.size(), [this](std::size_t place) { reduce(place); });
    }

    /// In the order of the sets, without the contents.
    [[nodiscard]] const std::vector<std::vector<ReducedPicture>>& results() const { return results_; }
    [[nodiscard]] const std::vector<FileFailure>& unwritten() const { return unwritten_; }

private:
    void reduce(std::size_t place) {
        std::vector<ReducedPicture> pictures = reduceSet(sets_[place]);
        if (isWriting_) {
            const std::lock_guard guard(lock_);
            if (auto failure = writeReducedSet(systemFiles(), backups_, base_, pictures)) {
                unwritten_.push_back(std::move(*failure));
            }
        }
        for (ReducedPicture& picture : pictures) {
            picture.content = {};
            picture.former = {};
        }
        results_[place] = std::move(pictures);
    }

    const std::vector<ReductionSet>& sets_;
    const std::string& base_;
    bool isWriting_;
    std::vector<std::vector<ReducedPicture>> results_;
    std::mutex lock_;
    BackupKeeper backups_;
    std::vector<FileFailure> unwritten_;
};

/// Prints the table and its sum; whether a picture failed.
bool printReduced(const std::vector<std::vector<ReducedPicture>>& results) {
    std::string text(ReduceHeading);
    ReducedPicture all{{}, "total"};
    bool hasFailed = false;
    for (const std::vector<ReducedPicture>& set : results) {
        for (const ReducedPicture& picture : set) {
            text += reducedRow(picture);
            all.bytesBefore += picture.bytesBefore;
            all.bytesAfter += picture.bytesAfter;
            hasFailed = hasFailed || picture.outcome == ReductionOutcome::Failed;
        }
    }
    text += "total\t\t\t" + std::to_string(all.bytesBefore) + "\t" + std::to_string(all.bytesAfter) + "\t\n";
    print(text);
    return hasFailed;
}

} // namespace

int thumbnailsReport(const ReportRequest& request) {
    const std::optional<ThumbnailOptions> options = thumbnailOptions(request);
    if (!options) {
        return CouldNot;
    }
    ThumbnailPlan plan;
    plan.start(request.folders, *options);
    const int status = finishJob(plan);
    const std::string folder = request.out + std::string(ThumbnailFolder);
    const std::vector<FileFailure> failures = writeThumbnails(plan, folder);
    complainOf(failures);
    for (const PlannedSheet& sheet : plan.sheets()) {
        print(folder + sheetFile(sheet) + "\t" + std::to_string(sheet.count) + " vehicles\n");
    }
    return failures.empty() ? status : Findings;
}

int reduceReport(const ReportRequest& request) {
    const auto has = [&](std::string_view option) {
        return std::find(request.options.begin(), request.options.end(), option) != request.options.end();
    };
    const std::string& base = request.folders.mod.empty() ? request.folders.program : request.folders.mod;
    if (request.out != base) {
        complain("report reduce changes the pictures where they are: it takes no folder for files");
        return CouldNot;
    }
    ReductionOptions options{.scalesDown = has(ScaleDownOption)};
    const auto unit = request.values.find(UnitOption);
    if (unit != request.values.end()) {
        options.vehicle = unit->second;
    }
    ReductionPlan plan;
    plan.start(request.folders, options);
    const int status = finishJob(plan);
    if (!options.vehicle.empty() && !plan.isVehicleFound()) {
        complain("there is no vehicle '" + options.vehicle + "'");
        return CouldNot;
    }
    SetReducer reducer(plan.sets(), base, has(WriteOption));
    reducer.reduceAll();
    complainOf(reducer.unwritten());
    const bool hasFailed = printReduced(reducer.results());
    return hasFailed ? Findings : status;
}

} // namespace varrocade::cli
