#pragma once
// The commands about what vehicles weigh and how they drive.

#include "data/unit/unit_record.h"
#include "editors/performance/performance_dialog.h"

namespace varrocade {

/// "Weight and top speed...": opens the window, which follows the open vehicle from there on, or brings it to
/// the front. An estimate that is taken is a step to undo and not saved yet.
void showOpenPerformance();

/// The same without showing the open vehicle in it: a dialog shows in it what is typed.
void openPerformance();
void previewPerformance(const SquadRecord& typed, TakeWeight take);

/// Shows the open vehicle in the window, where it is open.
void followPerformance();

/// Whether a vehicle is open that has weight and speed.
bool canShowPerformance();

/// "Compare vehicles...": opens the one that is chosen there.
void compareAllVehicles();

} // namespace varrocade
