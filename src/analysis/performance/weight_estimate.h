#pragma once
// A vehicle's weight as a sum of shares.

#include "analysis/performance/vehicle_figures.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace varrocade {

/// What a dialog shows as one bar each.
enum class WeightShare : std::uint8_t {
    HullArmour = 0,   ///< with superstructures, shields and spaced plates
    TurretArmour = 1, ///< with mantlets
    Structure = 2,    ///< frame, running gear, fittings
    Engine = 3,       ///< with transmission, cooling and fuel
    Guns = 4,
    Ammunition = 5,
    Crew = 6, ///< with its kit
};
inline constexpr std::size_t WeightShareCount = 7;

/// "armour of the hull" and the like, for people.
std::string_view weightShareName(WeightShare share);

/// Kilograms by `WeightShare`.
struct WeightShares {
    std::array<double, WeightShareCount> mass = {};
    [[nodiscard]] double total() const;
};

/// What can be fitted to the vehicles of a folder: each is a factor of a mass that the model computes, or the
/// mass of a cubic metre or a horsepower.
enum class WeightFactor : std::uint8_t {
    HullArmour = 0,   ///< of the plates' mass: corners, doors, bolts, and the running gear that carries it
    TurretArmour = 1, ///< the same, with ring and basket
    Engine = 2,       ///< kilograms a horsepower
    Guns = 3,
    FirstBody = 4, ///< from here by `BodyKind`: kilograms a cubic metre
};
inline constexpr std::size_t WeightFactorCount =
    static_cast<std::size_t>(WeightFactor::FirstBody) + BodyKindCount;

using WeightFactors = std::array<double, WeightFactorCount>;

/// From the published weights of two hundred vehicles; docs/performance.md tells how and how exact.
const WeightFactors& builtInWeightFactors();

/// By `WeightFactor`, what each factor multiplies, and what no factor does.
struct WeightTerms {
    WeightFactors terms = {};
    double fixed = 0.0; ///< the crew, kilograms
};
WeightTerms weightTerms(const VehicleFigures& figures);

/// Nothing when the figures lack power, hull or date.
std::optional<WeightShares> estimateWeight(const VehicleFigures& figures,
                                           const WeightFactors& factors = builtInWeightFactors());

} // namespace varrocade
