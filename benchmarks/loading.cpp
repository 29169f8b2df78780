#include "benchmarks.h"
#include "corpus.h"
#include "data/unit_reader.h"
#include "platform/file_operations.h"

#include <benchmark/benchmark.h>

namespace varrocade::benchmarks {

namespace {

const FilesOnDisk& corpus() {
    static const FilesOnDisk files(gameFiles(UnitCount, 0, 1));
    return files;
}

void loadUnits() {
    for (const FilesOnDisk::File& file : corpus().files()) {
        Diagnostics diagnostics;
        const auto record = readUnitFile(file.path, "unit", diagnostics);
        benchmark::DoNotOptimize(record->infantrymen.size());
    }
}

void readFiles() {
    std::string content;
    for (const FilesOnDisk::File& file : corpus().files()) {
        readWholeFile(file.path, content);
        benchmark::DoNotOptimize(content.data());
    }
}

void loadingUnits(benchmark::State& state) {
    corpus();
    for (auto iteration : state) {
        loadUnits();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(UnitCount));
}

void readingFilesOnly(benchmark::State& state) {
    corpus();
    for (auto iteration : state) {
        readFiles();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(UnitCount));
}

BENCHMARK(loadingUnits)->Unit(benchmark::kMillisecond);
BENCHMARK(readingFilesOnly)->Unit(benchmark::kMillisecond);

} // namespace

ContestResult loadingContest(std::size_t rounds) {
    return contest(rounds, loadUnits, readFiles);
}

} // namespace varrocade::benchmarks
