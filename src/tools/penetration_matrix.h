#pragma once
// Up to which range every ammunition type of a game goes through every plate of every vehicle.

#include "data/game_files.h"
#include "data/reading/unit_reader.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Takes the next piece of a text; false when it could not be written.
using TextSink = std::function<bool(std::string_view)>;

class PenetrationMatrix {
public:
    /// Reads the weapons and the vehicles; false when the game lacks the folder of either.
    bool read(const GameFolders& folders);

    /// The folders that are missing, the weapon files with problems and the vehicles that could not be read.
    [[nodiscard]] const std::vector<Finding>& problems() const { return problems_; }
    /// What the vehicles' records could not take.
    [[nodiscard]] const Diagnostics& diagnostics() const { return diagnostics_; }

    /// A heading, and a row for every ammunition type that goes through anything and every plate, tab
    /// separated: the range in metres, at most `CurveEnd`, or "-", and the penetration in millimetres at each
    /// of `PenetrationRanges`, of armour that leans as the plate does. Components count from 1. A whole mod
    /// has millions of rows: they come in large pieces. False when one could not be written.
    [[nodiscard]] bool write(const TextSink& sink) const;

private:
    /// A plate, and the cells of its rows that depend on it alone.
    struct Target {
        ArmourPlate plate;
        std::string cells;
    };
    class Rows;

    void addPlates(std::string_view vehicleName, const VehicleRecord& vehicle);
    bool writeAmmoType(const WeaponRecord& weapon, std::size_t shell, Rows& rows) const;

    WeaponCatalogue catalogue_;
    std::vector<Target> targets_;
    std::vector<Finding> problems_;
    Diagnostics diagnostics_;
};

} // namespace varrocade
