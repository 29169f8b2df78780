#pragma once
// The commands about what vehicles weigh and how they drive.

namespace varrocade {

/// "Weight and top speed..." of the open vehicle. An estimate that is taken is a step to undo and not saved
/// yet.
void showOpenPerformance();

/// Whether a vehicle is open that has weight and speed.
bool canShowPerformance();

/// "Compare vehicles...": opens the one that is chosen there.
void compareAllVehicles();

} // namespace varrocade
