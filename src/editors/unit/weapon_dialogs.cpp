// The weapons and the ammunition of a component, and the ammunition of a man.

#include "data/unit/enumerations.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "resources/resource.h"

#include <algorithm>

namespace varrocade {

namespace {

struct WeaponsContext {
    EditContext& edit;
    ComponentRecord component; ///< the copy that the dialog works on
    bool showAll = false;
};

void fillWeaponChoices(HWND dialog, const WeaponsContext& context) {
    DialogPort(dialog).setChoices(IDC_WEAPON_TYPE, weaponChoices(context.edit.catalogue, context.edit.record,
                                                                 WeaponBearer::Vehicle, context.showAll));
}

/// What the files cannot hold of the weapons of this kind of component.
std::string_view notStoredOf(ComponentKind kind) {
    switch (kind) {
    case ComponentKind::Turret:
        return {};
    case ComponentKind::FixedWeapon:
        return "Offsets and angle of a fixed weapon's weapons are not stored in the file.";
    case ComponentKind::Hull:
    case ComponentKind::Superstructure:
        break;
    }
    return "The weapons of this component are not stored in the file.";
}

void prepareWeapons(HWND dialog, ListDialog& list) {
    const auto& context = *static_cast<const WeaponsContext*>(list.context);
    const auto mounts = mountNames();
    DialogPort port(dialog);
    fillWeaponChoices(dialog, context);
    port.setChoices(IDC_WEAPON_MOUNT, std::vector<std::string>(mounts.begin(), mounts.end()));
    port.setText(IDC_NOT_STORED, notStoredOf(context.component.kind));
}

void followWeapons(HWND dialog, ListDialog& list) {
    DialogPort port(dialog);
    std::string unknown;
    if (list.shown >= 0) {
        const auto& context = *static_cast<const WeaponsContext*>(list.context);
        constexpr ChoiceField mount = {IDC_WEAPON_MOUNT, "Mount"};
        unknown = unknownWeapon(port.text(IDC_WEAPON_TYPE), context.edit.catalogue);
        const std::string unknownMount = unknownChoices(port, std::span(&mount, 1));
        unknown += (unknown.empty() || unknownMount.empty() ? "" : "; ") + unknownMount;
    }
    showUnknown(dialog, unknown);
}

bool weaponsCommand(HWND dialog, ListDialog& list, int control) {
    auto& context = *static_cast<WeaponsContext*>(list.context);
    if (control == IDC_SHOW_ALL) {
        context.showAll = DialogPort(dialog).isChecked(IDC_SHOW_ALL);
        fillWeaponChoices(dialog, context);
        return true;
    }
    if (control == IDC_AMMO_BUTTON) {
        if (takeShownEntry(dialog, list)) {
            editComponentAmmunition(dialog, context.edit, context.component);
        }
        return true;
    }
    return false;
}

INT_PTR CALLBACK weaponsProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

// ---- ammunition

struct AmmunitionContext {
    EditContext& edit;
    std::vector<std::string> weaponTypes; ///< of the weapons that it is carried for
    bool hasFlavour;
    std::vector<AmmoLoadRecord> ammo; ///< the copy that the dialog works on
};

void prepareAmmunition(HWND dialog, ListDialog& list) {
    const auto& context = *static_cast<const AmmunitionContext*>(list.context);
    DialogPort port(dialog);
    port.setChoices(IDC_WEAPON_TYPE, context.weaponTypes);
    if (!context.hasFlavour) {
        port.setText(IDC_NOT_STORED, "The flavour of a crew man's ammunition is not stored in the file.");
    }
}

/// The flavours are those of the weapon that is chosen; what does not fit is said, not refused.
void followAmmunition(HWND dialog, ListDialog& list) {
    const auto& context = *static_cast<const AmmunitionContext*>(list.context);
    DialogPort port(dialog);
    if (list.shown < 0) {
        port.setText(IDC_WARNING, "");
        return;
    }
    const AmmoLoadRecord& ammo = context.ammo[static_cast<std::size_t>(list.shown)];
    port.setEnabled(IDC_FLAVOUR, context.hasFlavour || !ammo.flavour.empty());
    if (GetFocus() == nullptr || GetParent(GetFocus()) != GetDlgItem(dialog, IDC_FLAVOUR)) {
        port.setChoices(IDC_FLAVOUR, flavourChoices(context.edit.catalogue, ammo.weaponType));
    }
    port.setText(IDC_WARNING, ammunitionWarning(ammo, context.weaponTypes, context.edit.catalogue));
}

INT_PTR CALLBACK ammunitionProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

bool editAmmunition(HWND owner, AmmunitionContext& context, std::vector<AmmoLoadRecord>& ammo) {
    VectorListModel<AmmoLoadRecord> model(context.ammo, ammunitionShape());
    ListDialog list{.model = model,
                    .caption = "Ammunition",
                    .context = &context,
                    .prepare = prepareAmmunition,
                    .follow = followAmmunition};
    if (runDialog(owner, IDD_AMMUNITION, ammunitionProcedure, &list) == 0) {
        return false;
    }
    ammo = std::move(context.ammo);
    return true;
}

} // namespace

bool editWeapons(HWND owner, EditContext& edit, ComponentRecord& component) {
    WeaponsContext context{.edit = edit, .component = component};
    VectorListModel<WeaponMountRecord> model(context.component.weapons, weaponShape());
    ListDialog list{.model = model,
                    .caption = "Weapons",
                    .context = &context,
                    .command = weaponsCommand,
                    .prepare = prepareWeapons,
                    .follow = followWeapons,
                    .first = edit.firstShown};
    if (runDialog(owner, IDD_WEAPONS, weaponsProcedure, &list) == 0 || context.component == component) {
        return false;
    }
    component = std::move(context.component);
    return true;
}

bool editComponentAmmunition(HWND owner, EditContext& edit, ComponentRecord& component) {
    AmmunitionContext context{.edit = edit, .weaponTypes = {}, .hasFlavour = true, .ammo = component.ammo};
    for (const WeaponMountRecord& weapon : component.weapons) {
        // Two weapons of a type share their ammunition.
        if (std::find(context.weaponTypes.begin(), context.weaponTypes.end(), weapon.type.view()) ==
            context.weaponTypes.end()) {
            context.weaponTypes.push_back(weapon.type.str());
        }
    }
    return editAmmunition(owner, context, component.ammo);
}

bool editManAmmunition(HWND owner, EditContext& edit, CrewManRecord& man) {
    AmmunitionContext context{.edit = edit, .weaponTypes = {}, .hasFlavour = false, .ammo = man.ammo};
    for (const Text& weapon : man.weapons) {
        context.weaponTypes.push_back(weapon.str());
    }
    return editAmmunition(owner, context, man.ammo);
}

} // namespace varrocade
