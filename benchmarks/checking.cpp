// Checking all files of a folder against loading them.

#include "benchmarks.h"
#include "corpus.h"
#include "data/reading/unit_reader.h"
#include "tools/checks/engine/folder_check.h"
#include "weapons/weapon_files.h"

#include <benchmark/benchmark.h>

namespace varrocade::benchmarks {

namespace {

/// A clean game: what its units name is there.
const FilesOnDisk& folder() {
    static const FilesOnDisk files(namedCopies(UnitCount, WeaponCount));
    static const bool hasAssets = (files.addAssets(), true);
    benchmark::DoNotOptimize(hasAssets);
    return files;
}

void loadFolder() {
    for (const FilesOnDisk::File& file : folder().files()) {
        Diagnostics diagnostics;
        if (file.category == Category::Weapons) {
            benchmark::DoNotOptimize(readWeaponFile(file.path, "weapon", diagnostics));
        } else {
            benchmark::DoNotOptimize(readUnitFile(file.path, "unit", diagnostics));
        }
    }
}

void checkFolder() {
    FolderCheck check({.program = folder().base()});
    check.run();
    benchmark::DoNotOptimize(check.findings().size());
}

void checkFolderInOneThread() {
    FolderCheck check({.program = folder().base()});
    check.run(1);
    benchmark::DoNotOptimize(check.findings().size());
}

void checkingFolder(benchmark::State& state) {
    folder();
    for (auto iteration : state) {
        checkFolder();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(UnitCount + WeaponCount));
}

BENCHMARK(checkingFolder)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

ContestResult checkingContest(std::size_t rounds) {
    return contest(rounds, checkFolder, loadFolder, WallClock());
}

ContestResult singleCheckingContest(std::size_t rounds) {
    return contest(rounds, checkFolderInOneThread, loadFolder);
}

} // namespace varrocade::benchmarks
