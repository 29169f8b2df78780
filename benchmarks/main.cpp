#include "benchmarks.h"

#include <cstdio>

#include <benchmark/benchmark.h>

namespace {

void printRow(const char* what, const varrocade::benchmarks::ContestResult& result, double aim) {
    constexpr double microseconds = 1e6 / varrocade::benchmarks::UnitCount;
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
    std::printf(
        "\nTime a unit, medians of %zu rounds in turns:              ours       other    ratio   aim\n",
        rounds);
    printRow("parsing in memory : pugixml", varrocade::benchmarks::parsingContest(rounds), 1.0);
    printRow("loading from memory : opening and reading the files",
             varrocade::benchmarks::loadingContest(rounds), 1.3);
    printRow("loading from the disk : opening and reading the files",
             varrocade::benchmarks::coldLoadingContest(coldRounds), 1.3);
    return 0;
}
