// Files that are full of entries too many, each of which is told with its line: reading them takes a time
// that grows with their size, and no faster.

#include "benchmarks.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

#include <string>

#include <benchmark/benchmark.h>

namespace varrocade::benchmarks {

namespace {

constexpr std::size_t LargeSize = std::size_t{4} << 20U;
constexpr std::size_t Parts = 4;

std::string filled(std::string_view begin, std::string_view line, std::string_view end, std::size_t size) {
    std::string text(begin);
    while (text.size() < size) {
        text += line;
    }
    return text.append(end);
}

std::string weaponOf(std::size_t size) {
    return filled("<weapon><ammo>\n", "<type><mass>1</mass></type>\n", "</ammo></weapon>", size);
}

std::string unitOf(std::size_t size) {
    return filled("<squad><vehicle><availability>\n",
                  "<data><month>6</month><year>1942</year><number>1</number></data>\n",
                  "</availability></vehicle></squad>", size);
}

void readWeaponWithLosses(const std::string& text) {
    Diagnostics diagnostics;
    benchmark::DoNotOptimize(readWeapon(text, "weapon", diagnostics).ammoTypes.size());
    benchmark::DoNotOptimize(weaponSaveLosses(text).size());
}

void readUnitWithLosses(const std::string& text) {
    Diagnostics diagnostics;
    benchmark::DoNotOptimize(readUnit(text, "unit", diagnostics).availability.size());
    benchmark::DoNotOptimize(unitSaveLosses(Category::Vehicles, text).has_value());
}

template <typename Read, typename Make>
ContestResult largeAgainstParts(std::size_t rounds, Read read, Make make) {
    const std::string large = make(LargeSize);
    const std::string part = make(LargeSize / Parts);
    return contest(
        rounds, [&] { read(large); },
        [&] {
            for (std::size_t i = 0; i < Parts; ++i) {
                read(part);
            }
        });
}

} // namespace

ContestResult weaponLeftOutContest(std::size_t rounds) {
    return largeAgainstParts(rounds, readWeaponWithLosses, weaponOf);
}

ContestResult unitLeftOutContest(std::size_t rounds) {
    return largeAgainstParts(rounds, readUnitWithLosses, unitOf);
}

} // namespace varrocade::benchmarks
