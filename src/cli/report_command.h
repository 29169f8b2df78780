#pragma once
// The reports of `varrocade-data report`, a row each.

#include "cli/command_line.h"
#include "data/game_files.h"
#include "tools/job.h"

#include <array>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::cli {

/// What a report was asked for.
struct ReportRequest {
    GameFolders folders;
    std::string out;                       ///< where its files go, ending in a separator
    std::vector<std::string> options = {}; ///< those of its row that were given
    std::map<std::string, std::string, std::less<>> values = {}; ///< of those that take one
};

/// One report: its name, the options that it takes besides "--mod FOLDER", and how it is made.
struct Report {
    std::string_view name;
    bool needsMod;
    std::span<const std::string_view> options;
    int (*run)(const ReportRequest& request);
    std::span<const std::string_view> valueOptions = {}; ///< options that a value stands behind
};

// ---- the reports that make pictures (picture_reports.cpp)

inline constexpr std::string_view ScaleOption = "--scale";
inline constexpr std::string_view FitOption = "--fit";
inline constexpr std::array ThumbnailValues = {ScaleOption, FitOption};
/// `report thumbnails FOLDER [OUT] [--mod FOLDER] [--scale PX_PER_M | --fit SIZE]`
int thumbnailsReport(const ReportRequest& request);

inline constexpr std::string_view UnitOption = "--unit";
inline constexpr std::string_view ScaleDownOption = "--scale-down";
inline constexpr std::array ReduceOptions = {ScaleDownOption, WriteOption};
inline constexpr std::array ReduceValues = {UnitOption};
/// `report reduce FOLDER [--mod FOLDER] [--unit NAME] [--scale-down] [--write]`
int reduceReport(const ReportRequest& request);

// ---- what reports share

/// Runs a job to its end and tells what failed; the exit status.
int finishJob(Job& job);

/// Runs a report and writes its files, telling their names.
int finishReport(FileReport& report, const ReportRequest& request);

} // namespace varrocade::cli
