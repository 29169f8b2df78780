#pragma once
// The dialogs that edit what a component or a vehicle has several of. Each works on a copy, which OK takes
// over (true); where the drawing shows the entries, it follows at once.

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

bool editCrew(HWND owner, EditContext& edit, ComponentRecord& component);
bool editWeapons(HWND owner, EditContext& edit, ComponentRecord& component);
bool editSmokeDischargers(HWND owner, EditContext& edit, ComponentRecord& component);
bool editExhaustPipes(HWND owner, EditContext& edit);

/// The personal weapons and the ammunition of one man.
bool editPersonalWeapons(HWND owner, EditContext& edit, CrewManRecord& man);
bool editManAmmunition(HWND owner, EditContext& edit, CrewManRecord& man);

/// The ammunition of a component.
bool editComponentAmmunition(HWND owner, EditContext& edit, ComponentRecord& component);

} // namespace varrocade
