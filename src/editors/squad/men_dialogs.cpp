// One man of a squad, several of them at once, and how many more are wanted.

#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/squad/man_form.h"
#include "editors/squad/members.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/carried_ammo.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

class ManDialog final : public FormDialog {
public:
    ManDialog(EditContext& edit, CrewManRecord& work)
        : FormDialog({.dialogTemplate = IDD_MAN, .caption = "Man", .focus = edit.focus.field}, form_),
          edit_(edit), work_(work), form_(work, manShape()) {
        onButton(IDC_MAN_WEAPONS_BUTTON, [this] { editWeapons(); });
        onButton(IDC_MAN_AMMO_BUTTON, [this] { editAmmunition(); });
    }

private:
    void editWeapons() {
        editPersonalWeapons(handle(), edit_, work_);
        follow();
    }
    void editAmmunition() {
        editSoldierAmmunition(handle(), edit_, work_, ammoWeaponsOf(edit_.record, work_, edit_.catalogue));
        follow();
    }
    void opened() override {
        if (edit_.focus.carried == PartKind::Weapon) {
            editWeapons();
        } else if (edit_.focus.carried == PartKind::Ammunition) {
            editAmmunition();
        }
        edit_.focus = {};
    }
    void follow() override {
        port().setText(IDC_CARRIED, carriedLines(weaponTypesOf(std::span(&work_, 1)), work_.ammo));
        CrewManRecord shown = work_;
        readPossible(port(), manShape(), shown);
        const auto jobs = squadJobNames();
        const bool isStored = shown.job == field::Job.standard() ||
                              std::find(jobs.begin(), jobs.end(), shown.job.view()) != jobs.end();
        const std::array<std::string, 1> job = {field::Job.label.data()};
        port().setText(IDC_NOT_STORED, isStored ? std::string() : notStoredText(job));
    }

    EditContext& edit_;
    CrewManRecord& work_;
    RecordForm<CrewManRecord> form_;
};

class SeveralMenDialog final : public FormDialog {
public:
    SeveralMenDialog(EditContext& edit, std::span<const CrewManRecord> men, MenChange& change)
        : FormDialog({.dialogTemplate = IDD_SEVERAL_MEN, .caption = "Change Several Men"}, form_),
          edit_(edit), men_(men), form_(change, menChangeShape()) {
        onButton(IDC_SHOW_ALL, [this] { offerWeapons(); });
    }

private:
    void prepare() override {
        port().setText(IDC_CAPTION_LINE, "For all of the " + std::to_string(men_.size()) + " men chosen:");
        offerWeapons();
        port().setChoices(IDC_FORMER_ARMS, weaponTypesOf(men_));
    }
    void offerWeapons() {
        port().setChoices(IDC_WEAPON_TYPE, weaponChoices(edit_.catalogue, edit_.record, WeaponBearer::Man,
                                                         port().isChecked(IDC_SHOW_ALL)));
    }
    /// Ammunition is offered for what they get, too, as much as is usual; what is typed stays.
    void follow() override {
        MenChange shown;
        readPossible(port(), menChangeShape(), shown);
        if (!hasKeyboard(IDC_AMMO_FOR)) {
            suggestAmmunition(shown);
        }
        if (!hasKeyboard(IDC_FLAVOUR)) {
            port().setChoices(IDC_FLAVOUR, flavourChoices(edit_.catalogue, port().text(IDC_AMMO_FOR)));
        }
        if (shown.ammunition == AmmoChange::Give && shown.load.rounds == 0 && !hasKeyboard(IDC_ROUNDS)) {
            const std::int32_t rounds =
                usualRounds(edit_.catalogue, port().text(IDC_AMMO_FOR), WeaponBearer::Man);
            port().setText(IDC_ROUNDS, std::to_string(rounds));
        }
    }
    void suggestAmmunition(const MenChange& shown) {
        const bool getsArms = shown.arms == ArmsChange::Give || shown.arms == ArmsChange::Exchange;
        CrewManRecord likeThem = men_.front();
        if (getsArms && !shown.weapon.empty()) {
            likeThem.weapons.insert(likeThem.weapons.begin(), shown.weapon);
        }
        const auto weapons = ammoWeaponsOf(edit_.record, likeThem, edit_.catalogue);
        port().setChoices(IDC_AMMO_FOR, weapons);
        if (shown.ammunition == AmmoChange::Give && shown.load.weaponType.empty() && !weapons.empty()) {
            port().setText(IDC_AMMO_FOR, weapons.front());
        }
    }
    [[nodiscard]] bool hasKeyboard(int control) const {
        HWND focus = GetFocus();
        HWND window = GetDlgItem(handle(), control);
        return focus != nullptr && (focus == window || GetParent(focus) == window);
    }

    EditContext& edit_;
    std::span<const CrewManRecord> men_;
    RecordForm<MenChange> form_;
};

struct MenCount {
    std::int32_t men = 5;
};

constexpr auto CountOfMen =
    field_row::number(&MenCount::men, "men", "Men like this one",
                      {.range = {.least = 1, .greatest = static_cast<std::int32_t>(MaxSquadMembers)}});
constexpr auto MenCountRows = std::to_array<FormRow<MenCount>>({{IDC_MEN_COUNT, CountOfMen}});
constexpr FormShape<MenCount> MenCountShape = {.rows = MenCountRows};

class AddMenDialog final : public FormDialog {
public:
    AddMenDialog(MenCount& count, std::size_t room)
        : FormDialog({.dialogTemplate = IDD_ADD_MEN, .caption = "Add Several Men"}, form_), room_(room),
          form_(count, MenCountShape) {}

private:
    void prepare() override { port().setText(IDC_CAPTION_LINE, "(room for " + std::to_string(room_) + ")"); }

    std::size_t room_;
    RecordForm<MenCount> form_;
};

} // namespace

bool askForMan(HWND owner, EditContext& edit, CrewManRecord& man) {
    return ManDialog(edit, man).run(owner);
}

bool editMan(HWND owner, EditContext& edit, CrewManRecord& man) {
    CrewManRecord work = man;
    if (!askForMan(owner, edit, work) || work == man) {
        return false;
    }
    man = std::move(work);
    return true;
}

bool editSeveralMen(HWND owner, EditContext& edit, std::span<const std::size_t> men) {
    std::vector<CrewManRecord> chosen;
    for (const std::size_t man : men) {
        chosen.push_back(edit.record.infantrymen[man]);
    }
    MenChange change;
    if (const std::vector<std::string> types = weaponTypesOf(chosen); types.size() == 1) {
        change.formerArms = std::string_view(types.front());
    }
    const std::vector<CrewManRecord> former = edit.record.infantrymen;
    if (chosen.empty() || !SeveralMenDialog(edit, chosen, change).run(owner)) {
        return false;
    }
    for (const std::size_t man : men) {
        changeMan(edit.record.infantrymen[man], change);
    }
    return edit.record.infantrymen != former;
}

std::size_t askForMenCount(HWND owner, std::size_t room) {
    MenCount count;
    count.men = std::min(count.men, static_cast<std::int32_t>(room));
    return AddMenDialog(count, room).run(owner) ? std::min(static_cast<std::size_t>(count.men), room) : 0;
}

} // namespace varrocade
