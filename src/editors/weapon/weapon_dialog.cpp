// The "Weapon Data" dialog.

#include "editors/weapon/weapon_dialog.h"

#include "analysis/penetration.h"
#include "analysis/usual_spans.h"
#include "data/unit/enumerations.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/form/list_keys_win32.h"
#include "editors/form/table_win32.h"
#include "editors/penetration/penetration_curves_win32.h"
#include "editors/penetration/penetration_form.h"
#include "editors/unit/play_sound_win32.h"
#include "editors/unit/sound_choices.h"
#include "editors/unit/weapon_choices.h"
#include "editors/weapon/check_list_win32.h"
#include "editors/weapon/weapon_figures.h"
#include "editors/weapon/weapon_form.h"
#include "editors/weapon/weapon_words.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/painter_win32.h"
#include "weapons/weapon_kinds.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr std::string_view DialogCaption = "Weapon Data";
/// Of the boxes that refuse: programs that drive this one tell them from the dialog by it.
constexpr std::string_view WeaponBoxCaption = "Weapon";
constexpr std::string_view NoComparison = "(no other weapon)";
constexpr UINT_PTR WeaponUsersTimer = 1;
constexpr UINT UsersPollMilliseconds = 200;
/// More curves of the other weapon could not be told apart.
constexpr std::size_t MostComparedCurves = 6;
/// Small arms are looked at closely.
constexpr int GreatestShapeScale = 400;

constexpr auto SoundControls =
    std::to_array<int>({IDC_WD_SHOOT_SOUND, IDC_WD_RELOAD_SOUND, IDC_WD_EJECT_SOUND, IDC_WD_EXPLODE_SOUND});

constexpr auto FigureColumns =
    std::to_array<TableColumn>({{"", 92}, {"This weapon", 96, true}, {"Other weapon", 96, true}});

/// A text with commas and the check list that changes it.
struct CheckedText {
    int list;
    int text;
    std::vector<std::string> known;
    std::optional<std::string> shown = {}; ///< the text that the list shows
};

/// While it lives, what controls report is no change of the user's.
class Filling {
public:
    explicit Filling(bool& flag) : flag_(flag), former_(flag) { flag = true; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    ~Filling() { flag_ = former_; }

private:
    bool& flag_;
    bool former_;
};

class WeaponDataDialog final : public ListDialog {
public:
    /// `work` is the copy that the dialog works on.
    WeaponDataDialog(WeaponEdit& edit, WeaponRecord& work)
        : ListDialog({.dialogTemplate = IDD_WEAPON_DATA,
                      .caption = WeaponBoxCaption,
                      .fullText = "There are already 255 ammunition types, the most that the game counts",
                      .fullCaption = WeaponBoxCaption,
                      .first = edit.firstAmmo,
                      .imageBases = edit.bases,
                      .focus = edit.focus},
                     ammo_),
          edit_(edit), work_(work), form_(work, weaponDataShape()), ammo_(work) {
        onButton(IDC_WD_FIX_PREFIX, [this] {
            port().setText(IDC_WD_NAME, nameForType(port().text(IDC_WD_NAME), shown().type));
        });
        onButton(IDC_WD_ALL_FLAVOURS, [this] { followWeapon(); });
        onButton(IDC_WD_OPEN_UNIT, [this] { openUser(); });
        for (std::size_t i = 0; i < SoundControls.size(); ++i) {
            onButton(IDC_WD_PLAY + static_cast<int>(i), [this, i] { play(i); });
        }
    }

private:
    void prepare() override;
    void follow() override;
    int firstFocus() override {
        const int control = form_.controlOf(edit_.focus);
        return control != 0 ? control : ListDialog::firstFocus();
    }
    bool accept() override;
    bool notice(int control, int notification) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;
    void paint(const DRAWITEMSTRUCT& item) override;
    std::string unknownText() override {
        std::string texts = form_.unknown(port());
        const std::string ofAmmo = isShown() ? ListDialog::unknownText() : std::string();
        texts += (texts.empty() || ofAmmo.empty() ? "" : "; ") + ofAmmo;
        return texts;
    }

    /// The weapon as the controls show it, as far as that can be taken.
    [[nodiscard]] WeaponRecord shown();
    [[nodiscard]] std::size_t chosenAmmo() const { return isShown() ? shownIndex() : work_.ammoTypes.size(); }
    void followWeapon();
    void followName(const WeaponRecord& weapon);
    void offerFlavours(WeaponType type);
    void followSounds();
    void followChecks();
    void followChart(const WeaponRecord& weapon);
    void followFigures(const WeaponRecord& weapon);
    void play(std::size_t sound);
    void compare();
    void showUsers();
    void openUser();
    static LRESULT CALLBACK chartProcedure(HWND curves, UINT message, WPARAM parameter, LPARAM detail,
                                           UINT_PTR, DWORD_PTR data);

    WeaponEdit& edit_;
    WeaponRecord& work_;
    RecordForm<WeaponRecord> form_;
    AmmoTypeModel ammo_;
    std::array<CheckedText, 2> checks_ = {{{IDC_WD_PERIOD_LIST, IDC_WD_PERIOD, knownPeriods()},
                                           {IDC_WD_COUNTRY_LIST, IDC_WD_COUNTRIES, knownCountries()}}};
    std::vector<std::string> offeredFlavours_;
    std::vector<std::string> figures_; ///< the cells of the table
    const WeaponRecord* other_ = nullptr;
    PenetrationChart chart_;
    bool isFilling_ = false;
};

void WeaponDataDialog::prepare() {
    const Filling filling(isFilling_);
    form_.offer(port(), edit_.bases);
    const std::vector<std::string> sounds = soundChoices(edit_.bases);
    for (const int control : SoundControls) {
        port().setChoices(control, sounds);
    }
    std::vector<std::string> weapons = penetrationWeapons(edit_.catalogue);
    weapons.insert(weapons.begin(), std::string(NoComparison));
    port().setChoices(IDC_WD_COMPARE, weapons);
    for (const CheckedText& check : checks_) {
        prepareCheckList(GetDlgItem(handle(), check.list));
    }
    prepareTable(GetDlgItem(handle(), IDC_WD_FIGURES), FigureColumns);
    form_.show(port());
    SetWindowSubclass(GetDlgItem(handle(), IDC_WD_CURVES), chartProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(this));
    showUsers();
}

WeaponRecord WeaponDataDialog::shown() {
    WeaponRecord weapon = work_;
    readPossible(port(), weaponDataShape(), weapon);
    if (isShown()) {
        readPossible(port(), ammoTypeShape().form, weapon.ammoTypes[shownIndex()]);
    }
    return weapon;
}

bool WeaponDataDialog::accept() {
    if (const auto error = form_.read(port())) {
        refuse(*error);
        return false;
    }
    return takeShown();
}

bool WeaponDataDialog::notice(int control, int notification) {
    if (isFilling_) {
        return true;
    }
    if (control == IDC_WD_COMPARE) {
        if (isUserChange(notification)) {
            if (notification == CBN_SELCHANGE) {
                completeChoice(handle(), control);
            }
            compare();
        }
        return false;
    }
    if (control == IDC_WD_USERS) {
        port().setEnabled(IDC_WD_OPEN_UNIT,
                          SendDlgItemMessageA(handle(), IDC_WD_USERS, LB_GETCURSEL, 0, 0) >= 0);
        if (notification == LBN_DBLCLK) {
            openUser();
        }
        return true;
    }
    const auto rows = weaponDataShape().rows;
    const bool isOfWeapon =
        std::any_of(rows.begin(), rows.end(), [control](const auto& row) { return row.control == control; });
    if (!isOfWeapon) {
        return ListDialog::notice(control, notification);
    }
    if (!isUserChange(notification)) {
        return false;
    }
    if (notification == CBN_SELCHANGE) {
        completeChoice(handle(), control);
    }
    form_.mark(port(), control);
    followWeapon();
    return true;
}

/// Follows a change of the weapon itself, which the ammunition's form depends on too.
void WeaponDataDialog::followWeapon() {
    HWND former = GetFocus();
    form_.update(port());
    if (isShown()) {
        ammo_.update(shownIndex(), port());
    }
    keepKeyboard(handle(), former, IDC_ENTRY_LIST);
    follow();
    showUnknown(handle(), unknownText());
}

void WeaponDataDialog::follow() {
    const Filling filling(isFilling_);
    const WeaponRecord weapon = shown();
    // What is added to the list goes by the type.
    work_.type = weapon.type;
    followName(weapon);
    offerFlavours(weapon.type);
    followSounds();
    followChecks();
    port().setText(IDC_WD_NOT_CARRIED, weaponNotCarried(port(), weapon));
    port().setText(IDC_WD_AMMO_NOT_CARRIED,
                   isShown() ? ammoNotCarried(port(), weapon.ammoTypes[shownIndex()]) : std::string());
    std::string notes;
    for (const std::string& line : unusualFigures(weapon, chosenAmmo(), edit_.catalogue.entries())) {
        notes += (notes.empty() ? "" : "\r\n") + line;
    }
    port().setText(IDC_WD_NOTES, notes);
    followFigures(weapon);
    followChart(weapon);
    InvalidateRect(GetDlgItem(handle(), IDC_WD_SHAPES), nullptr, FALSE);
}

void WeaponDataDialog::followName(const WeaponRecord& weapon) {
    const std::string note = namePrefixNote(port().text(IDC_WD_NAME), weapon.type);
    port().setText(IDC_WD_NAME_NOTE, note);
    HWND former = GetFocus();
    port().setEnabled(IDC_WD_FIX_PREFIX, !note.empty());
    keepKeyboard(handle(), former, IDC_WD_NAME);
}

/// The flavour that is shown is among those that are offered.
void WeaponDataDialog::offerFlavours(WeaponType type) {
    if (GetFocus() != nullptr && GetParent(GetFocus()) == GetDlgItem(handle(), IDC_WD_FLAVOUR)) {
        return;
    }
    std::vector<std::string> flavours = offeredFlavours(type, port().isChecked(IDC_WD_ALL_FLAVOURS));
    const std::string present = port().text(IDC_WD_FLAVOUR);
    AmmoFlavour flavour{};
    if (std::find(flavours.begin(), flavours.end(), present) == flavours.end() &&
        !Codec<AmmoFlavour>::take(present, {}, flavour)) {
        flavours.push_back(present);
    }
    if (flavours != offeredFlavours_) {
        offeredFlavours_ = std::move(flavours);
        port().setChoices(IDC_WD_FLAVOUR, offeredFlavours_);
    }
}

void WeaponDataDialog::followSounds() {
    for (std::size_t i = 0; i < SoundControls.size(); ++i) {
        const std::string name = port().text(SoundControls[i]);
        const bool isThere = !soundPath(edit_.bases, name).empty();
        const auto place = static_cast<int>(i);
        port().setText(IDC_WD_SOUND_NOTE + place, name.empty() || isThere ? "" : "missing");
        port().setEnabled(IDC_WD_PLAY + place, isThere);
    }
}

void WeaponDataDialog::followChecks() {
    for (CheckedText& check : checks_) {
        std::string text = port().text(check.text);
        if (text != check.shown) {
            showCheckList(GetDlgItem(handle(), check.list), checkListEntries(check.known, text),
                          listedEntries(text));
            check.shown = std::move(text);
        }
    }
}

void WeaponDataDialog::followChart(const WeaponRecord& weapon) {
    chart_.curves.clear();
    chart_.names.clear();
    chart_.chosen = 0;
    const auto add = [this](const WeaponRecord& whose, const AmmoTypeRecord& ammo, const std::string& name) {
        chart_.curves.push_back(penetrationCurve(projectileOf(whose, ammo), defaultDrag(ammo.flavour)));
        chart_.names.push_back(name);
    };
    if (isShown()) {
        WeaponRecord own;
        own.ammoTypes = {weapon.ammoTypes[shownIndex()]};
        add(weapon, own.ammoTypes.front(), shellTypes(own).front());
    }
    if (other_ != nullptr) {
        const std::vector<std::string> names = shellTypes(*other_);
        for (std::size_t i = 0; i < std::min(names.size(), MostComparedCurves); ++i) {
            add(*other_, other_->ammoTypes[i], "Other: " + names[i]);
        }
    }
    InvalidateRect(GetDlgItem(handle(), IDC_WD_CURVES), nullptr, FALSE);
}

void WeaponDataDialog::followFigures(const WeaponRecord& weapon) {
    std::vector<std::string> cells;
    for (FigureRow& row : weaponFigureRows(weapon, chosenAmmo(), other_)) {
        cells.push_back(std::move(row.label));
        cells.push_back(std::move(row.own));
        cells.push_back(std::move(row.other));
    }
    if (cells == figures_) {
        return;
    }
    figures_ = cells;
    HWND table = GetDlgItem(handle(), IDC_WD_FIGURES);
    SendMessageA(table, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(table);
    for (std::size_t i = 0; i < cells.size(); i += FigureColumns.size()) {
        addTableRow(table, std::span(cells).subspan(i, FigureColumns.size()));
    }
    SendMessageA(table, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(table, nullptr, TRUE);
}

void WeaponDataDialog::play(std::size_t sound) {
    const std::string path = soundPath(edit_.bases, port().text(SoundControls[sound]));
    port().setText(IDC_WD_SOUND_NOTE + static_cast<int>(sound), path.empty() ? "missing" : playSound(path));
}

/// A text that names no weapon, half typed or "no other weapon", ends the comparison.
void WeaponDataDialog::compare() {
    // The first entry of the list stands for none.
    const std::size_t chosen = port().chosen(IDC_WD_COMPARE).value_or(0);
    other_ = chosen > 0 ? &edit_.catalogue.entries()[chosen - 1].weapon : nullptr;
    follow();
}

void WeaponDataDialog::showUsers() {
    const auto users = edit_.users();
    port().setEnabled(IDC_WD_OPEN_UNIT, false);
    if (!users) {
        port().setText(IDC_WD_USERS_HEAD, "Used by: still looking");
        SetTimer(handle(), WeaponUsersTimer, UsersPollMilliseconds, nullptr);
        return;
    }
    KillTimer(handle(), WeaponUsersTimer);
    port().setText(IDC_WD_USERS_HEAD, users->empty() ? "Used by no unit"
                                      : users->size() == 1
                                          ? "Used by 1 unit:"
                                          : "Used by " + std::to_string(users->size()) + " units:");
    for (const std::string& unit : *users) {
        SendDlgItemMessageA(handle(), IDC_WD_USERS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit.c_str()));
    }
}

/// Another record takes the weapon's place: what was changed here is saved or dropped first.
void WeaponDataDialog::openUser() {
    const auto users = edit_.users();
    const auto chosen =
        static_cast<std::size_t>(SendDlgItemMessageA(handle(), IDC_WD_USERS, LB_GETCURSEL, 0, 0));
    if (!users || chosen >= users->size()) {
        return;
    }
    const bool isChanged = shown() != edit_.record;
    const Answer answer = isChanged ? showMessage({.text = "Save your changes to the weapon?",
                                                   .caption = "Save changes",
                                                   .buttons = MessageButtons::YesNoCancel,
                                                   .icon = MessageIcon::Question})
                                    : Answer::No;
    if (answer == Answer::Cancel || (answer == Answer::Yes && !accept())) {
        return;
    }
    edit_.unitToOpen = (*users)[chosen];
    EndDialog(handle(), answer == Answer::Yes ? 1 : 0);
}

bool WeaponDataDialog::receive(UINT message, WPARAM parameter, LPARAM detail) {
    if (message == WM_TIMER && parameter == WeaponUsersTimer) {
        showUsers();
        return true;
    }
    if (message != WM_NOTIFY || isFilling_) {
        return false;
    }
    const auto& notification = *reinterpret_cast<const NMHDR*>(detail);
    for (const CheckedText& check : checks_) {
        const auto change = notification.idFrom == static_cast<UINT_PTR>(check.list)
                                ? checkChangeOf(notification)
                                : std::nullopt;
        if (change) {
            const std::string text = port().text(check.text);
            const std::vector<std::string> entries = checkListEntries(check.known, text);
            if (change->index < entries.size()) {
                port().setText(check.text, withEntry(text, entries[change->index], change->isChecked));
            }
        }
    }
    return false;
}

void WeaponDataDialog::paint(const DRAWITEMSTRUCT& item) {
    if (item.CtlID == IDC_WD_CURVES) {
        paintChart(item, chart_, edit_.drawing);
        return;
    }
    WeaponRecord weapon = shown();
    if (isShown()) {
        weapon.ammoTypes = {weapon.ammoTypes[shownIndex()]};
    }
    const DrawList list = drawWeapon(weapon, {.bases = edit_.bases}, edit_.pictures);
    const RECT& area = item.rcItem;
    const int margin = edit_.drawing.scaled(DrawingMargin) / 2;
    const Fit fit = fitInto(list, area.right, area.bottom - edit_.drawing.scaled(ScaleHeight), margin,
                            GreatestShapeScale);
    const MemoryBitmap memory(item.hDC, area.right, area.bottom);
    paintDrawing(memory.device(), area, list, {.fit = fit}, edit_.drawing, edit_.pictures);
    BitBlt(item.hDC, 0, 0, area.right, area.bottom, memory.device(), 0, 0, SRCCOPY);
}

/// The mouse reads the curves.
LRESULT CALLBACK WeaponDataDialog::chartProcedure(HWND curves, UINT message, WPARAM parameter, LPARAM detail,
                                                  UINT_PTR, DWORD_PTR data) {
    auto& dialog = *reinterpret_cast<WeaponDataDialog*>(data);
    pointAtChart(curves, message, detail, dialog.chart_, dialog.edit_.drawing);
    return DefSubclassProc(curves, message, parameter, detail);
}

} // namespace

bool editWeaponData(HWND owner, WeaponEdit& edit) {
    WeaponRecord work = edit.record;
    const bool isTaken = WeaponDataDialog(edit, work).run(owner);
    stopSound();
    if (!isTaken || work == edit.record) {
        return false;
    }
    edit.record = std::move(work);
    edit.changed(DialogCaption);
    return true;
}

} // namespace varrocade
