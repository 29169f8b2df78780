// The crew of a component, and what each man carries.

#include "editors/form/list_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

class CrewDialog final : public ListDialog {
public:
    /// `crew` is the copy that the dialog works on.
    CrewDialog(EditContext& edit, ComponentKind kind, std::vector<CrewManRecord>& crew)
        : ListDialog({.dialogTemplate = IDD_CREW,
                      .caption = "Crew",
                      .fullText = TooManyComponentsText,
                      .fullCaption = SquadFullCaption,
                      .first = edit.firstShown,
                      .title = captionOf(edit, "crew"),
                      .focus = edit.focus.field},
                     model_),
          edit_(edit), kind_(kind), crew_(crew), model_(crew, crewShape()) {
        onButton(IDC_MAN_WEAPONS_BUTTON, [this] { editMan(editPersonalWeapons); });
        onButton(IDC_MAN_AMMO_BUTTON, [this] { editMan(editManAmmunition); });
    }

private:
    void prepare() override {
        if (kind_ == ComponentKind::Superstructure) {
            port().setText(IDC_NOT_STORED, "The crew of a superstructure is not stored in the file.");
        }
    }
    void opened() override {
        if (edit_.focus.carried == PartKind::Weapon) {
            editMan(editPersonalWeapons);
        } else if (edit_.focus.carried == PartKind::Ammunition) {
            editMan(editManAmmunition);
        }
        edit_.focus = {};
    }
    void follow() override {
        port().setEnabled(IDC_MAN_WEAPONS_BUTTON, isShown());
        port().setEnabled(IDC_MAN_AMMO_BUTTON, isShown());
    }
    void editMan(bool (*edit)(HWND, EditContext&, CrewManRecord&)) {
        if (isShown() && takeShown()) {
            EditContext ofMan = edit_;
            if (!ofMan.subject.empty()) {
                ofMan.subject += ", man " + std::to_string(shownIndex() + 1);
            }
            edit(handle(), ofMan, crew_[shownIndex()]);
            refreshShown();
        }
    }

    EditContext& edit_;
    ComponentKind kind_;
    std::vector<CrewManRecord>& crew_;
    VectorListModel<CrewManRecord> model_;
};

class PersonalWeaponsDialog final : public ListDialog {
public:
    PersonalWeaponsDialog(EditContext& edit, ListModel& model)
        : ListDialog({.dialogTemplate = IDD_PERSONAL_WEAPONS,
                      .caption = "Personal Weapons",
                      .first = edit.focus.carried == PartKind::Weapon ? edit.focus.carriedIndex : 0,
                      .title = captionOf(edit, "personal weapons")},
                     model),
          edit_(edit) {
        onButton(IDC_SHOW_ALL, [this] { prepare(); });
    }

private:
    void prepare() override {
        port().setChoices(IDC_WEAPON_TYPE, weaponChoices(edit_.catalogue, edit_.record, WeaponBearer::Man,
                                                         port().isChecked(IDC_SHOW_ALL)));
    }
    std::string unknownText() override {
        return unknownWeapon(port().text(IDC_WEAPON_TYPE), edit_.catalogue);
    }

    EditContext& edit_;
};

} // namespace

bool editCrew(HWND owner, EditContext& edit, ComponentRecord& component) {
    std::vector<CrewManRecord> crew = component.crew;
    if (!CrewDialog(edit, component.kind, crew).run(owner) || crew == component.crew) {
        return false;
    }
    component.crew = std::move(crew);
    return true;
}

bool editPersonalWeapons(HWND owner, EditContext& edit, CrewManRecord& man) {
    std::vector<PersonalWeapon> weapons;
    for (const Text& type : man.weapons) {
        weapons.push_back({type});
    }
    VectorListModel<PersonalWeapon> model(weapons, personalWeaponShape());
    if (!PersonalWeaponsDialog(edit, model).run(owner)) {
        return false;
    }
    man.weapons.clear();
    for (const PersonalWeapon& weapon : weapons) {
        man.weapons.push_back(weapon.type);
    }
    return true;
}

} // namespace varrocade
