#include "mod/starting_points.h"

#include "data/unit/enumerations.h"
#include "data/unit/older_words.h"
#include "mod/mod_text.h"

#include <algorithm>
#include <array>

namespace varrocade {

// The files of src/mod/defaults.
namespace embedded {
extern const std::string_view ColdWar;
extern const std::string_view Nations;
extern const std::string_view Today;
extern const std::string_view Ww1;
extern const std::string_view Ww2;
} // namespace embedded

namespace {

constexpr auto PointNames =
    std::to_array<std::string_view>({"Second World War", "First World War", "Cold War", "Today"});

std::string_view textOfPoint(StartingPoint point) {
    switch (point) {
    case StartingPoint::FirstWorldWar:
        return embedded::Ww1;
    case StartingPoint::ColdWar:
        return embedded::ColdWar;
    case StartingPoint::Today:
        return embedded::Today;
    default:
        return embedded::Ww2;
    }
}

template <typename Value>
void fillEmpty(Value& value, const Value& from) {
    if (value.empty()) {
        value = from;
    }
}

} // namespace

std::span<const std::string_view> startingPointNames() {
    return PointNames;
}

void completeNationality(ModNationality& nation) {
    static const ModSettings known = readModSettings(embedded::Nations);
    const auto row = std::find_if(known.nationalities.begin(), known.nationalities.end(),
                                  [&](const ModNationality& one) { return one.id == todaysWord(nation.id); });
    if (row != known.nationalities.end()) {
        fillEmpty(nation.name, row->name);
        fillEmpty(nation.adjective, row->adjective);
        fillEmpty(nation.ranks, row->ranks);
        fillEmpty(nation.surnames, row->surnames);
    }
    const NationalUniform* uniform = findNationalUniform(todaysWord(nation.id));
    if (uniform != nullptr && nation.uniforms.empty()) {
        nation.uniforms.push_back({.profileImage = std::string(uniform->profile),
                                   .gameImage = std::string(uniform->game),
                                   .ranksImage = std::string(uniform->ranks)});
    }
}

ModSettings startingSettings(StartingPoint point) {
    ModSettings settings = readModSettings(textOfPoint(point));
    for (ModNationality& nation : settings.nationalities) {
        completeNationality(nation);
    }
    return settings;
}

} // namespace varrocade
