#include "benchmarks.h"

#include <cstdio>

#include <benchmark/benchmark.h>

namespace {

void printRow(const char* what, const varrocade::benchmarks::ContestResult& result, std::size_t files,
              double aim) {
    const double microseconds = 1e6 / static_cast<double>(files);
    std::printf("%-54s %8.2f us %8.2f us %6.2f   %.1f\n", what, result.first * microseconds,
                result.second * microseconds, result.ratio, aim);
}

} // namespace

int main(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    constexpr std::size_t rounds = 101;
    constexpr std::size_t coldRounds = 15;
    using namespace varrocade::benchmarks;
    std::printf(
        "\nTime a file, medians of %zu rounds in turns:              ours       other    ratio   aim\n",
        rounds);
    printRow("parsing in memory : pugixml", parsingContest(rounds), UnitCount, 1.0);
    printRow("loading from memory : opening and reading the files", loadingContest(rounds), UnitCount, 1.3);
    printRow("loading from the disk : opening and reading the files", coldLoadingContest(coldRounds),
             UnitCount, 1.3);
    printRow("the weapon catalogue : opening and reading its files", catalogueContest(rounds), WeaponCount,
             4.0);
    constexpr std::size_t reportRounds = 31;
    printRow("spreadsheets : loading all records", sheetsContest(reportRounds), UnitCount + WeaponCount, 1.2);
    printRow("PNG usage : loading all records, listing pictures", usageContest(reportRounds),
             UnitCount + WeaponCount, 1.5);
    printRow("unused files : loading all records, listing pictures", unusedContest(reportRounds),
             UnitCount + WeaponCount, 1.5);
    constexpr std::size_t longRounds = 3;
    printRow("thumbnails : decoding and encoding their pictures", thumbnailContest(longRounds),
             ThumbnailCount, 1.3);
    printRow("thumbnails, times faster on two threads : on one", thumbnailThreadContest(longRounds),
             ThumbnailCount, 1.8);
    constexpr std::size_t checkRounds = 21;
    constexpr std::size_t checkedFiles = UnitCount + WeaponCount;
    printRow("checking a folder on all cores : loading its files", checkingContest(checkRounds), checkedFiles,
             2.0);
    printRow("checking a folder on one core : loading its files", singleCheckingContest(checkRounds),
             checkedFiles, 4.0);
    constexpr std::size_t largeRounds = 5;
    printRow("4 MB of ammunition types too many : four times 1 MB", weaponLeftOutContest(largeRounds), 1,
             1.5);
    printRow("4 MB of availability points too many : four times 1 MB", unitLeftOutContest(largeRounds), 1,
             1.5);
    return 0;
}
