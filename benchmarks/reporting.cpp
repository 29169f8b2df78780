#include "benchmarks.h"
#include "corpus.h"
#include "data/reading/unit_reader.h"
#include "tools/reports/png_usage.h"
#include "tools/reports/unit_sheets.h"
#include "tools/reports/unused_files.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <benchmark/benchmark.h>

namespace varrocade::benchmarks {

namespace {

constexpr std::size_t PicturesAUnit = 5;

/// A game whose units find all that they name, each with pictures of its own. What is left of five a unit
/// lies there unused, spread over the folders that have pictures.
const FilesOnDisk& game() {
    static std::vector<CorpusPicture> pictures;
    static const FilesOnDisk files(namedCopies(UnitCount, WeaponCount, &pictures));
    static const bool hasPictures = [] {
        files.addAssets();
        files.addPictures(pictures);
        const auto folders = pictureFolders();
        for (std::size_t i = pictures.size(); i < UnitCount * PicturesAUnit; ++i) {
            std::string folder = files.base() + std::string(folders[i % PicturesAUnit]);
            std::replace(folder.begin(), folder.end(), '\\', '/');
            std::filesystem::create_directories(folder);
            std::ofstream(folder + "picture " + std::to_string(i) + ".png");
        }
        return true;
    }();
    benchmark::DoNotOptimize(hasPictures);
    return files;
}

void loadRecords() {
    std::vector<FileFailure> failures;
    GameFileWalk walk(listAllFiles({.program = game().base()}, failures));
    walk.run([](const GameFile& file, std::string_view content) {
        Diagnostics diagnostics;
        if (file.category == Category::Weapons) {
            benchmark::DoNotOptimize(readWeapon(content, file.name, diagnostics).ammoTypes.size());
        } else {
            benchmark::DoNotOptimize(readUnit(content, file.name, diagnostics).infantrymen.size());
        }
    });
}

void loadRecordsAndListPictures() {
    loadRecords();
    for (const std::string_view folder : pictureFolders()) {
        std::vector<std::string> names;
        listFiles(game().base() + std::string(folder), ".png", names);
        benchmark::DoNotOptimize(names.size());
    }
}

template <typename Report>
void makeReport(unsigned threads) {
    Report report({.program = game().base()});
    report.run(threads);
    if constexpr (std::is_base_of_v<FileReport, Report>) {
        benchmark::DoNotOptimize(report.files().size());
    } else {
        benchmark::DoNotOptimize(report.rows().size());
    }
}

template <typename Report>
void makeReportOnAllCores() {
    makeReport<Report>(0);
}

template <typename Report>
void makeReportOnOneCore() {
    makeReport<Report>(1);
}

} // namespace

ContestResult sheetsContest(std::size_t rounds) {
    return contest(rounds, makeReportOnAllCores<UnitSheets>, loadRecords, WallClock());
}

ContestResult usageContest(std::size_t rounds) {
    return contest(rounds, makeReportOnAllCores<PngUsage>, loadRecordsAndListPictures, WallClock());
}

ContestResult unusedContest(std::size_t rounds) {
    return contest(rounds, makeReportOnAllCores<UnusedFiles>, loadRecordsAndListPictures, WallClock());
}

ContestResult singleSheetsContest(std::size_t rounds) {
    return contest(rounds, makeReportOnOneCore<UnitSheets>, loadRecords);
}

ContestResult singleUsageContest(std::size_t rounds) {
    return contest(rounds, makeReportOnOneCore<PngUsage>, loadRecordsAndListPictures);
}

ContestResult singleUnusedContest(std::size_t rounds) {
    return contest(rounds, makeReportOnOneCore<UnusedFiles>, loadRecordsAndListPictures);
}

} // namespace varrocade::benchmarks
