#pragma once

namespace varrocade {

/// The "Weapon File Problems" dialog: the files that the weapon catalogue could not take, with the reasons.
void showWeaponProblems();

} // namespace varrocade
