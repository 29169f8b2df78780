#pragma once
// The dialogs of squads on foot, heavy weapons and aircraft. Changes of the list of members, and of what
// further dialogs show, take effect at once; a dialog's own fields are taken over when it is ended with OK.

#include "editors/unit/edit_context.h"
#include "editors/unit/list_dialogs.h"

#include <windows.h>

#include <cstddef>
#include <span>

namespace varrocade {

/// The "Details" of a squad on foot or of a heavy weapon's squad; true for "Save any changes".
bool editSquad(HWND owner, EditContext& edit);

/// The "Details" of an aircraft; true for "Save any changes".
bool editAircraft(HWND owner, EditContext& edit);

/// The rotor blades of an aircraft; true when they were changed. The drawing follows at once.
bool editRotors(HWND owner, EditContext& edit);

/// The heavy weapon of the squad; true when it was changed. The drawing follows at once.
bool editHeavyWeapon(HWND owner, EditContext& edit);

/// Asks what a heavy weapon is that was just added to the squad; true for OK. Otherwise it is as it was
/// added.
bool askForHeavyWeapon(HWND owner, EditContext& edit);

/// Asks what a man is and carries who is not in the squad yet; true for OK.
bool askForMan(HWND owner, EditContext& edit, CrewManRecord& man);

/// One man of the squad; true when he was changed.
bool editMan(HWND owner, EditContext& edit, CrewManRecord& man);

/// Asks what is to be changed of several men, by their places among the men, and does it; true when something
/// was.
bool editSeveralMen(HWND owner, EditContext& edit, std::span<const std::size_t> men);

/// Asks how many men like one are to be added, at most `room`; 0 when the user cancelled it.
std::size_t askForMenCount(HWND owner, std::size_t room);

/// The weapons and ammunition of the squad's heavy weapon or the aircraft, one of which there must be.
Armament armamentOf(SquadRecord& unit);

} // namespace varrocade
