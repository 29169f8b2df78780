#include "benchmarks.h"

#include <cstdio>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

using namespace varrocade::benchmarks;

struct Contest {
    const char* what; ///< ours : the other
    ContestResult (*run)(std::size_t rounds);
    std::size_t rounds;
    std::size_t files; ///< how many a round goes through
    double aim;
};

constexpr std::size_t ManyRounds = 101;
constexpr std::size_t ReportRounds = 31;
constexpr std::size_t CheckRounds = 21;
constexpr std::size_t ColdRounds = 15;
constexpr std::size_t LargeRounds = 5;
constexpr std::size_t LongRounds = 3;
constexpr std::size_t AllFiles = UnitCount + WeaponCount;

constexpr Contest Contests[] = {
    {"parsing in memory : pugixml", parsingContest, ManyRounds, UnitCount, 1.0},
    {"loading from memory : opening and reading the files", loadingContest, ManyRounds, UnitCount, 1.3},
    {"loading from the disk : opening and reading the files", coldLoadingContest, ColdRounds, UnitCount, 1.3},
    {"the weapon catalogue : opening and reading its files", catalogueContest, ManyRounds, WeaponCount, 4.0},
    {"spreadsheets on all cores : loading all records", sheetsContest, ReportRounds, AllFiles, 1.2},
    {"spreadsheets on one core : loading all records", singleSheetsContest, ReportRounds, AllFiles, 2.0},
    {"PNG usage on all cores : loading, listing pictures", usageContest, ReportRounds, AllFiles, 1.5},
    {"PNG usage on one core : loading, listing pictures", singleUsageContest, ReportRounds, AllFiles, 1.5},
    {"unused files on all cores : loading, listing pictures", unusedContest, ReportRounds, AllFiles, 1.5},
    {"unused files on one core : loading, listing pictures", singleUnusedContest, ReportRounds, AllFiles,
     1.5},
    {"thumbnails : decoding and encoding their pictures", thumbnailContest, LongRounds, ThumbnailCount, 1.3},
    {"thumbnails, times faster on two threads : on one", thumbnailThreadContest, LongRounds, ThumbnailCount,
     1.8},
    {"checking a folder on all cores : loading its files", checkingContest, CheckRounds, AllFiles, 2.0},
    {"checking a folder on one core : loading its files", singleCheckingContest, CheckRounds, AllFiles, 4.0},
    {"4 MB of ammunition types too many : four times 1 MB", weaponLeftOutContest, LargeRounds, 1, 1.5},
    {"4 MB of availability points too many : four times 1 MB", unitLeftOutContest, LargeRounds, 1, 1.5},
};

void printRow(const Contest& contest) {
    const ContestResult result = contest.run(contest.rounds);
    const double microseconds = 1e6 / static_cast<double>(contest.files);
    std::printf("%-54s %8.2f us %8.2f us %6.2f   %.1f\n", contest.what, result.first * microseconds,
                result.second * microseconds, result.ratio, contest.aim);
    std::fflush(stdout);
}

} // namespace

/// Arguments that are none of the library's are words: then only contests that have one of them are run.
int main(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    const std::vector<std::string_view> wanted(arguments + 1, arguments + argumentCount);
    if (wanted.empty()) {
        benchmark::RunSpecifiedBenchmarks();
    }
    std::printf(
        "\nTime a file, medians of rounds in turns:                    ours       other    ratio   aim\n");
    for (const Contest& contest : Contests) {
        bool isWanted = wanted.empty();
        for (const std::string_view word : wanted) {
            isWanted = isWanted || std::string_view(contest.what).find(word) != std::string_view::npos;
        }
        if (isWanted) {
            printRow(contest);
        }
    }
    return 0;
}
