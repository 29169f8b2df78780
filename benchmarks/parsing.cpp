#include "benchmarks.h"
#include "corpus.h"
#include "data/format/tag_tree.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

namespace varrocade::benchmarks {

namespace {

const std::vector<CorpusFile>& corpus() {
    static const std::vector<CorpusFile> files = wellFormedUnits(UnitCount);
    return files;
}

void parseTagTrees() {
    for (const CorpusFile& file : corpus()) {
        TagTree tree;
        tree.parse(file.content);
        benchmark::DoNotOptimize(tree.root().childCount);
    }
}

void parseXml() {
    for (const CorpusFile& file : corpus()) {
        pugi::xml_document document;
        const pugi::xml_parse_result result =
            document.load_buffer(file.content.data(), file.content.size(), pugi::parse_default);
        benchmark::DoNotOptimize(result.status);
    }
}

void report(benchmark::State& state) {
    std::size_t bytes = 0;
    for (const CorpusFile& file : corpus()) {
        bytes += file.content.size();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(corpus().size()));
}

void parsingTagTree(benchmark::State& state) {
    corpus();
    for (auto iteration : state) {
        parseTagTrees();
    }
    report(state);
}

void parsingXml(benchmark::State& state) {
    corpus();
    for (auto iteration : state) {
        parseXml();
    }
    report(state);
}

BENCHMARK(parsingTagTree)->Unit(benchmark::kMillisecond);
BENCHMARK(parsingXml)->Unit(benchmark::kMillisecond);

} // namespace

ContestResult parsingContest(std::size_t rounds) {
    return contest(rounds, parseTagTrees, parseXml);
}

} // namespace varrocade::benchmarks
