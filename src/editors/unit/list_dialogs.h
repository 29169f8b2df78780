#pragma once
// The dialogs that edit what a component or a vehicle has several of. Each works on a copy, which OK takes
// over (true); where the drawing shows the entries, it follows at once.

#include "data/field.h"
#include "editors/unit/edit_context.h"
#include "editors/unit/weapon_choices.h"

#include <windows.h>

namespace varrocade {

bool editCrew(HWND owner, EditContext& edit, ComponentRecord& component);
bool editWeapons(HWND owner, EditContext& edit, ComponentRecord& component);
bool editSmokeDischargers(HWND owner, EditContext& edit, ComponentRecord& component);
bool editExhaustPipes(HWND owner, EditContext& edit);

/// What carries weapons without being a component: a heavy weapon or an aircraft.
struct Armament {
    std::vector<WeaponMountRecord>& weapons;
    std::vector<AmmoLoadRecord>& ammo;
    Holder holder; ///< by which the file stores of a weapon what it does
    WeaponBearer bearer;
};

/// The drawing shows the weapons while they are edited, as far as they stand in the record.
bool editArmament(HWND owner, EditContext& edit, const Armament& armament);
bool editArmamentAmmunition(HWND owner, EditContext& edit, const Armament& armament);

/// The ammunition of a man of a squad on foot, for one of these weapons.
bool editSoldierAmmunition(HWND owner, EditContext& edit, CrewManRecord& man,
                           std::vector<std::string> weaponTypes);

/// The personal weapons and the ammunition of one man.
bool editPersonalWeapons(HWND owner, EditContext& edit, CrewManRecord& man);
bool editManAmmunition(HWND owner, EditContext& edit, CrewManRecord& man);

/// The ammunition of a component.
bool editComponentAmmunition(HWND owner, EditContext& edit, ComponentRecord& component);

} // namespace varrocade
