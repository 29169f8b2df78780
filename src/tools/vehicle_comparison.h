#pragma once
// All vehicles of a game beside one another: weight, power to weight, speed, and which of them are out of
// line.

#include "analysis/performance/outliers.h"
#include "analysis/performance/vehicle_performance.h"
#include "data/game_files.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// Figures of 0 are not known.
struct ComparedVehicle {
    std::string name;
    double weight = 0.0;             ///< kilograms, as given
    double estimate = 0.0;           ///< kilograms, by the factors fitted to all of these vehicles
    double powerToWeight = 0.0;      ///< horsepower a tonne; with the estimate where no weight is given
    double roadSpeed = 0.0;          ///< km/h, level
    std::vector<std::string> faults; ///< sentences: which figure is out of line, and what would be in line
};

/// Reads the vehicles in small steps, between which a window answers.
class VehicleComparison {
public:
    /// `open`, where there is one, counts as it is in the window in place of its file.
    void start(const GameFolders& folders, WeaponMasses weapons, std::optional<SquadRecord> open);

    /// Reads a file, or fits the weights behind the last one; false when there is nothing left to do.
    bool step();

    [[nodiscard]] bool isDone() const { return isDone_; }
    [[nodiscard]] WalkProgress progress() const { return walk_.progress(); }

    /// Complete once it is done, sorted by name, letter case aside.
    [[nodiscard]] const std::vector<ComparedVehicle>& vehicles() const { return vehicles_; }
    /// The folder, or the files, that could not be read.
    [[nodiscard]] std::span<const FileFailure> failures() const { return failures_; }

private:
    void add(const SquadRecord& unit);
    void finish();

    WeaponMasses weapons_;
    std::optional<SquadRecord> open_;
    GameFileWalk walk_;
    std::vector<VehicleFigures> figures_; ///< of the vehicles, in their order
    std::vector<ComparedVehicle> vehicles_;
    std::vector<FileFailure> failures_;
    bool isDone_ = true;
};

} // namespace varrocade
