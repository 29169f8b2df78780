#include "tools/vehicle_comparison.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"

#include <utility>

namespace varrocade {

void VehicleComparison::start(const GameFolders& folders, WeaponMasses weapons,
                              std::optional<SquadRecord> open) {
    weapons_ = std::move(weapons);
    open_ = std::move(open);
    figures_.clear();
    vehicles_.clear();
    GameFileList list = listGameFiles(folders, Category::Vehicles);
    failures_ = std::move(list.failures);
    walk_ = GameFileWalk(std::move(list.files));
    isDone_ = false;
}

bool VehicleComparison::step() {
    if (isDone_) {
        return false;
    }
    const bool isMoreToRead = walk_.step([this](const GameFile& file, std::string_view content) {
        if (open_ && equalsIgnoringCase(open_->fileName, file.name)) {
            add(*open_);
        } else {
            Diagnostics diagnostics;
            add(readUnit(content, file.name, diagnostics));
        }
    });
    if (!isMoreToRead) {
        finish();
    }
    return isMoreToRead;
}

void VehicleComparison::add(const SquadRecord& unit) {
    if (!unit.vehicle) {
        return;
    }
    VehiclePerformance performance = vehiclePerformance(unit, weapons_);
    ComparedVehicle& compared = vehicles_.emplace_back();
    compared.name = unit.fileName.str();
    compared.weight = performance.figures.weight;
    if (performance.weight > 0) {
        compared.powerToWeight = performance.figures.horsepower / (performance.weight / 1000.0);
    }
    if (performance.drive) {
        compared.roadSpeed = topSpeed(*performance.drive, {});
    }
    for (Outlier& outlier : bodyOutliers(*unit.vehicle, performance.figures)) {
        compared.faults.push_back(std::move(outlier.sentence));
    }
    figures_.push_back(std::move(performance.figures));
}

/// What can be said only when all vehicles are known.
void VehicleComparison::finish() {
    const WeightCalibration calibration = calibrateWeight(figures_);
    for (std::size_t i = 0; i < vehicles_.size(); ++i) {
        const auto shares = estimateWeight(figures_[i], calibration.factors);
        vehicles_[i].estimate = shares ? shares->total() : 0.0;
        if (vehicles_[i].faults.empty()) {
            if (auto outlier = weightOutlier(figures_[i], calibration)) {
                vehicles_[i].faults.push_back(std::move(outlier->sentence));
            }
        }
    }
    failures_.insert(failures_.end(), walk_.failures().begin(), walk_.failures().end());
    figures_.clear();
    open_.reset();
    isDone_ = true;
}

} // namespace varrocade
