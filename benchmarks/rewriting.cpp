// How the cost of loading and rewriting files grows with their number and their size.

#include "benchmarks.h"
#include "corpus.h"
#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "platform/safe_save.h"
#include "weapons/weapon_files.h"

#include <benchmark/benchmark.h>

namespace varrocade::benchmarks {

namespace {

/// The real files without waiting for the device, whose time would hide all other.
class UnflushedFiles : public FileOperations {
public:
    bool read(const std::string& path, std::string& content) override {
        return systemFiles().read(path, content);
    }
    bool exists(const std::string& path) override { return systemFiles().exists(path); }
    std::unique_ptr<OutputFile> createNew(const std::string& path) override {
        return std::make_unique<Output>(systemFiles().createNew(path));
    }
    bool replace(const std::string& from, const std::string& to) override {
        return systemFiles().replace(from, to);
    }
    bool rename(const std::string& from, const std::string& to) override {
        return systemFiles().rename(from, to);
    }
    bool remove(const std::string& path) override { return systemFiles().remove(path); }
    bool recycle(const std::string& path) override { return systemFiles().recycle(path); }
    bool createFolder(const std::string& path) override { return systemFiles().createFolder(path); }
    std::string lastError() override { return systemFiles().lastError(); }

private:
    class Output : public OutputFile {
    public:
        explicit Output(std::unique_ptr<OutputFile> file) : file_(std::move(file)) {}
        std::size_t write(std::string_view bytes) override { return file_->write(bytes); }
        bool flush() override { return true; }
        bool close() override { return file_->close(); }

    private:
        std::unique_ptr<OutputFile> file_;
    };
};

std::string rewritten(const FilesOnDisk::File& file) {
    if (file.category == Category::Weapons) {
        Diagnostics diagnostics;
        const auto weapon = readWeaponFile(file.path, "weapon", diagnostics);
        return weapon ? weaponFileText(*weapon) : std::string();
    }
    Diagnostics diagnostics;
    const auto unit = readUnitFile(file.path, "unit", diagnostics);
    return unit ? unitFileText(file.category, *unit).value_or("") : std::string();
}

/// Ranges: how many times as many files, how many times as large.
void loadingAndRewriting(benchmark::State& state) {
    const auto number = static_cast<std::size_t>(state.range(0));
    const FilesOnDisk corpus(
        gameFiles(number * UnitCount, number * WeaponCount, static_cast<std::size_t>(state.range(1))));
    UnflushedFiles files;
    std::size_t bytes = 0;
    for (auto iteration : state) {
        for (const FilesOnDisk::File& file : corpus.files()) {
            const std::string text = rewritten(file);
            bytes += text.size();
            if (text.empty() || saveFile(files, file.path, text)) {
                state.SkipWithError("a file could not be rewritten");
            }
        }
    }
    const auto fileCount = static_cast<double>(corpus.files().size());
    state.counters["files"] = fileCount;
    state.counters["bytes/file"] =
        benchmark::Counter(static_cast<double>(bytes) / fileCount, benchmark::Counter::kAvgIterations);
    state.counters["s/file"] = benchmark::Counter(fileCount, benchmark::Counter::kIsIterationInvariantRate |
                                                                 benchmark::Counter::kInvert);
}

BENCHMARK(loadingAndRewriting)
    ->Args({1, 1})
    ->Args({4, 1})
    ->Args({16, 1})
    ->Args({1, 4})
    ->Args({1, 16})
    ->ArgNames({"number", "size"})
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace varrocade::benchmarks
