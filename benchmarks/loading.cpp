#include "benchmarks.h"
#include "corpus.h"
#include "data/reading/unit_reader.h"
#include "platform/file_operations.h"
#include "weapons/weapon_catalogue.h"

#include <chrono>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

namespace varrocade::benchmarks {

namespace {

const FilesOnDisk& corpus() {
    static const FilesOnDisk files(gameFiles(UnitCount, 0, 1));
    return files;
}

const FilesOnDisk& weaponFiles() {
    static const FilesOnDisk files(gameFiles(0, WeaponCount, 1));
    return files;
}

void loadUnits() {
    for (const FilesOnDisk::File& file : corpus().files()) {
        Diagnostics diagnostics;
        const auto record = readUnitFile(file.path, "unit", diagnostics);
        benchmark::DoNotOptimize(record->infantrymen.size());
    }
}

void readFiles(const FilesOnDisk& files) {
    std::string content;
    for (const FilesOnDisk::File& file : files.files()) {
        readWholeFile(file.path, content);
        benchmark::DoNotOptimize(content.data());
    }
}

void readUnitFiles() {
    readFiles(corpus());
}

void readWeaponFiles() {
    readFiles(weaponFiles());
}

void loadCatalogue() {
    WeaponCatalogue catalogue;
    catalogue.load(weaponFiles().base());
    benchmark::DoNotOptimize(catalogue.entries().size());
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
        readUnitFiles();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(UnitCount));
}

void loadingCatalogue(benchmark::State& state) {
    weaponFiles();
    for (auto iteration : state) {
        loadCatalogue();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(WeaponCount));
}

BENCHMARK(loadingUnits)->Unit(benchmark::kMillisecond);
BENCHMARK(readingFilesOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(loadingCatalogue)->Unit(benchmark::kMillisecond);

/// Only what is on the disk already can be dropped from memory.
void dropFromMemory(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file >= 0) {
        ::fsync(file);
        ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        ::close(file);
    }
}

/// The clock on the wall, of work that begins with all files on the disk only.
struct ColdClock {
    template <typename Work>
    double operator()(Work work) const {
        for (const FilesOnDisk::File& file : corpus().files()) {
            dropFromMemory(file.path);
        }
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
};

} // namespace

ContestResult loadingContest(std::size_t rounds) {
    return contest(rounds, loadUnits, readUnitFiles);
}

ContestResult catalogueContest(std::size_t rounds) {
    return contest(rounds, loadCatalogue, readWeaponFiles);
}

ContestResult coldLoadingContest(std::size_t rounds) {
    return contest(rounds, loadUnits, readUnitFiles, ColdClock());
}

} // namespace varrocade::benchmarks
