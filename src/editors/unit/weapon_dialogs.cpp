// The weapons and the ammunition of a component, and the ammunition of a man.

#include "data/unit_fields.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/unit/carried_ammo.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <utility>

namespace varrocade {

namespace {

/// What the dialog of ammunition goes by besides the ammunition.
struct AmmoTerms {
    std::vector<std::string> weaponTypes; ///< of the weapons that it is carried for
    WeaponBearer bearer = WeaponBearer::Vehicle;
    bool hasFlavour = true;
};

bool editAmmunition(HWND owner, EditContext& edit, AmmoTerms terms, std::vector<AmmoLoadRecord>& ammo);

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

/// What the dialog of weapons goes by besides the weapons.
struct WeaponsTerms {
    WeaponBearer bearer = WeaponBearer::Vehicle;
    std::string notStored = {};
    /// The weapons that the drawing shows, where they are not those that the dialog changes.
    std::vector<WeaponMountRecord>* drawn = nullptr;
};

class WeaponsDialog final : public ListDialog {
public:
    /// `weapons` and `ammo` are changed at once; the caller puts them back where the dialog is cancelled.
    WeaponsDialog(EditContext& edit, std::vector<WeaponMountRecord>& weapons,
                  std::vector<AmmoLoadRecord>& ammo, WeaponsTerms terms)
        : ListDialog({.dialogTemplate = IDD_WEAPONS,
                      .caption = "Weapons",
                      .first = edit.firstShown,
                      .title = captionOf(edit, "weapons"),
                      .focus = edit.focus.field},
                     model_),
          edit_(edit), weapons_(weapons), ammo_(ammo), terms_(std::move(terms)), former_(weapons),
          model_(weapons, weaponShape()) {
        onButton(IDC_SHOW_ALL, [this] { offerWeapons(); });
        onButton(IDC_AMMO_BUTTON, [this] {
            if (takeShown()) {
                editAmmunition(handle(), edit_, {weaponTypesOf(weapons_), terms_.bearer}, ammo_);
            }
        });
    }

private:
    void offerWeapons() {
        port().setChoices(IDC_WEAPON_TYPE, weaponChoices(edit_.catalogue, edit_.record, terms_.bearer,
                                                         port().isChecked(IDC_SHOW_ALL)));
    }
    void prepare() override {
        offerWeapons();
        port().setText(IDC_NOT_STORED, terms_.notStored);
    }
    std::string unknownText() override {
        std::string unknown = unknownWeapon(port().text(IDC_WEAPON_TYPE), edit_.catalogue);
        const std::string unknownMount = ListDialog::unknownText();
        unknown += (unknown.empty() || unknownMount.empty() ? "" : "; ") + unknownMount;
        return unknown;
    }
    void preview() override {
        if (terms_.drawn != nullptr) {
            *terms_.drawn = weapons_;
        }
        edit_.redraw();
    }

    /// Ammunition does not stay behind unasked.
    bool accept() override {
        if (!ListDialog::accept()) {
            return false;
        }
        std::vector<AmmoLoadRecord> ammo = ammo_;
        for (const OrphanedAmmo& orphan : orphanedAmmo(former_, weapons_, ammo)) {
            const Answer answer = showMessage({.text = orphanQuestion(orphan),
                                               .caption = caption(),
                                               .buttons = MessageButtons::YesNoCancel,
                                               .icon = MessageIcon::Question});
            if (answer == Answer::Cancel) {
                return false;
            }
            settleOrphan(orphan, answer == Answer::Yes, ammo);
        }
        ammo_ = std::move(ammo);
        return true;
    }

    EditContext& edit_;
    std::vector<WeaponMountRecord>& weapons_;
    std::vector<AmmoLoadRecord>& ammo_;
    WeaponsTerms terms_;
    std::vector<WeaponMountRecord> former_;
    VectorListModel<WeaponMountRecord> model_;
};

/// The load that something is to be done about.
std::size_t firstLoad(const EditContext& edit) {
    if (edit.focus.carried == PartKind::Ammunition) {
        return edit.focus.carriedIndex;
    }
    const FieldId field = edit.focus.field;
    const bool isOfLoad = field == &field::AmmoFor || field == &field::Flavour || field == &field::Rounds;
    return isOfLoad ? edit.firstShown : 0;
}

class AmmunitionDialog final : public ListDialog {
public:
    /// `ammo` is the copy that the dialog works on.
    AmmunitionDialog(EditContext& edit, AmmoTerms terms, std::vector<AmmoLoadRecord>& ammo)
        : ListDialog({.dialogTemplate = IDD_AMMUNITION,
                      .caption = "Ammunition",
                      .first = firstLoad(edit),
                      .title = captionOf(edit, "ammunition"),
                      .focus = edit.focus.field},
                     model_),
          edit_(edit), terms_(std::move(terms)), ammo_(ammo),
          model_(ammo, ammunitionShape(),
                 {.next = [this] { return nextLoad(); },
                  .warn = [this](const AmmoLoadRecord& load) { return warningOf(load); }}) {}

private:
    void prepare() override {
        port().setChoices(IDC_WEAPON_TYPE, terms_.weaponTypes);
        if (!terms_.hasFlavour) {
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
        port().setEnabled(IDC_FLAVOUR, terms_.hasFlavour || !ammo.flavour.empty());
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
        return ammunitionWarning(ammo, terms_.weaponTypes, edit_.catalogue);
    }
    [[nodiscard]] AmmoLoadRecord nextLoad() const {
        AmmoLoadRecord load = nextAmmunition(terms_.weaponTypes, ammo_, terms_.hasFlavour, edit_.catalogue);
        load.rounds = usualRounds(edit_.catalogue, load.weaponType, terms_.bearer);
        return load;
    }

    EditContext& edit_;
    AmmoTerms terms_;
    std::vector<AmmoLoadRecord>& ammo_;
    VectorListModel<AmmoLoadRecord> model_;
};

bool editAmmunition(HWND owner, EditContext& edit, AmmoTerms terms, std::vector<AmmoLoadRecord>& ammo) {
    std::vector<AmmoLoadRecord> copy = ammo;
    if (!AmmunitionDialog(edit, std::move(terms), copy).run(owner)) {
        return false;
    }
    ammo = std::move(copy);
    return true;
}

} // namespace

bool editWeapons(HWND owner, EditContext& edit, ComponentRecord& component) {
    const ComponentRecord former = component;
    ComponentRecord copy = component;
    WeaponsDialog dialog(
        edit, copy.weapons, copy.ammo,
        {.notStored = std::string(notStoredOf(component.kind)), .drawn = &component.weapons});
    if (!dialog.run(owner)) {
        component = former;
        edit.redraw();
        return false;
    }
    component = std::move(copy);
    return component != former;
}

bool editArmament(HWND owner, EditContext& edit, const Armament& armament) {
    const std::vector<WeaponMountRecord> weapons = armament.weapons;
    const std::vector<AmmoLoadRecord> ammo = armament.ammo;
    WeaponsDialog dialog(
        edit, armament.weapons, armament.ammo,
        {.bearer = armament.bearer, .notStored = notStoredText(weaponShape().form, armament.holder)});
    if (dialog.run(owner)) {
        return weapons != armament.weapons || ammo != armament.ammo;
    }
    armament.weapons = weapons;
    armament.ammo = ammo;
    edit.redraw();
    return false;
}

bool editArmamentAmmunition(HWND owner, EditContext& edit, const Armament& armament) {
    const std::vector<AmmoLoadRecord> former = armament.ammo;
    return editAmmunition(owner, edit, {weaponTypesOf(armament.weapons), armament.bearer}, armament.ammo) &&
           former != armament.ammo;
}

bool editSoldierAmmunition(HWND owner, EditContext& edit, CrewManRecord& man,
                           std::vector<std::string> weaponTypes) {
    return editAmmunition(owner, edit, {std::move(weaponTypes), WeaponBearer::Man}, man.ammo);
}

bool editComponentAmmunition(HWND owner, EditContext& edit, ComponentRecord& component) {
    return editAmmunition(owner, edit, {weaponTypesOf(component.weapons)}, component.ammo);
}

bool editManAmmunition(HWND owner, EditContext& edit, CrewManRecord& man) {
    std::vector<std::string> weaponTypes;
    for (const Text& weapon : man.weapons) {
        weaponTypes.push_back(weapon.str());
    }
    return editAmmunition(owner, edit, {std::move(weaponTypes), WeaponBearer::Man, false}, man.ammo);
}

} // namespace varrocade
