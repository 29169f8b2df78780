// The weapons and the ammunition of a component, and the ammunition of a man.

#include "editors/form/list_dialog_win32.h"
#include "editors/unit/carried_ammo.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "platform/messages.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

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

class WeaponsDialog final : public ListDialog {
public:
    /// `component` is the copy that the dialog works on.
    WeaponsDialog(EditContext& edit, ComponentRecord& component)
        : ListDialog({.dialogTemplate = IDD_WEAPONS, .caption = "Weapons", .first = edit.firstShown}, model_),
          edit_(edit), component_(component), former_(component.weapons),
          model_(component.weapons, weaponShape()) {
        onButton(IDC_SHOW_ALL, [this] { offerWeapons(); });
        onButton(IDC_AMMO_BUTTON, [this] {
            if (takeShown()) {
                editComponentAmmunition(handle(), edit_, component_);
            }
        });
    }

private:
    void offerWeapons() {
        port().setChoices(IDC_WEAPON_TYPE, weaponChoices(edit_.catalogue, edit_.record, WeaponBearer::Vehicle,
                                                         port().isChecked(IDC_SHOW_ALL)));
    }
    void prepare() override {
        offerWeapons();
        port().setText(IDC_NOT_STORED, notStoredOf(component_.kind));
    }
    std::string unknownText() override {
        std::string unknown = unknownWeapon(port().text(IDC_WEAPON_TYPE), edit_.catalogue);
        const std::string unknownMount = ListDialog::unknownText();
        unknown += (unknown.empty() || unknownMount.empty() ? "" : "; ") + unknownMount;
        return unknown;
    }

    /// Ammunition does not stay behind unasked.
    bool accept() override {
        if (!ListDialog::accept()) {
            return false;
        }
        std::vector<AmmoLoadRecord> ammo = component_.ammo;
        for (const OrphanedAmmo& orphan : orphanedAmmo(former_, component_.weapons, ammo)) {
            const Answer answer = showMessage({.text = orphanQuestion(orphan),
                                               .caption = caption(),
                                               .buttons = MessageButtons::YesNoCancel,
                                               .icon = MessageIcon::Question});
            if (answer == Answer::Cancel) {
                return false;
            }
            settleOrphan(orphan, answer == Answer::Yes, ammo);
        }
        component_.ammo = std::move(ammo);
        return true;
    }

    EditContext& edit_;
    ComponentRecord& component_;
    std::vector<WeaponMountRecord> former_;
    VectorListModel<WeaponMountRecord> model_;
};

class AmmunitionDialog final : public ListDialog {
public:
    /// `weaponTypes` are those of the weapons that it is carried for, `ammo` the copy that the dialog works
    /// on.
    AmmunitionDialog(EditContext& edit, std::vector<std::string> weaponTypes, bool hasFlavour,
                     std::vector<AmmoLoadRecord>& ammo)
        : ListDialog({.dialogTemplate = IDD_AMMUNITION, .caption = "Ammunition"}, model_), edit_(edit),
          weaponTypes_(std::move(weaponTypes)), hasFlavour_(hasFlavour), ammo_(ammo),
          model_(
              ammo, ammunitionShape(),
              {.next = [this] { return nextAmmunition(weaponTypes_, ammo_, hasFlavour_, edit_.catalogue); },
               .warn = [this](const AmmoLoadRecord& load) { return warningOf(load); }}) {}

private:
    void prepare() override {
        port().setChoices(IDC_WEAPON_TYPE, weaponTypes_);
        if (!hasFlavour_) {
            port().setText(IDC_NOT_STORED,
                           "The flavour of a crew man's ammunition is not stored in the file.");
        }
    }
    /// The flavours are those of the weapon that is chosen; what does not fit is said, not refused.
    void follow() override {
        if (!isShown()) {
            port().setText(IDC_WARNING, "");
            return;
        }
        const AmmoLoadRecord& ammo = ammo_[shownIndex()];
        port().setEnabled(IDC_FLAVOUR, hasFlavour_ || !ammo.flavour.empty());
        if (GetFocus() == nullptr || GetParent(GetFocus()) != GetDlgItem(handle(), IDC_FLAVOUR)) {
            port().setChoices(IDC_FLAVOUR, flavourChoices(edit_.catalogue, ammo.weaponType));
        }
        port().setText(IDC_WARNING, warningOf(ammo));
    }
    std::string unknownText() override {
        const std::string unknown = unknownWeapon(port().text(IDC_WEAPON_TYPE), edit_.catalogue);
        const std::string flavour = unknownFlavour(port().text(IDC_FLAVOUR));
        return unknown + (unknown.empty() || flavour.empty() ? "" : "; ") + flavour;
    }
    [[nodiscard]] std::string warningOf(const AmmoLoadRecord& ammo) const {
        return ammunitionWarning(ammo, weaponTypes_, edit_.catalogue);
    }

    EditContext& edit_;
    std::vector<std::string> weaponTypes_;
    bool hasFlavour_;
    std::vector<AmmoLoadRecord>& ammo_;
    VectorListModel<AmmoLoadRecord> model_;
};

bool editAmmunition(HWND owner, EditContext& edit, std::vector<std::string> weaponTypes, bool hasFlavour,
                    std::vector<AmmoLoadRecord>& ammo) {
    std::vector<AmmoLoadRecord> copy = ammo;
    if (!AmmunitionDialog(edit, std::move(weaponTypes), hasFlavour, copy).run(owner)) {
        return false;
    }
    ammo = std::move(copy);
    return true;
}

} // namespace

bool editWeapons(HWND owner, EditContext& edit, ComponentRecord& component) {
    ComponentRecord copy = component;
    if (!WeaponsDialog(edit, copy).run(owner) || copy == component) {
        return false;
    }
    component = std::move(copy);
    return true;
}

bool editComponentAmmunition(HWND owner, EditContext& edit, ComponentRecord& component) {
    return editAmmunition(owner, edit, weaponTypesOf(component.weapons), true, component.ammo);
}

bool editManAmmunition(HWND owner, EditContext& edit, CrewManRecord& man) {
    std::vector<std::string> weaponTypes;
    for (const Text& weapon : man.weapons) {
        weaponTypes.push_back(weapon.str());
    }
    return editAmmunition(owner, edit, std::move(weaponTypes), false, man.ammo);
}

} // namespace varrocade
