// The units of an equipment list: those that there are on the left, those that are listed on the right.

#include "editors/mod/mod_units_dialog.h"

#include "data/codec.h"
#include "data/format/words.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/edit_history.h"
#include "editors/form/table_win32.h"
#include "editors/mod/mod_units.h"
#include "mod/mod_fields.h"
#include "mod/mod_words.h"
#include "resources/resource.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, 3> SourceColumns = {{{"Unit", 205}, {"Kind", 62}, {"At most", 56, true}}};
constexpr std::array<TableColumn, 4> ListedColumns = {
    {{"Unit", 171}, {"Kind", 58}, {"Share", 48, true}, {"Cost", 46, true}}};

std::vector<std::size_t> chosenRows(HWND table) {
    std::vector<std::size_t> rows;
    for (int row = ListView_GetNextItem(table, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(table, row, LVNI_SELECTED)) {
        rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

class UnitsDialog final : public DialogFrame {
public:
    UnitsDialog(const UnitsOfList& from, std::vector<ModListedUnit>& units)
        : DialogFrame(IDD_MOD_UNITS, "Units", from.title), from_(from), result_(units), units_(units),
          history_(units) {
        onButton(IDC_MOD_UNITS_ADD, [this] { add(); });
        onButton(IDC_MOD_UNITS_REMOVE, [this] { remove(); });
        onButton(IDC_MOD_SOURCE_NATION, [this] { showSources(); });
        onButton(IDC_MOD_SOURCE_PERIOD, [this] { showSources(); });
        onButton(IDC_ENTRY_UNDO, [this] { goBack(&EditHistory<std::vector<ModListedUnit>>::undo); });
        onButton(IDC_ENTRY_REDO, [this] { goBack(&EditHistory<std::vector<ModListedUnit>>::redo); });
    }

private:
    [[nodiscard]] HWND sources() { return GetDlgItem(handle(), IDC_MOD_SOURCE_LIST); }
    [[nodiscard]] HWND listed() { return GetDlgItem(handle(), IDC_MOD_LISTED); }

    void init() override {
        HWND kinds = GetDlgItem(handle(), IDC_MOD_SOURCE_KIND);
        SendMessageA(kinds, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("All kinds"));
        for (const std::string_view word : unitCategoryWords()) {
            SendMessageA(kinds, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(shownKind(word).c_str()));
        }
        SendMessageA(kinds, CB_SETCURSEL, 0, 0);
        port().setChecked(IDC_MOD_SOURCE_NATION, true);
        prepareTable(sources(), SourceColumns);
        prepareTable(listed(), ListedColumns);
        showAll();
    }

    void showAll() {
        showListed();
        showSources();
    }

    void showSources() {
        const std::string words = port().text(IDC_MOD_SOURCE_FILTER);
        const LRESULT kind = SendDlgItemMessageA(handle(), IDC_MOD_SOURCE_KIND, CB_GETCURSEL, 0, 0);
        UnitFilter filter{.words = words};
        if (kind > 0) {
            filter.category = static_cast<Category>(kind - 1);
        }
        if (port().isChecked(IDC_MOD_SOURCE_NATION)) {
            filter.nationality = from_.nationality;
        }
        if (port().isChecked(IDC_MOD_SOURCE_PERIOD)) {
            filter.time = from_.time;
        }
        offered_ = unitsToOffer(from_.sources, filter, units_);
        SendMessageA(sources(), WM_SETREDRAW, FALSE, 0);
        ListView_DeleteAllItems(sources());
        for (const std::size_t place : offered_) {
            const EquipmentSource& source = from_.sources[place];
            std::array<std::string, 3> cells = {
                source.fileName, std::string(categoryName(source.category)),
                std::to_string(mostAvailable(source.availability, from_.time.first, from_.time.last))};
            addTableRow(sources(), cells);
        }
        SendMessageA(sources(), WM_SETREDRAW, TRUE, 0);
        follow();
    }

    void showListed() {
        isFilling_ = true;
        SendMessageA(listed(), WM_SETREDRAW, FALSE, 0);
        ListView_DeleteAllItems(listed());
        for (const ModListedUnit& unit : units_) {
            std::array<std::string, 4> cells = listedCells(from_.sources, unit);
            addTableRow(listed(), cells);
        }
        SendMessageA(listed(), WM_SETREDRAW, TRUE, 0);
        isFilling_ = false;
    }

    void showCells(std::size_t row) {
        std::array<std::string, 4> cells = listedCells(from_.sources, units_[row]);
        for (std::size_t column = 0; column < cells.size(); ++column) {
            ListView_SetItemText(listed(), static_cast<int>(row), static_cast<int>(column),
                                 cells[column].data());
        }
    }

    /// The buttons, the count and the numbers of the chosen units.
    void follow() {
        const std::vector<std::size_t> chosen = chosenRows(listed());
        port().setEnabled(IDC_MOD_UNITS_ADD, !chosenRows(sources()).empty());
        port().setEnabled(IDC_MOD_UNITS_REMOVE, !chosen.empty());
        isFilling_ = true;
        for (const auto& [control, member] : Numbers) {
            port().setEnabled(control, !chosen.empty());
            port().setText(control, commonNumber(units_, chosen, member));
            port().mark(control, {});
        }
        isFilling_ = false;
        const auto missing = std::count_if(units_.begin(), units_.end(), [this](const ModListedUnit& unit) {
            return !isUnitThere(from_.sources, unit);
        });
        port().setText(IDC_MOD_SUMMARY,
                       counted(units_.size(), "unit") +
                           (missing > 0 ? ", " + std::to_string(missing) + " not there (!)" : ""));
        followHistory();
    }

    void followHistory() {
        port().setEnabled(IDC_ENTRY_UNDO, history_.canUndo(units_));
        port().setEnabled(IDC_ENTRY_REDO, history_.canRedo(units_));
    }

    void add() {
        std::vector<std::size_t> places;
        for (const std::size_t row : chosenRows(sources())) {
            places.push_back(offered_[row]);
        }
        history_.note(units_);
        listUnits(units_, from_.sources, places, from_.time);
        history_.note(units_);
        showAll();
        for (std::size_t row = units_.size() - places.size(); row < units_.size(); ++row) {
            ListView_SetItemState(listed(), static_cast<int>(row), LVIS_SELECTED, LVIS_SELECTED);
        }
        ListView_EnsureVisible(listed(), static_cast<int>(units_.size()) - 1, FALSE);
        SetFocus(sources());
    }

    void remove() {
        const std::vector<std::size_t> chosen = chosenRows(listed());
        history_.note(units_);
        unlistUnits(units_, chosen);
        history_.note(units_);
        showAll();
        const int next = std::min(static_cast<int>(chosen.front()), static_cast<int>(units_.size()) - 1);
        ListView_SetItemState(listed(), next, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        SetFocus(listed());
    }

    void goBack(const std::vector<ModListedUnit>* (EditHistory<std::vector<ModListedUnit>>::*step)(
        const std::vector<ModListedUnit>&)) {
        if (const auto* state = (history_.*step)(units_)) {
            units_ = *state;
            showAll();
            SetFocus(listed());
        }
    }

    /// Gives the chosen units the number that stands in an edit; an empty one leaves them as they are.
    std::optional<FormError> takeNumber(int control, std::int32_t ModListedUnit::*member) {
        const Field<ModListedUnit, std::int32_t>& field =
            control == IDC_MOD_SHARE ? mod_field::UnitShare : mod_field::UnitCost;
        const std::string text = port().text(control);
        const std::vector<std::size_t> chosen = chosenRows(listed());
        if (text.empty() || chosen.empty() || text == commonNumber(units_, chosen, member)) {
            return std::nullopt;
        }
        ModListedUnit read;
        if (Refusal refusal = Codec<std::int32_t>::take(
                text, {.label = field.label, .range = field.traits.range}, read.*member)) {
            return FormError{refusedInput(field, std::move(*refusal), text), control};
        }
        for (const std::size_t row : chosen) {
            units_[row].*member = read.*member;
            showCells(row);
        }
        return std::nullopt;
    }

    bool accept() override {
        for (const auto& [control, member] : Numbers) {
            if (const auto error = takeNumber(control, member)) {
                refuse(*error);
                return false;
            }
        }
        result_ = units_;
        return true;
    }

    bool notice(int control, int notification) override {
        if (isFilling_) {
            return false;
        }
        if ((control == IDC_MOD_SOURCE_FILTER && notification == EN_CHANGE) ||
            (control == IDC_MOD_SOURCE_KIND && notification == CBN_SELCHANGE)) {
            showSources();
        }
        for (const auto& [number, member] : Numbers) {
            if (control == number && notification == EN_CHANGE) {
                const auto error = takeNumber(number, member);
                port().mark(number, error ? std::string_view(error->message) : std::string_view());
                followHistory();
            } else if (control == number && notification == EN_KILLFOCUS) {
                history_.note(units_);
                followHistory();
            }
        }
        return false;
    }

    bool receive(UINT message, WPARAM, LPARAM detail) override {
        if (message == WM_NOTIFY) {
            follow(*reinterpret_cast<const NMHDR*>(detail));
        } else if (message == WM_LBUTTONUP && dragged_ != nullptr) {
            drop({GET_X_LPARAM(detail), GET_Y_LPARAM(detail)});
        } else if (message == WM_CAPTURECHANGED) {
            dragged_ = nullptr;
        }
        return false;
    }

    void follow(const NMHDR& notification) {
        const bool isSources = notification.idFrom == IDC_MOD_SOURCE_LIST;
        if ((!isSources && notification.idFrom != IDC_MOD_LISTED) || isFilling_) {
            return;
        }
        switch (notification.code) {
        case LVN_ITEMCHANGED:
            history_.note(units_);
            follow();
            break;
        case NM_DBLCLK:
            move(isSources);
            break;
        case LVN_BEGINDRAG:
            dragged_ = notification.hwndFrom;
            SetCapture(handle());
            SetCursor(LoadCursorA(nullptr, IDC_HAND));
            break;
        case LVN_KEYDOWN:
            if (!isSources && reinterpret_cast<const NMLVKEYDOWN&>(notification).wVKey == VK_DELETE) {
                move(false);
            }
            break;
        default:
            break;
        }
    }

    /// To the other side, what is chosen on one.
    void move(bool isFromSources) {
        if (!chosenRows(isFromSources ? sources() : listed()).empty()) {
            isFromSources ? add() : remove();
        }
    }

    /// Where the mouse lets go of what was dragged.
    void drop(POINT at) {
        HWND from = std::exchange(dragged_, nullptr);
        ReleaseCapture();
        HWND over = ChildWindowFromPoint(handle(), at);
        if (over != from && (over == sources() || over == listed())) {
            move(from == sources());
        }
    }

    struct NumberEdit {
        int control;
        std::int32_t ModListedUnit::*member;
    };
    static constexpr std::array<NumberEdit, 2> Numbers = {
        {{IDC_MOD_SHARE, &ModListedUnit::share}, {IDC_MOD_COST, &ModListedUnit::cost}}};

    const UnitsOfList& from_;
    std::vector<ModListedUnit>& result_;
    std::vector<ModListedUnit> units_;
    EditHistory<std::vector<ModListedUnit>> history_;
    std::vector<std::size_t> offered_; ///< places of the sources that the left table shows
    HWND dragged_ = nullptr;           ///< the table that rows are dragged from
    bool isFilling_ = false;
};

} // namespace

bool editListedUnits(HWND owner, const UnitsOfList& from, std::vector<ModListedUnit>& units) {
    return UnitsDialog(from, units).run(owner);
}

} // namespace varrocade
