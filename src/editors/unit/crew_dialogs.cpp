// The crew of a component, and what each man carries.

#include "data/unit/enumerations.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

struct CrewContext {
    EditContext& edit;
    const ComponentRecord& component;
    std::vector<CrewManRecord> crew; ///< the copy that the dialog works on
};

void prepareCrew(HWND dialog, ListDialog& list) {
    const auto names = jobNames();
    const auto& context = *static_cast<const CrewContext*>(list.context);
    DialogPort port(dialog);
    port.setChoices(IDC_JOB, std::vector<std::string>(names.begin(), names.end()));
    if (context.component.kind == ComponentKind::Superstructure) {
        port.setText(IDC_NOT_STORED, "The crew of a superstructure is not stored in the file.");
    }
}

void followCrew(HWND dialog, ListDialog& list) {
    DialogPort port(dialog);
    port.setEnabled(IDC_MAN_WEAPONS_BUTTON, list.shown >= 0);
    port.setEnabled(IDC_MAN_AMMO_BUTTON, list.shown >= 0);
    constexpr ChoiceField job = {IDC_JOB, "Job"};
    showUnknown(dialog, list.shown >= 0 ? unknownChoices(port, std::span(&job, 1)) : std::string());
}

bool crewCommand(HWND dialog, ListDialog& list, int control) {
    if (list.shown < 0 || (control != IDC_MAN_WEAPONS_BUTTON && control != IDC_MAN_AMMO_BUTTON)) {
        return false;
    }
    auto& context = *static_cast<CrewContext*>(list.context);
    CrewManRecord& man = context.crew[static_cast<std::size_t>(list.shown)];
    if (takeShownEntry(dialog, list)) {
        if (control == IDC_MAN_WEAPONS_BUTTON) {
            editPersonalWeapons(dialog, context.edit, man);
        } else {
            editManAmmunition(dialog, context.edit, man);
        }
        refreshEntries(dialog, list, list.shown);
    }
    return true;
}

INT_PTR CALLBACK crewProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

struct PersonalWeaponsContext {
    EditContext& edit;
    bool showAll = false;
};

void fillWeaponChoices(HWND dialog, const PersonalWeaponsContext& context) {
    DialogPort(dialog).setChoices(IDC_WEAPON_TYPE, weaponChoices(context.edit.catalogue, context.edit.record,
                                                                 WeaponBearer::Man, context.showAll));
}

void preparePersonalWeapons(HWND dialog, ListDialog& list) {
    fillWeaponChoices(dialog, *static_cast<const PersonalWeaponsContext*>(list.context));
}

void followPersonalWeapons(HWND dialog, ListDialog& list) {
    DialogPort port(dialog);
    const auto& context = *static_cast<const PersonalWeaponsContext*>(list.context);
    showUnknown(dialog, list.shown >= 0 ? unknownWeapon(port.text(IDC_WEAPON_TYPE), context.edit.catalogue)
                                        : std::string());
}

bool personalWeaponsCommand(HWND dialog, ListDialog& list, int control) {
    if (control != IDC_SHOW_ALL) {
        return false;
    }
    auto& context = *static_cast<PersonalWeaponsContext*>(list.context);
    context.showAll = DialogPort(dialog).isChecked(IDC_SHOW_ALL);
    fillWeaponChoices(dialog, context);
    return true;
}

INT_PTR CALLBACK personalWeaponsProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

} // namespace

bool editCrew(HWND owner, EditContext& edit, ComponentRecord& component) {
    CrewContext context{.edit = edit, .component = component, .crew = component.crew};
    VectorListModel<CrewManRecord> model(context.crew, crewShape());
    ListDialog list{.model = model,
                    .caption = "Crew",
                    .fullText = TooManyComponentsText,
                    .fullCaption = SquadFullCaption,
                    .context = &context,
                    .command = crewCommand,
                    .prepare = prepareCrew,
                    .follow = followCrew,
                    .first = edit.firstShown};
    if (runDialog(owner, IDD_CREW, crewProcedure, &list) == 0 || context.crew == component.crew) {
        return false;
    }
    component.crew = std::move(context.crew);
    return true;
}

bool editPersonalWeapons(HWND owner, EditContext& edit, CrewManRecord& man) {
    std::vector<PersonalWeapon> weapons;
    for (const Text& type : man.weapons) {
        weapons.push_back({type});
    }
    PersonalWeaponsContext context{.edit = edit};
    VectorListModel<PersonalWeapon> model(weapons, personalWeaponShape());
    ListDialog list{.model = model,
                    .caption = "Personal Weapons",
                    .context = &context,
                    .command = personalWeaponsCommand,
                    .prepare = preparePersonalWeapons,
                    .follow = followPersonalWeapons};
    if (runDialog(owner, IDD_PERSONAL_WEAPONS, personalWeaponsProcedure, &list) == 0) {
        return false;
    }
    man.weapons.clear();
    for (const PersonalWeapon& weapon : weapons) {
        man.weapons.push_back(weapon.type);
    }
    return true;
}

} // namespace varrocade
