// The "Details" dialog of squads on foot and of heavy weapons.

#include "editors/form/list_keys_win32.h"
#include "editors/squad/members.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/squad/squad_form.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/availability_dialog.h"
#include "editors/unit/details_terms_win32.h"
#include "editors/unit/uniform_dialog.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/drawing_objects_win32.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr auto MemberTips = std::to_array<Tip>({
    {IDC_MEMBER_COPY, "Adds each of the chosen men once more"},
    {IDC_MEMBER_SEVERAL, "Adds more men like the chosen one"},
    {IDC_MEMBER_EDIT, "Opens the man or the heavy weapon; changes several chosen men at once"},
    {IDC_MEMBER_HEAVY, "Adds a mortar, machine gun or gun that the men serve"},
});

constexpr auto MemberKeys = std::to_array<ListKey>({
    {VK_INSERT, false, IDC_MEMBER_ADD, "In the list: Insert"},
    {VK_DELETE, false, IDC_MEMBER_DELETE, "In the list: Delete"},
    {VK_UP, true, IDC_MEMBER_UP, "In the list: Alt+Up"},
    {VK_DOWN, true, IDC_MEMBER_DOWN, "In the list: Alt+Down"},
});

class SquadDialog final : public FormDialog {
public:
    explicit SquadDialog(EditContext& edit)
        : FormDialog(detailsTerms(edit, IDD_SQUAD), form_), edit_(edit), form_(edit.record, squadShape()) {
        onButton(IDC_MEMBER_ADD, [this] { addOne(); });
        onButton(IDC_MEMBER_COPY, [this] { copyChosen(); });
        onButton(IDC_MEMBER_SEVERAL, [this] { addSeveral(); });
        onButton(IDC_MEMBER_EDIT, [this] { editChosen(); });
        onButton(IDC_MEMBER_DELETE, [this] { deleteChosen(); });
        onButton(IDC_MEMBER_UP, [this] { moveChosen(true); });
        onButton(IDC_MEMBER_DOWN, [this] { moveChosen(false); });
        onButton(IDC_MEMBER_HEAVY, [this] { addHeavy(); });
        onButton(IDC_UNIFORM_BUTTON, [this] {
            if (editUniform(handle(), edit_)) {
                edit_.changed("Uniform");
                showNotes();
            }
        });
        onButton(IDC_AVAILABILITY, [this] {
            if (editAvailability(handle(), edit_, edit_.drawing)) {
                edit_.changed("Availability");
            }
        });
    }

private:
    void prepare() override {
        bindListKeys(handle(), IDC_MEMBERS, MemberKeys);
        addTips(handle(), MemberTips);
        const std::size_t first = std::min(edit_.firstShown, memberCount(squad()));
        refreshMembers(memberCount(squad()) > 0 ? MemberPlaces{first} : MemberPlaces());
    }
    /// Enter on a member opens it, as a double-click does.
    bool accept() override {
        if (GetFocus() == list() && GetKeyState(VK_RETURN) < 0) {
            editChosen();
            return false;
        }
        return FormDialog::accept();
    }
    bool notice(int control, int notification) override {
        if (control != IDC_MEMBERS) {
            return FormDialog::notice(control, notification);
        }
        if (notification == LBN_SELCHANGE) {
            updateMemberButtons();
        } else if (notification == LBN_DBLCLK) {
            editChosen();
        }
        return true;
    }
    /// The type is what the notes go by, too.
    void follow() override { showNotes(); }

    [[nodiscard]] SquadRecord& squad() const { return edit_.record; }
    [[nodiscard]] HWND list() const { return GetDlgItem(handle(), IDC_MEMBERS); }
    [[nodiscard]] MemberPlaces chosen() const;
    [[nodiscard]] std::optional<std::size_t> lastChosen() const;
    [[nodiscard]] std::vector<std::size_t> chosenMen() const;
    void refreshMembers(const MemberPlaces& places);
    void updateMemberButtons();
    void showNotes();
    bool hasRoomForMen();
    void changedMembers(std::string_view what, const MemberPlaces& places);

    void addOne();
    void copyChosen();
    void addSeveral();
    void editChosen();
    void deleteChosen();
    void moveChosen(bool upwards);
    void addHeavy();
    template <typename Dialog>
    bool openHeavy(Dialog ask);

    EditContext& edit_;
    RecordForm<SquadRecord> form_;
};

MemberPlaces SquadDialog::chosen() const {
    const LRESULT count = SendMessageA(list(), LB_GETSELCOUNT, 0, 0);
    std::vector<int> rows(static_cast<std::size_t>(std::max<LRESULT>(count, 0)));
    SendMessageA(list(), LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
    MemberPlaces places;
    for (const int row : rows) {
        if (row >= 0 && static_cast<std::size_t>(row) < memberCount(squad())) {
            places.push_back(static_cast<std::size_t>(row));
        }
    }
    return places;
}

std::optional<std::size_t> SquadDialog::lastChosen() const {
    const MemberPlaces places = chosen();
    return places.empty() ? std::nullopt : std::optional(places.back());
}

/// By their places among the men.
std::vector<std::size_t> SquadDialog::chosenMen() const {
    std::vector<std::size_t> men;
    for (const std::size_t place : chosen()) {
        if (const auto man = manAt(squad(), place)) {
            men.push_back(*man);
        }
    }
    return men;
}

/// Shows the members anew, these of them chosen.
void SquadDialog::refreshMembers(const MemberPlaces& places) {
    const std::vector<SquadNote> notes = squadNotes(squad(), edit_.catalogue, edit_.imageBases);
    SendMessageA(list(), WM_SETREDRAW, FALSE, 0);
    SendMessageA(list(), LB_RESETCONTENT, 0, 0);
    for (std::size_t place = 0; place < memberCount(squad()); ++place) {
        const bool isNoted = std::any_of(notes.begin(), notes.end(),
                                         [place](const SquadNote& note) { return note.member == place; });
        const std::string line = memberLine(squad(), place) + (isNoted ? "  (!)" : "");
        SendMessageA(list(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }
    for (const std::size_t place : places) {
        SendMessageA(list(), LB_SETSEL, TRUE, static_cast<LPARAM>(place));
    }
    if (!places.empty()) {
        SendMessageA(list(), LB_SETCARETINDEX, places.back(), FALSE);
    }
    measureLines(list());
    SendMessageA(list(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list(), nullptr, TRUE);
    showNotes();
    updateMemberButtons();
}

void SquadDialog::updateMemberButtons() {
    HWND former = GetFocus();
    const MemberPlaces places = chosen();
    const bool isAny = !places.empty();
    const bool isMan = !chosenMen().empty();
    port().setEnabled(IDC_MEMBER_COPY, isMan);
    port().setEnabled(IDC_MEMBER_SEVERAL, isMan);
    port().setEnabled(IDC_MEMBER_EDIT, isAny);
    port().setEnabled(IDC_MEMBER_DELETE, isAny);
    port().setEnabled(IDC_MEMBER_UP, isAny && places.front() > 0);
    port().setEnabled(IDC_MEMBER_DOWN, isAny && places.back() + 1 < memberCount(squad()));
    port().setEnabled(IDC_MEMBER_HEAVY, !squad().heavyWeapon);
    keepKeyboard(handle(), former, IDC_MEMBERS);
}

void SquadDialog::showNotes() {
    SquadRecord shown = squad();
    readPossible(port(), squadShape(), shown);
    const std::string notes = noteLines(squadNotes(shown, edit_.catalogue, edit_.imageBases));
    std::string former(
        static_cast<std::size_t>(GetWindowTextLengthA(GetDlgItem(handle(), IDC_UNIT_NOTES))) + 1, '\0');
    former.resize(static_cast<std::size_t>(
        GetDlgItemTextA(handle(), IDC_UNIT_NOTES, former.data(), static_cast<int>(former.size()))));
    if (former != notes) {
        port().setText(IDC_UNIT_NOTES, notes);
    }
}

bool SquadDialog::hasRoomForMen() {
    if (roomForMen(squad()) > 0) {
        return true;
    }
    showMessage({.text = std::string(TooManyInfantrymenText),
                 .caption = std::string(SquadFullCaption),
                 .icon = MessageIcon::Error});
    return false;
}

void SquadDialog::changedMembers(std::string_view what, const MemberPlaces& places) {
    edit_.changed(what);
    refreshMembers(places);
}

void SquadDialog::addOne() {
    CrewManRecord man;
    if (hasRoomForMen() && askForMan(handle(), edit_, man)) {
        changedMembers("Add man", addMen(squad(), man, 1, lastChosen()));
    }
}

/// Each of the chosen men once more, behind the last of them.
void SquadDialog::copyChosen() {
    if (!hasRoomForMen()) {
        return;
    }
    std::vector<CrewManRecord> copies;
    for (const std::size_t man : chosenMen()) {
        copies.push_back(squad().infantrymen[man]);
    }
    std::optional<std::size_t> behind = lastChosen();
    MemberPlaces added;
    for (const CrewManRecord& copy : copies) {
        const MemberPlaces place = addMen(squad(), copy, 1, behind);
        if (place.empty()) {
            hasRoomForMen();
            break;
        }
        behind = place.front();
        added.push_back(place.front());
    }
    changedMembers("Copy men", added);
}

void SquadDialog::addSeveral() {
    const std::vector<std::size_t> men = chosenMen();
    if (men.empty() || !hasRoomForMen()) {
        return;
    }
    const std::size_t count = askForMenCount(handle(), roomForMen(squad()));
    if (count > 0) {
        const CrewManRecord man = squad().infantrymen[men.back()];
        changedMembers("Add men", addMen(squad(), man, count, placeOfMan(squad(), men.back())));
    }
}

/// `ask` opens a dialog of the heavy weapon; false where it changed nothing.
template <typename Dialog>
bool SquadDialog::openHeavy(Dialog ask) {
    const Text formerType = squad().type;
    const bool isChanged = ask(handle(), edit_);
    if (squad().type != formerType) {
        // It was made to fit the kind there: this form would put the former type back.
        port().setText(IDC_TYPE, squad().type);
    }
    return isChanged;
}

void SquadDialog::editChosen() {
    const MemberPlaces places = chosen();
    const std::vector<std::size_t> men = chosenMen();
    if (men.size() == 1) {
        if (editMan(handle(), edit_, squad().infantrymen[men.front()])) {
            edit_.changed("Man " + std::to_string(placeOfMan(squad(), men.front()) + 1));
        }
    } else if (!men.empty()) {
        if (editSeveralMen(handle(), edit_, men)) {
            edit_.changed("Change men");
        }
    } else if (!places.empty() && openHeavy(editHeavyWeapon)) {
        edit_.changed("Heavy weapon");
    }
    refreshMembers(places);
}

void SquadDialog::deleteChosen() {
    const MemberPlaces places = chosen();
    if (places.empty()) {
        return;
    }
    deleteMembers(squad(), places);
    const std::size_t left = memberCount(squad());
    changedMembers("Delete members",
                   left > 0 ? MemberPlaces{std::min(places.front(), left - 1)} : MemberPlaces());
}

void SquadDialog::moveChosen(bool upwards) {
    MemberPlaces places = chosen();
    if (moveMembers(squad(), places, upwards)) {
        changedMembers("Move members", places);
    }
}

void SquadDialog::addHeavy() {
    const SquadRecord former = squad();
    addHeavyWeapon(squad());
    if (openHeavy(askForHeavyWeapon)) {
        changedMembers("Add heavy weapon", {heavyPlace(squad())});
    } else {
        squad() = former;
        edit_.redraw();
    }
}

} // namespace

bool editSquad(HWND owner, EditContext& edit) {
    return SquadDialog(edit).run(owner);
}

} // namespace varrocade
