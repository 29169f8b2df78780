#include "analysis/performance/vehicle_performance.h"
#include "cli/command_line.h"
#include "data/category.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/game_files.h"
#include "data/reading/unit_reader.h"
#include "platform/file_operations.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace varrocade::cli {

namespace {

constexpr std::string_view EstimateOption = "--estimate-weight";
constexpr std::string_view PerformanceHeading =
    "file\tkind\tweight_kg\testimate_kg\troad_kmh\tfield_kmh\tseconds_to_32\tslope_percent\n";

void appendFigure(std::string& row, std::optional<double> value, int decimals) {
    row += '\t';
    if (value) {
        appendFixed(row, *value, decimals);
    }
}

std::string performanceRow(const VehicleFigures& figures, std::optional<double> estimate,
                           const std::optional<DriveModel>& drive) {
    std::string row = figures.name;
    row += '\t';
    row += runningGearName(figures.gear);
    appendFigure(row, figures.weight > 0 ? std::optional(figures.weight) : std::nullopt, 0);
    appendFigure(row, estimate, 0);
    std::optional<double> road;
    std::optional<double> field;
    std::optional<double> seconds;
    std::optional<double> slope;
    if (drive) {
        road = topSpeed(*drive, {});
        field = topSpeed(*drive, {.surface = Surface::Field});
        seconds = secondsTo(*drive, {}, ComparedSpeed);
        slope = steepestSlope(*drive, Surface::Field);
    }
    appendFigure(row, road, 1);
    appendFigure(row, field, 1);
    appendFigure(row, seconds, 1);
    appendFigure(row, slope, 0);
    row += '\n';
    return row;
}

/// Prints a vehicle's row; says what is missing, and returns `Findings` then.
int printVehicle(const VehicleFigures& figures, bool usesEstimate, std::string& out) {
    std::optional<double> estimate;
    if (const std::optional<WeightShares> shares = estimateWeight(figures)) {
        estimate = shares->total();
    }
    const double weight = figures.weight > 0 || !usesEstimate ? figures.weight : estimate.value_or(0.0);
    const std::optional<DriveModel> drive = driveModel(figures, weight);
    out += performanceRow(figures, estimate, drive);
    if (drive && topSpeed(*drive, {}) < ComparedSpeed) {
        // Not a finding: a slow vehicle is not a fault of its file.
        complain(figures.name + ": does not reach 32 km/h");
    }
    const std::string reasons = missingFiguresText(figures);
    if (!reasons.empty()) {
        complain(figures.name + ": " + reasons);
        return Findings;
    }
    return Done;
}

/// A game folder's vehicles, or the files of a folder of vehicles. Nothing, after telling why, where the
/// folder cannot be listed.
std::optional<std::vector<GameFile>> listVehicles(const std::string& base) {
    if (isFolder(categoryFolder(base, Category::Vehicles))) {
        GameFileList list = listGameFiles({.program = base}, Category::Vehicles);
        for (const FileFailure& failure : list.failures) {
            complain(failure.path + ": " + failure.reason);
        }
        return list.failures.empty() ? std::optional(std::move(list.files)) : std::nullopt;
    }
    std::vector<std::string> names;
    if (!listFiles(base, DataFileEnding, names)) {
        complain(base + ": " + systemFiles().lastError());
        return std::nullopt;
    }
    std::vector<GameFile> files;
    files.reserve(names.size());
    for (const std::string& name : names) {
        files.push_back({.name = name.substr(0, name.size() - DataFileEnding.size()), .path = base + name});
    }
    return files;
}

/// In the order of their bytes, which is the same on every system.
void sortByPath(std::vector<GameFile>& files) {
    std::sort(files.begin(), files.end(),
              [](const GameFile& a, const GameFile& b) { return a.path < b.path; });
}

int printPerformance(const std::string& base, bool usesEstimate) {
    std::optional<std::vector<GameFile>> files = listVehicles(base);
    if (!files) {
        return CouldNot;
    }
    sortByPath(*files);
    WeaponCatalogue catalogue;
    if (isFolder(categoryFolder(base, Category::Weapons))) {
        catalogue.load(base);
    }
    const WeaponMasses weapons(catalogue);
    int status = Done;
    std::string out(PerformanceHeading);
    GameFileWalk walk(std::move(*files));
    walk.run([&](const GameFile& file, std::string_view content) {
        Diagnostics diagnostics;
        const SquadRecord unit = readUnit(content, file.name, diagnostics);
        if (unit.vehicle) {
            status = std::max(status, printVehicle(vehicleFigures(unit, weapons), usesEstimate, out));
        } else {
            complain(file.name + ": holds no vehicle");
            status = Findings;
        }
        for (const Finding& finding : diagnostics) {
            complain(debuggerLine(finding));
        }
    });
    for (const FileFailure& failure : walk.failures()) {
        complain(failure.path + ": " + failure.reason);
        status = Findings;
    }
    return std::fwrite(out.data(), 1, out.size(), stdout) == out.size() ? status : CouldNot;
}

} // namespace

int performanceCommand(Arguments arguments) {
    std::optional<std::string> folder;
    bool usesEstimate = false;
    for (const std::string& argument : arguments) {
        if (argument == EstimateOption) {
            usesEstimate = true;
        } else if (!folder) {
            folder = argument;
        } else {
            folder.reset();
            break;
        }
    }
    if (!folder) {
        complain("performance takes a game folder or a folder of vehicles, and --estimate-weight");
        return CouldNot;
    }
    return printPerformance(asFolder(*folder), usesEstimate);
}

} // namespace varrocade::cli
