// The nationalities of a mod, and the lists that each of them has.

#include "editors/mod/mod_list_dialogs.h"

#include "data/format/texts.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/mod/mod_forms.h"
#include "mod/equipment_lists.h"
#include "mod/starting_points.h"
#include "resources/resource.h"

#include <algorithm>
#include <map>
#include <utility>

namespace varrocade {

namespace {

/// A list that needs no more than its rows.
template <typename Entry>
bool editEntries(HWND owner, const ModEdit& edit, int dialogTemplate, std::string_view caption,
                 std::vector<Entry>& entries, const ListShape<Entry>& shape) {
    class EntriesDialog final : public ListDialog {
    public:
        using ListDialog::ListDialog;
    };
    std::vector<Entry> copy = entries;
    VectorListModel<Entry> model(copy, shape);
    EntriesDialog dialog(
        {.dialogTemplate = dialogTemplate, .caption = caption, .imageBases = edit.imageBases}, model);
    if (!dialog.run(owner)) {
        return false;
    }
    entries = std::move(copy);
    return true;
}

class SurnamesDialog final : public ListDialog {
public:
    explicit SurnamesDialog(std::vector<ModSurname>& surnames)
        : ListDialog({.dialogTemplate = IDD_MOD_SURNAMES, .caption = "Surnames"}, model_),
          surnames_(surnames),
          model_(surnames, surnameShape(), {.next = nullptr, .warn = [this](const ModSurname& surname) {
                                                return counts_[loweredText(surname.name)] > 1 ? "twice" : "";
                                            }}) {
        count();
        onButton(IDC_MOD_PASTE, [this] { paste(); });
        onButton(IDC_MOD_SORT, [this] {
            if (takeShown()) {
                sortSurnames(surnames_);
                refreshShown();
            }
        });
    }

private:
    void follow() override {
        const auto before = counts_;
        count();
        const auto doubles =
            std::count_if(counts_.begin(), counts_.end(), [](const auto& name) { return name.second > 1; });
        port().setText(
            IDC_MOD_SUMMARY,
            std::to_string(surnames_.size()) + " surnames" +
                (doubles > 0 ? ", " + std::to_string(doubles) + " more than once, marked (!)" : ""));
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
        for (const ModSurname& surname : surnamesOfText(clipboardText(handle()))) {
            model_.add();
            surnames_.back() = surname;
        }
        count();
        refresh(static_cast<int>(surnames_.size()) - 1);
    }

    std::vector<ModSurname>& surnames_;
    std::map<std::string, int> counts_; ///< by name in lower case
    VectorListModel<ModSurname> model_;
};

/// The units of one equipment list; a file that does not exist is marked.
class UnitsDialog final : public ListDialog {
public:
    UnitsDialog(const std::vector<EquipmentSource>& sources, const std::string& nationality,
                std::vector<ModListedUnit>& units)
        : ListDialog({.dialogTemplate = IDD_MOD_UNITS, .caption = "Units"}, model_), sources_(sources),
          nationality_(nationality),
          model_(units, listedUnitShape(), {.next = nullptr, .warn = [this](const ModListedUnit& unit) {
                                                return sourceOf(unit.fileName) == nullptr ? "missing" : "";
                                            }}) {}

private:
    /// The nationality's own files first.
    void prepare() override {
        std::vector<std::string> own;
        std::vector<std::string> others;
        for (const EquipmentSource& source : sources_) {
            (source.nationality == nationality_ ? own : others).push_back(source.fileName);
        }
        own.insert(own.end(), others.begin(), others.end());
        port().setChoices(IDC_MOD_UNIT_FILE, own);
    }
    [[nodiscard]] const EquipmentSource* sourceOf(const std::string& fileName) const {
        const auto found = std::find_if(sources_.begin(), sources_.end(), [&](const EquipmentSource& source) {
            return equalsIgnoringCase(source.fileName, fileName);
        });
        return found == sources_.end() ? nullptr : &*found;
    }
    /// A file picked from the list brings its kind along.
    bool notice(int control, int notification) override {
        const bool isFollowed = ListDialog::notice(control, notification);
        if (control == IDC_MOD_UNIT_FILE && notification == CBN_SELCHANGE) {
            if (const EquipmentSource* source = sourceOf(port().text(IDC_MOD_UNIT_FILE))) {
                port().setText(IDC_MOD_UNIT_KIND, categoryWord(source->category));
            }
        }
        return isFollowed;
    }

    const std::vector<EquipmentSource>& sources_;
    const std::string& nationality_;
    VectorListModel<ModListedUnit> model_;
};

class EquipmentDialog final : public ListDialog {
public:
    EquipmentDialog(const ModEdit& edit, const std::string& nationality, std::vector<ModEquipment>& lists)
        : ListDialog({.dialogTemplate = IDD_MOD_EQUIPMENT, .caption = "Equipment lists"}, model_),
          lists_(lists), sources_(readEquipmentSources(edit.folders)), model_(lists, equipmentShape()) {
        onButton(IDC_MOD_UNITS, [this, &nationality] {
            if (!isShown() || !takeShown()) {
                return;
            }
            std::vector<ModListedUnit> units = lists_[shownIndex()].units;
            if (UnitsDialog(sources_, nationality, units).run(handle())) {
                lists_[shownIndex()].units = std::move(units);
                refreshShown();
            }
        });
    }

private:
    void follow() override { port().setEnabled(IDC_MOD_UNITS, isShown()); }

    std::vector<ModEquipment>& lists_;
    std::vector<EquipmentSource> sources_;
    VectorListModel<ModEquipment> model_;
};

class NationalitiesDialog final : public ListDialog {
public:
    NationalitiesDialog(const ModEdit& edit, std::vector<ModNationality>& nations)
        : ListDialog({.dialogTemplate = IDD_MOD_NATIONALITIES,
                      .caption = "Nationalities",
                      .imageBases = edit.imageBases},
                     model_),
          edit_(edit), nations_(nations),
          model_(nations, nationalityShape(), {.next = [this] { return nextNationality(nations_); }}) {
        onButton(IDC_MOD_SIDES, [this] {
            editShown(IDD_MOD_SIDES, "Sides", &ModNationality::allegiances, allegianceShape());
        });
        onButton(IDC_MOD_UNIFORMS, [this] {
            editShown(IDD_MOD_UNIFORMS, "Uniforms", &ModNationality::uniforms, modUniformShape());
        });
        onButton(IDC_MOD_RANKS,
                 [this] { editShown(IDD_MOD_RANKS, "Ranks", &ModNationality::ranks, rankShape()); });
        onButton(IDC_MOD_SURNAMES, [this] {
            editCopy(&ModNationality::surnames,
                     [this](auto& surnames) { return SurnamesDialog(surnames).run(handle()); });
        });
        onButton(IDC_MOD_EQUIPMENT, [this] {
            editCopy(&ModNationality::equipment, [this](auto& lists) {
                return EquipmentDialog(edit_, nations_[shownIndex()].id, lists).run(handle());
            });
        });
        onButton(IDC_MOD_COMPLETE, [this] {
            if (isShown() && takeShown()) {
                completeNationality(nations_[shownIndex()]);
                refreshShown();
            }
        });
    }

private:
    void follow() override {
        for (const int button : {IDC_MOD_SIDES, IDC_MOD_UNIFORMS, IDC_MOD_RANKS, IDC_MOD_SURNAMES,
                                 IDC_MOD_EQUIPMENT, IDC_MOD_COMPLETE}) {
            port().setEnabled(button, isShown());
        }
        std::string summary;
        if (isShown()) {
            const ModNationality& nation = nations_[shownIndex()];
            summary = std::to_string(nation.surnames.size()) + " surnames, " +
                      std::to_string(nation.uniforms.size()) + " uniforms, " +
                      std::to_string(nation.ranks.size()) + " ranks, " +
                      std::to_string(nation.equipment.size()) + " equipment lists";
        }
        port().setText(IDC_MOD_SUMMARY, summary);
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
    void editShown(int dialogTemplate, std::string_view caption, std::vector<Entry> ModNationality::*list,
                   const ListShape<Entry>& shape) {
        editCopy(list, [&](std::vector<Entry>& entries) {
            return editEntries(handle(), edit_, dialogTemplate, caption, entries, shape);
        });
    }

    const ModEdit& edit_;
    std::vector<ModNationality>& nations_;
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
