// The nationalities of a mod, and the lists that each of them has.

#include "editors/mod/mod_list_dialogs.h"

#include "data/format/texts.h"
#include "data/format/words.h"
#include "data/unit/older_words.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/mod/mod_forms.h"
#include "editors/mod/mod_pictures_win32.h"
#include "editors/mod/mod_units.h"
#include "editors/mod/mod_units_dialog.h"
#include "mod/equipment_lists.h"
#include "mod/mod_fields.h"
#include "mod/starting_points.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/drawing_objects_win32.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

namespace varrocade {

namespace {

/// A drop-down list that names a picture, the button that has it chosen, and where its pictures lie.
struct PictureField {
    int control;
    int button;
    std::string_view label;
    std::span<const ImageSource> sources;
};

constexpr std::array<PictureField, 2> FlagFields = {
    {{IDC_MOD_FLAG, IDC_MOD_FLAG_CHOOSE, "Flag", mod_field::StaticFlagImages},
     {IDC_MOD_ANIMATED_FLAG, IDC_MOD_ANIMATED_CHOOSE, "Animated flag", mod_field::AnimatedFlagImages}}};
constexpr std::array<PictureField, 3> UniformFields = {
    {{IDC_MOD_PROFILE, IDC_MOD_PROFILE_CHOOSE, "Profile", mod_field::GameImages},
     {IDC_MOD_GAME_IMAGE, IDC_MOD_GAME_CHOOSE, "Game", mod_field::GameImages},
     {IDC_MOD_RANKS_IMAGE, IDC_MOD_RANKS_CHOOSE, "Ranks", mod_field::RanksImages}}};
constexpr std::array<PictureField, 1> RankFields = {
    {{IDC_MOD_RANKS_IMAGE, IDC_MOD_RANKS_CHOOSE, "Image", mod_field::RanksImages}}};

/// A list whose entries name pictures: they are shown, and chosen by their looks.
class PicturedListDialog : public ListDialog {
public:
    PicturedListDialog(const ModEdit& edit, const ListDialogTerms& terms, ListModel& model,
                       std::span<const PictureField> fields)
        : ListDialog(terms, model), edit_(edit), fields_(fields) {
        for (const PictureField& field : fields) {
            onButton(field.button, [this, &field] { choose(field); });
        }
    }

protected:
    [[nodiscard]] const ModEdit& edit() const { return edit_; }

    /// The name of the picture that stands for an empty field, or empty.
    virtual std::string usualName(const PictureField&) { return {}; }

    void follow() override {
        for (const PictureField& field : fields_) {
            port().setEnabled(field.button, isShown());
        }
        InvalidateRect(GetDlgItem(handle(), IDC_MOD_PICTURE), nullptr, FALSE);
    }

    void paint(const DRAWITEMSTRUCT& item) override {
        std::vector<ShownPicture> pictures;
        for (const PictureField& field : fields_) {
            const std::string given = isShown() ? port().text(field.control) : std::string();
            const std::string name = given.empty() && isShown() ? usualName(field) : given;
            pictures.push_back(
                {std::string(field.label), picturePath(edit_, field.sources, name), !given.empty()});
        }
        paintPictures(item, edit_, pictures);
    }

private:
    void choose(const PictureField& field) {
        if (!isShown()) {
            return;
        }
        const auto name = choosePicture(handle(), edit_, field.sources, port().text(field.control));
        if (name) {
            settle();
            port().setText(field.control, *name);
            notice(field.control, CBN_EDITCHANGE);
            settle();
        }
    }

    const ModEdit& edit_;
    std::span<const PictureField> fields_;
};

/// Runs the dialog of a list on a copy of its entries, which OK takes over.
template <typename Entry, typename Run>
bool onCopy(std::vector<Entry>& entries, const ListShape<Entry>& shape, Run run) {
    std::vector<Entry> copy = entries;
    VectorListModel<Entry> model(copy, shape);
    if (!run(model)) {
        return false;
    }
    entries = std::move(copy);
    return true;
}

class SurnamesDialog final : public ListDialog {
public:
    SurnamesDialog(std::vector<ModSurname>& surnames, std::string title)
        : ListDialog({.dialogTemplate = IDD_MOD_SURNAMES, .caption = "Surnames", .title = std::move(title)},
                     model_),
          surnames_(surnames),
          model_(surnames, surnameShape(), {.next = nullptr, .warn = [this](const ModSurname& surname) {
                                                return counts_[loweredText(surname.name)] > 1 ? "twice" : "";
                                            }}) {
        count();
        onButton(IDC_MOD_PASTE, [this] { paste(); });
        onButton(IDC_MOD_SORT, [this] { arrange(sortSurnames); });
        onButton(IDC_MOD_SORT_NAMES, [this] { arrange(sortSurnamesByName); });
        onButton(IDC_MOD_DOUBLES, [this] { arrange(dropDoubles); });
    }

private:
    void follow() override {
        const auto before = counts_;
        count();
        const auto doubles =
            std::count_if(counts_.begin(), counts_.end(), [](const auto& name) { return name.second > 1; });
        port().setText(
            IDC_MOD_SUMMARY,
            counted(surnames_.size(), "surname") +
                (doubles > 0 ? ", " + std::to_string(doubles) + " more than once, marked (!)" : ""));
        port().setEnabled(IDC_MOD_DOUBLES, doubles > 0);
        if (before != counts_) {
            PostMessageA(handle(), CountsChanged, 0, 0);
        }
    }
    /// Entries that became doubles of one another, or are no longer, have other lines.
    bool receive(UINT message, WPARAM, LPARAM) override {
        if (message == CountsChanged) {
            showLines();
            return true;
        }
        return false;
    }
    void arrange(void (*how)(std::vector<ModSurname>&)) {
        if (takeShown()) {
            settle();
            how(surnames_);
            model_.resized();
            count();
            refresh(surnames_.empty() ? -1 : 0);
        }
    }
    void count() {
        counts_.clear();
        for (const ModSurname& surname : surnames_) {
            ++counts_[loweredText(surname.name)];
        }
    }
    void paste() {
        if (!takeShown()) {
            return;
        }
        std::vector<std::string> leftOut;
        const std::vector<ModSurname> pasted = surnamesOfText(clipboardText(handle()), &leftOut);
        if (!pasted.empty()) {
            settle();
            for (const ModSurname& surname : pasted) {
                model_.insert(surname);
            }
            count();
            refresh(static_cast<int>(surnames_.size()) - 1);
        }
        tellPasted(pasted.empty(), leftOut);
    }
    static void tellPasted(bool isNothing, const std::vector<std::string>& leftOut) {
        constexpr std::size_t mostTold = 10;
        std::string text = isNothing ? "There are no surnames on the clipboard, one a line.\n\n" : "";
        if (!leftOut.empty()) {
            text += counted(leftOut.size(), "line") +
                    " left out. A surname cannot begin with \"<\", nor hold \"//\" or \"</\":\n";
            for (std::size_t i = 0; i < std::min(leftOut.size(), mostTold); ++i) {
                text += "\n" + leftOut[i];
            }
        }
        if (!text.empty()) {
            showMessage({.text = text, .caption = "Surnames", .icon = MessageIcon::Information});
        }
    }

    static constexpr UINT CountsChanged = WM_APP + 1;

    std::vector<ModSurname>& surnames_;
    std::map<std::string, int> counts_; ///< by name in lower case
    VectorListModel<ModSurname> model_;
};

class EquipmentDialog final : public ListDialog {
public:
    EquipmentDialog(const ModEdit& edit, const std::vector<EquipmentSource>& sources,
                    const ModNationality& nation, std::string title, std::vector<ModEquipment>& lists)
        : ListDialog(
              {.dialogTemplate = IDD_MOD_EQUIPMENT, .caption = "Equipment lists", .title = std::move(title)},
              model_),
          edit_(edit), lists_(lists), sources_(sources),
          model_(lists, equipmentShape(), {.next = nullptr, .warn = [this](const ModEquipment& list) {
                                               return hasMissing(list) ? "missing" : "";
                                           }}) {
        onButton(IDC_MOD_UNITS, [this, &nation] {
            if (!isShown() || !takeShown()) {
                return;
            }
            ModEquipment& list = lists_[shownIndex()];
            const UnitsOfList from{sources_, nation.id, monthsOf(edit_.settings, list.period),
                                   shownNationality(nation) + (list.name.empty() ? "" : ", " + list.name) +
                                       ": units"};
            if (editListedUnits(handle(), from, list.units)) {
                refreshShown();
            }
        });
    }

private:
    void follow() override { port().setEnabled(IDC_MOD_UNITS, isShown()); }
    [[nodiscard]] bool hasMissing(const ModEquipment& list) const {
        return !std::all_of(list.units.begin(), list.units.end(),
                            [this](const ModListedUnit& unit) { return isUnitThere(sources_, unit); });
    }

    const ModEdit& edit_;
    std::vector<ModEquipment>& lists_;
    const std::vector<EquipmentSource>& sources_;
    VectorListModel<ModEquipment> model_;
};

class NationalitiesDialog final : public PicturedListDialog {
public:
    NationalitiesDialog(const ModEdit& edit, std::vector<ModNationality>& nations)
        : PicturedListDialog(edit,
                             {.dialogTemplate = IDD_MOD_NATIONALITIES,
                              .caption = "Nationalities",
                              .imageBases = edit.imageBases},
                             model_, FlagFields),
          nations_(nations),
          model_(nations, nationalityShape(),
                 {.next =
                      [this] {
                          untouched_ = nextNationality(nations_);
                          return *untouched_;
                      },
                  .warn = [this](const ModNationality& nation) { return isDouble(nation) ? "twice" : ""; }}) {
        onButton(IDC_MOD_SIDES, [this] {
            editShown(&ModNationality::allegiances, allegianceShape(), IDD_MOD_SIDES, "Sides", {});
        });
        onButton(IDC_MOD_UNIFORMS, [this] {
            editShown(&ModNationality::uniforms, modUniformShape(), IDD_MOD_UNIFORMS, "Uniforms",
                      UniformFields);
        });
        onButton(IDC_MOD_RANKS, [this] {
            editShown(&ModNationality::ranks, rankShape(), IDD_MOD_RANKS, "Ranks", RankFields);
        });
        onButton(IDC_MOD_SURNAMES, [this] {
            editCopy(&ModNationality::surnames, [this](auto& surnames) {
                return SurnamesDialog(surnames, titleOf("Surnames")).run(handle());
            });
        });
        onButton(IDC_MOD_EQUIPMENT, [this] {
            editCopy(&ModNationality::equipment, [this](auto& lists) {
                return EquipmentDialog(this->edit(), sources(), nations_[shownIndex()],
                                       titleOf("Equipment lists"), lists)
                    .run(handle());
            });
        });
        onButton(IDC_MOD_COMPLETE, [this] {
            if (isShown() && takeShown()) {
                settle();
                fillIn(nations_[shownIndex()]);
                refreshShown();
            }
        });
    }

private:
    void prepare() override {
        constexpr int rowHeight = 20;
        SendDlgItemMessageA(handle(), IDC_ENTRY_LIST, LB_SETITEMHEIGHT, 0, edit().drawing.scaled(rowHeight));
    }
    /// Flags are named after the nationality in lower case where no other is given.
    static std::string usualFlag(const ModNationality& nation) {
        const std::string_view id = nation.id;
        return loweredText(id.starts_with(NationalityPrefix) ? id.substr(NationalityPrefix.size()) : id);
    }
    std::string usualName(const PictureField&) override { return usualFlag(nations_[shownIndex()]); }
    /// Also of one that the list has by an older word.
    [[nodiscard]] bool isDouble(const ModNationality& nation) const {
        const std::string_view today = todaysWord(nation.id);
        std::size_t count = 0;
        for (const ModNationality& other : nations_) {
            count += other.id == today || todaysWord(other.id) == today ? 1 : 0;
            if (count > 1) {
                return true;
            }
        }
        return false;
    }
    void paint(const DRAWITEMSTRUCT& item) override {
        if (item.CtlID != IDC_ENTRY_LIST) {
            PicturedListDialog::paint(item);
        } else if (item.itemID < nations_.size()) {
            paintEntry(item, nations_[item.itemID]);
        }
    }
    /// The flag, and the line that the list holds.
    void paintEntry(const DRAWITEMSTRUCT& item, const ModNationality& nation) {
        const DrawingObjects& objects = edit().drawing;
        const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        constexpr int flagWidth = 22;
        constexpr int gap = 4;
        RECT place = item.rcItem;
        place.left += objects.scaled(gap);
        RECT flag = place;
        flag.right = flag.left + objects.scaled(flagWidth);
        InflateRect(&flag, 0, -2);
        paintPictureInto(item.hDC, flag, edit(),
                         picturePath(edit(), mod_field::StaticFlagImages,
                                     nation.flag.empty() ? usualFlag(nation) : nation.flag));
        place.left = flag.right + objects.scaled(gap);
        const std::string line = model_.line(item.itemID);
        SetBkMode(item.hDC, TRANSPARENT);
        SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextA(item.hDC, line.c_str(), static_cast<int>(line.size()), &place,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
        if ((item.itemState & ODS_FOCUS) != 0) {
            DrawFocusRect(item.hDC, &item.rcItem);
        }
    }
    void follow() override {
        PicturedListDialog::follow();
        for (const int button : {IDC_MOD_SIDES, IDC_MOD_UNIFORMS, IDC_MOD_RANKS, IDC_MOD_SURNAMES,
                                 IDC_MOD_EQUIPMENT, IDC_MOD_COMPLETE}) {
            port().setEnabled(button, isShown());
        }
        std::string summary;
        if (isShown()) {
            const ModNationality& nation = nations_[shownIndex()];
            summary = counted(nation.surnames.size(), "surname") + ", " +
                      counted(nation.uniforms.size(), "uniform") + ", " +
                      counted(nation.ranks.size(), "rank") + ", " +
                      counted(nation.equipment.size(), "equipment list");
        }
        port().setText(IDC_MOD_SUMMARY, summary);
    }

    /// What was added and not touched yet follows the choice of another nation.
    bool notice(int control, int notification) override {
        const bool isTaken = PicturedListDialog::notice(control, notification);
        if (control == IDC_MOD_NATIONALITY && isShown() && untouched_) {
            ModNationality& nation = nations_[shownIndex()];
            const std::string former = untouched_->id;
            followNationality(nation, *untouched_);
            if (untouched_->id != former) {
                // Each of the two texts has both controls read.
                port().setText(IDC_MOD_NAME, untouched_->name);
                port().setText(IDC_MOD_ADJECTIVE, untouched_->adjective);
                nation = *untouched_;
                showLines();
                follow();
            }
        }
        return isTaken;
    }

    /// The game's units, which are read when they are first asked for.
    const std::vector<EquipmentSource>& sources() {
        if (!sources_) {
            sources_ = readEquipmentSources(edit().folders);
        }
        return *sources_;
    }
    void fillIn(ModNationality& nation) {
        completeNationality(nation);
        if (nation.equipment.empty()) {
            nation.equipment = equipmentOf(edit().settings, nation.id, sources());
        }
    }

    /// Changes a list of the shown nationality when the dialog ends with OK.
    template <typename List, typename Run>
    void editCopy(List ModNationality::*list, Run run) {
        if (!isShown() || !takeShown()) {
            return;
        }
        List copy = nations_[shownIndex()].*list;
        if (run(copy)) {
            nations_[shownIndex()].*list = std::move(copy);
            refreshShown();
        }
    }
    template <typename Entry>
    void editShown(std::vector<Entry> ModNationality::*list, const ListShape<Entry>& shape,
                   int dialogTemplate, std::string_view what, std::span<const PictureField> pictures) {
        editCopy(list, [&](std::vector<Entry>& entries) {
            return onCopy(entries, shape, [&](ListModel& model) {
                PicturedListDialog dialog(edit(),
                                          {.dialogTemplate = dialogTemplate,
                                           .caption = what,
                                           .imageBases = edit().imageBases,
                                           .title = titleOf(what)},
                                          model, pictures);
                return dialog.run(handle());
            });
        });
    }
    [[nodiscard]] std::string titleOf(std::string_view what) const {
        return shownNationality(nations_[shownIndex()]) + ": " + loweredText(what);
    }

    std::vector<ModNationality>& nations_;
    std::optional<ModNationality> untouched_; ///< what was added last, as it was filled in
    std::optional<std::vector<EquipmentSource>> sources_;
    VectorListModel<ModNationality> model_;
};

} // namespace

bool editNationalities(HWND owner, ModEdit& edit) {
    std::vector<ModNationality> nations = edit.settings.nationalities;
    if (!NationalitiesDialog(edit, nations).run(owner)) {
        return false;
    }
    edit.settings.nationalities = std::move(nations);
    return true;
}

} // namespace varrocade
