#include "app/commands/names/new_squad_dialog.h"

#include "app/windows/application.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/names/file_names.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/unit/weapon_choices.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace varrocade {

namespace {

/// The name gets the keyboard once the system has given it to the first control.
constexpr UINT FocusName = WM_APP + 1;

struct NewSquadChoice {
    Holder holder = Holder::VehicleFile; ///< stands for the category
    UnitStart start;
};

struct OfStart {
    static auto& in(auto& choice) { return choice.start; }
};

constexpr auto StartMen =
    field_row::number(&UnitStart::men, "man", "Men",
                      {.range = {.least = 0, .greatest = static_cast<std::int32_t>(MaxSquadMembers)}});
constexpr auto StartArms = field_row::reference(FieldKind::Weapon, &UnitStart::arms, "type", "Each carries");
constexpr auto StartKind = field_row::reference(FieldKind::Choice, &UnitStart::kind, "kind", "Kind");
constexpr auto StartPicture =
    field_row::image(&UnitStart::picture, "image", "Picture", image_sources::UnitPicture);
constexpr auto StartWeapon = field_row::reference(FieldKind::Weapon, &UnitStart::weapon, "type", "Weapon");

constexpr auto StartRows = std::to_array<FormRow<NewSquadChoice>>({
    {IDC_START_MEN, OfStart(), StartMen, {.kinds = Holders::of(Holder::SquadFile, Holder::AtGun)}},
    {IDC_START_ARMS, OfStart(), StartArms, {.kinds = Holders::of(Holder::SquadFile, Holder::AtGun)}},
    {IDC_START_KIND, OfStart(), StartKind, {.kinds = Holders::of(Holder::AtGun)}},
    {IDC_START_PICTURE, OfStart(), StartPicture, {.kinds = Holders::of(Holder::AtGun, Holder::AircraftFile)}},
    {IDC_START_WEAPON, OfStart(), StartWeapon, {.kinds = Holders::of(Holder::AtGun, Holder::AircraftFile)}},
});

constexpr FormShape<NewSquadChoice> StartShape = {
    .rows = StartRows, .holder = [](const NewSquadChoice& choice) { return choice.holder; }};

Holder holderOfCategory(Category category) {
    switch (category) {
    case Category::AtGuns:
        return Holder::AtGun;
    case Category::Infantry:
        return Holder::SquadFile;
    case Category::Aircraft:
        return Holder::AircraftFile;
    default:
        return Holder::VehicleFile;
    }
}

class NewSquadDialog final : public FormDialog {
public:
    NewSquadDialog(const std::vector<std::string>& bases, NewSquadChoice& choice)
        : FormDialog({.dialogTemplate = IDD_NEW_SQUAD, .caption = "Error", .imageBases = bases}, form_),
          choice_(choice), form_(choice, StartShape) {
        onButton(IDC_START_USUAL, [this] { suggest(suggested_.kind); });
    }

    [[nodiscard]] const std::string& name() const { return name_; }

private:
    void prepare() override;
    void follow() override;
    bool accept() override;
    bool notice(int control, int notification) override;
    bool receive(UINT message, WPARAM, LPARAM) override {
        if (message != FocusName) {
            return false;
        }
        port().focus(IDC_NEW_NAME);
        const std::size_t end = port().text(IDC_NEW_NAME).size();
        SendDlgItemMessageA(handle(), IDC_NEW_NAME, EM_SETSEL, end, static_cast<LPARAM>(end));
        return true;
    }

    void chooseNationality();
    void offerPictures();
    void offerWeapons();
    void suggest(HeavyWeaponKind kind);
    void replace(int control, Text& former, const Text& next);
    void closeGaps();

    NewSquadChoice& choice_;
    UnitStart suggested_; ///< what the controls show that the user did not change
    std::vector<std::string> pictures_;
    std::string nationality_; ///< "NATIONALITY_..."
    std::string name_;
    RecordForm<NewSquadChoice> form_;
};

void NewSquadDialog::prepare() {
    const auto nationalities = nationalityNames();
    std::vector<std::string> words;
    for (const std::string_view nationality : nationalities) {
        words.push_back(displayName(nationality, NationalityPrefix));
    }
    port().setChoices(IDC_NEW_NATIONALITY, words);
    const SquadRecord* open = openUnit(theWorkspace());
    const auto own = open == nullptr
                         ? nationalities.end()
                         : std::find(nationalities.begin(), nationalities.end(), open->nationality.view());
    const auto first = own == nationalities.end() ? 0 : own - nationalities.begin();
    SendDlgItemMessageA(handle(), IDC_NEW_NATIONALITY, CB_SETCURSEL, static_cast<WPARAM>(first), 0);
    constexpr std::size_t longestName = 255;
    port().setLimit(IDC_NEW_NAME, longestName);
    if (choice_.holder == Holder::AtGun) {
        port().setText(IDC_START_LABELS, "Cre&w:");
        port().setText(IDC_START_LABELS + 3, "&Gun image:");
        port().setText(IDC_START_LABELS + 4, "W&eapon:");
    }
    offerPictures();
    chooseNationality();
    choice_.start = suggested_;
    closeGaps();
    PostMessageA(handle(), FocusName, 0, 0);
}

/// A gun's picture is one of those that are called so; an aircraft's is none that belongs to something else.
void NewSquadDialog::offerPictures() {
    pictures_ = imageChoices(imageBases(theWorkspace()), StartPicture.images);
    const bool isGun = choice_.holder == Holder::AtGun;
    std::erase_if(pictures_, [isGun](const std::string& name) {
        const bool isOfGun = name.ends_with(" gun");
        return isGun ? !isOfGun
                     : isOfGun || name.ends_with(" base") || name.ends_with(" rotor") ||
                           !name.starts_with("Image-");
    });
    port().setChoices(IDC_START_PICTURE, pictures_);
}

void NewSquadDialog::offerWeapons() {
    const Workspace& workspace = theWorkspace();
    SquadRecord unit;
    unit.nationality = std::string_view(nationality_);
    port().setChoices(IDC_START_ARMS, weaponChoices(workspace.catalogue, unit, WeaponBearer::Man, false));
    port().setChoices(IDC_START_WEAPON,
                      startWeapons(workspace.category, nationality_, suggested_.kind, workspace.catalogue));
}

void NewSquadDialog::replace(int control, Text& former, const Text& next) {
    if (port().text(control) == former.view()) {
        port().setText(control, next);
    }
    former = next;
}

/// Suggests what fits the nationality and the kind, where that is asked for, but leaves what the user chose.
void NewSquadDialog::suggest(HeavyWeaponKind kind) {
    const Workspace& workspace = theWorkspace();
    const UnitStart next =
        port().isChecked(IDC_START_USUAL)
            ? suggestedStart(workspace.category, nationality_, kind, workspace.catalogue, pictures_)
            : UnitStart();
    suggested_.kind = kind;
    offerWeapons();
    if (port().text(IDC_START_MEN) == std::to_string(suggested_.men)) {
        port().setText(IDC_START_MEN, std::to_string(next.men));
    }
    suggested_.men = next.men;
    replace(IDC_START_ARMS, suggested_.arms, next.arms);
    replace(IDC_START_WEAPON, suggested_.weapon, next.weapon);
    replace(IDC_START_PICTURE, suggested_.picture, next.picture);
}

/// A gun's weapon and picture go together while only one of them was chosen.
void NewSquadDialog::follow() {
    NewSquadChoice shown = choice_;
    readPossible(port(), StartShape, shown);
    const UnitStart& start = shown.start;
    if (start.kind != suggested_.kind) {
        suggest(start.kind);
    } else if (choice_.holder != Holder::AtGun) {
        return;
    } else if (start.weapon != suggested_.weapon && start.picture == suggested_.picture) {
        const std::string picture = pictureOfWeapon(start.weapon, pictures_);
        replace(IDC_START_PICTURE, suggested_.picture, std::string_view(picture));
    } else if (start.picture != suggested_.picture && start.weapon == suggested_.weapon) {
        const std::string picture = start.picture.str();
        for (const std::string& weapon :
             startWeapons(theWorkspace().category, nationality_, start.kind, theWorkspace().catalogue)) {
            if (!pictureOfWeapon(weapon, std::span(&picture, 1)).empty()) {
                replace(IDC_START_WEAPON, suggested_.weapon, std::string_view(weapon));
                return;
            }
        }
    }
}

/// The rows of other categories go, and what is below them moves up.
void NewSquadDialog::closeGaps() {
    const auto topOf = [this](int control) {
        RECT place{};
        GetWindowRect(GetDlgItem(handle(), control), &place);
        MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    };
    const auto lift = [&](int control, LONG by) {
        const RECT place = topOf(control);
        SetWindowPos(GetDlgItem(handle(), control), nullptr, place.left, place.top - by, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const LONG pitch = topOf(IDC_START_ARMS).top - topOf(IDC_START_MEN).top;
    LONG gap = 0;
    for (std::size_t i = 0; i < StartRows.size(); ++i) {
        const int label = IDC_START_LABELS + static_cast<int>(i);
        if (StartRows[i].terms.kinds.has(choice_.holder)) {
            lift(label, gap);
            lift(StartRows[i].control, gap);
        } else {
            ShowWindow(GetDlgItem(handle(), label), SW_HIDE);
            ShowWindow(GetDlgItem(handle(), StartRows[i].control), SW_HIDE);
            gap += pitch;
        }
    }
    if (choice_.holder == Holder::VehicleFile) {
        ShowWindow(GetDlgItem(handle(), IDC_START_USUAL), SW_HIDE);
    }
    lift(IDC_START_USUAL, gap);
    lift(IDOK, gap);
    lift(IDCANCEL, gap);
    RECT window{};
    GetWindowRect(handle(), &window);
    SetWindowPos(handle(), nullptr, 0, 0, window.right - window.left, window.bottom - window.top - gap,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// The name begins with what is chosen.
void NewSquadDialog::chooseNationality() {
    const LRESULT chosen = SendDlgItemMessageA(handle(), IDC_NEW_NATIONALITY, CB_GETCURSEL, 0, 0);
    const auto names = nationalityNames();
    const std::string former = nationality_;
    nationality_ = chosen >= 0 && static_cast<std::size_t>(chosen) < names.size()
                       ? std::string(names[static_cast<std::size_t>(chosen)])
                       : std::string();
    port().setText(IDC_NEW_NAME, nameForNationality(port().text(IDC_NEW_NAME), former, nationality_));
    suggest(suggested_.kind);
}

bool NewSquadDialog::notice(int control, int notification) {
    if (control == IDC_NEW_NATIONALITY) {
        if (notification == CBN_SELCHANGE) {
            chooseNationality();
        }
        return true;
    }
    return control == IDC_NEW_NAME || FormDialog::notice(control, notification);
}

bool NewSquadDialog::accept() {
    name_ = port().text(IDC_NEW_NAME);
    if (!take()) {
        return false;
    }
    const NameCheck refusal = createUnit(theWorkspace(), name_, nationality_, choice_.start);
    if (!refusal) {
        return true;
    }
    if (!refusal->empty()) {
        showMessage({.text = *refusal, .caption = caption(), .icon = MessageIcon::Information});
    }
    port().focus(IDC_NEW_NAME);
    return false;
}

} // namespace

std::string askForNewSquad() {
    NewSquadChoice choice{.holder = holderOfCategory(theWorkspace().category), .start = {}};
    const std::vector<std::string> bases = imageBases(theWorkspace());
    NewSquadDialog dialog(bases, choice);
    return dialog.run(application().window) ? dialog.name() : std::string();
}

} // namespace varrocade
