#pragma once
// "Weight and Top Speed": stands beside the main window and its dialogs, and follows what is edited there.

#include "analysis/performance/vehicle_performance.h"
#include "data/unit/unit_record.h"
#include "editors/form/dialog_frame_win32.h"
#include "weapons/weapon_catalogue.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace varrocade {

struct DrawingObjects;

/// Gives the vehicle that is shown the estimated weight, in kilograms.
using TakeWeight = std::function<void(std::int32_t weight)>;

/// What the window needs of the program around it.
struct PerformanceHooks {
    const WeaponCatalogue& catalogue;
    const DrawingObjects& drawing;
    std::function<void()> compare; ///< opens the comparison of all vehicles
};

class PerformanceWindow final : public DialogFrame {
public:
    explicit PerformanceWindow(PerformanceHooks hooks);

    /// Shows a vehicle as it is now; null where none is open. Without `take` its weight cannot be changed, as
    /// while another dialog is at work on it, nor can it be left for another vehicle.
    void show(const SquadRecord* unit, TakeWeight take, bool mayLeave);

private:
    void init() override;
    bool accept() override { return false; }
    bool notice(int control, int notification) override;
    void paint(const DRAWITEMSTRUCT& item) override;

    void showAll();
    void showDriving();
    void takeEstimate();

    PerformanceHooks hooks_;
    std::optional<SquadRecord> shown_;
    TakeWeight take_;
    bool mayLeave_ = false;
    VehiclePerformance performance_;
    DriveConditions conditions_;
    std::string slope_ = "0"; ///< as it was typed
};

} // namespace varrocade
