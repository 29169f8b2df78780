#include "analysis/performance/weight_estimate.h"

#include <cmath>
#include <numeric>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, WeightShareCount> ShareNames = {"armour of the hull",
                                                                       "armour of turrets",
                                                                       "structure and running gear",
                                                                       "engine and transmission",
                                                                       "guns",
                                                                       "ammunition",
                                                                       "crew"};

constexpr WeightFactors BuiltIn = {1.20, 1.24, 13.7, 0.535, 239.0, 237.0, 119.0, 202.0, 139.0, 56.0};

/// A man with his kit, and rations, tools and radio by the head, kilograms.
constexpr double CrewManMass = 100.0;

/// Wheeled bodies of twice the size weigh more than twice: the large ones stand on more axles, with a drive
/// to each. The volume counts with this power beyond the first, from the volume where both are alike.
constexpr double WheeledGrowth = 0.4;
constexpr double UsualVolume = 20.0; ///< cubic metres

double structureTerm(const VehicleFigures& figures) {
    return figures.gear == RunningGear::Wheeled
               ? figures.volume * std::pow(figures.volume / UsualVolume, WheeledGrowth)
               : figures.volume;
}

constexpr std::size_t placeOf(WeightFactor factor) {
    return static_cast<std::size_t>(factor);
}

std::size_t bodyPlace(BodyKind body) {
    return placeOf(WeightFactor::FirstBody) + static_cast<std::size_t>(body);
}

} // namespace

std::string_view weightShareName(WeightShare share) {
    return ShareNames[static_cast<std::size_t>(share)];
}

double WeightShares::total() const {
    return std::accumulate(mass.begin(), mass.end(), 0.0);
}

const WeightFactors& builtInWeightFactors() {
    return BuiltIn;
}

WeightTerms weightTerms(const VehicleFigures& figures) {
    WeightTerms result;
    result.terms[placeOf(WeightFactor::HullArmour)] = figures.armour.hull + figures.armour.spaced;
    result.terms[placeOf(WeightFactor::TurretArmour)] = figures.armour.turrets + figures.armour.mantlets;
    result.terms[placeOf(WeightFactor::Engine)] = figures.horsepower;
    result.terms[placeOf(WeightFactor::Guns)] = figures.guns + figures.ammunition;
    result.terms[bodyPlace(figures.body)] = structureTerm(figures);
    result.fixed = CrewManMass * figures.crew;
    return result;
}

std::optional<WeightShares> estimateWeight(const VehicleFigures& figures, const WeightFactors& factors) {
    if (!figures.canEstimate()) {
        return std::nullopt;
    }
    const WeightTerms terms = weightTerms(figures);
    const auto share = [&](std::size_t place) { return terms.terms[place] * factors[place]; };
    const double gunFactor = factors[placeOf(WeightFactor::Guns)];
    WeightShares shares;
    shares.mass = {share(placeOf(WeightFactor::HullArmour)),
                   share(placeOf(WeightFactor::TurretArmour)),
                   share(bodyPlace(figures.body)),
                   share(placeOf(WeightFactor::Engine)),
                   gunFactor * figures.guns,
                   gunFactor * figures.ammunition,
                   terms.fixed};
    return shares;
}

} // namespace varrocade
