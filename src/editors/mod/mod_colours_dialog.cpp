// The colours of the game's interface.

#include "editors/form/dialog_frame_win32.h"
#include "editors/form/edit_history.h"
#include "editors/mod/mod_forms.h"
#include "editors/mod/mod_list_dialogs.h"
#include "mod/mod_words.h"
#include "resources/resource.h"

#include <commdlg.h>

#include <array>

namespace varrocade {

namespace {

COLORREF colourRef(const Rgb& colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

class ColoursDialog final : public DialogFrame {
public:
    explicit ColoursDialog(ModColours& colours)
        : DialogFrame(IDD_MOD_COLOURS, "Colours"), colours_(colours), shown_(colours), history_(colours) {
        onButton(IDC_MOD_COLOUR_CHANGE, [this] { change(); });
        onButton(IDC_MOD_COLOUR_DEFAULT, [this] { give(ModColours().*namedColours()[index_].member); });
        onButton(IDC_ENTRY_UNDO, [this] { goTo(history_.undo(shown_)); });
        onButton(IDC_ENTRY_REDO, [this] { goTo(history_.redo(shown_)); });
    }

private:
    void init() override {
        constexpr int rowHeight = 12;
        RECT row{0, 0, 0, rowHeight};
        MapDialogRect(handle(), &row);
        SendDlgItemMessageA(handle(), IDC_MOD_COLOUR_LIST, LB_SETITEMHEIGHT, 0, row.bottom);
        list();
    }

    bool accept() override {
        colours_ = shown_;
        return true;
    }

    bool notice(int control, int notification) override {
        if (control != IDC_MOD_COLOUR_LIST) {
            return false;
        }
        const LRESULT row = SendDlgItemMessageA(handle(), IDC_MOD_COLOUR_LIST, LB_GETCURSEL, 0, 0);
        if (notification == LBN_SELCHANGE && row >= 0) {
            index_ = static_cast<std::size_t>(row);
            showSwatch();
        } else if (notification == LBN_DBLCLK) {
            change();
        }
        return true;
    }

    void paint(const DRAWITEMSTRUCT& item) override {
        if (item.CtlID == IDC_MOD_SWATCH) {
            fill(item.hDC, item.rcItem, chosen());
        } else if (item.itemID < namedColours().size()) {
            paintEntry(item);
        }
    }

    static void fill(HDC device, const RECT& area, const Rgb& colour) {
        const GdiObject<HBRUSH> brush(CreateSolidBrush(colourRef(colour)));
        FillRect(device, &area, brush.get());
    }

    /// The colour itself before its name and numbers.
    void paintEntry(const DRAWITEMSTRUCT& item) {
        const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        constexpr int margin = 3;
        RECT swatch = item.rcItem;
        InflateRect(&swatch, -margin, -margin);
        swatch.right = swatch.left + 2 * (swatch.bottom - swatch.top);
        fill(item.hDC, swatch, shown_.*namedColours()[item.itemID].member);
        FrameRect(item.hDC, &swatch, GetSysColorBrush(COLOR_WINDOWTEXT));
        RECT words = item.rcItem;
        words.left = swatch.right + 2 * margin;
        const std::string line = lineOf(namedColours()[item.itemID]);
        SetBkMode(item.hDC, TRANSPARENT);
        SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextA(item.hDC, line.c_str(), static_cast<int>(line.size()), &words,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if ((item.itemState & ODS_FOCUS) != 0) {
            DrawFocusRect(item.hDC, &item.rcItem);
        }
    }

    [[nodiscard]] std::string lineOf(const NamedColour& colour) const {
        return std::string(colour.label) + ": " + valueText(shown_.*colour.member);
    }

    void give(const Rgb& colour) {
        chosen() = colour;
        history_.note(shown_);
        list();
    }

    void goTo(const ModColours* state) {
        if (state != nullptr) {
            shown_ = *state;
            list();
        }
    }

    [[nodiscard]] Rgb& chosen() { return shown_.*namedColours()[index_].member; }

    void list() {
        HWND box = GetDlgItem(handle(), IDC_MOD_COLOUR_LIST);
        SendMessageA(box, LB_RESETCONTENT, 0, 0);
        for (const NamedColour& colour : namedColours()) {
            const std::string line = lineOf(colour);
            SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
        }
        SendMessageA(box, LB_SETCURSEL, index_, 0);
        port().setEnabled(IDC_ENTRY_UNDO, history_.canUndo(shown_));
        port().setEnabled(IDC_ENTRY_REDO, history_.canRedo(shown_));
        showSwatch();
    }

    void showSwatch() { InvalidateRect(GetDlgItem(handle(), IDC_MOD_SWATCH), nullptr, TRUE); }

    /// The system's own dialog, which offers the mod's other colours too.
    void change() {
        std::array<COLORREF, 16> others{};
        for (std::size_t i = 0; i < namedColours().size() && i < others.size(); ++i) {
            others[i] = colourRef(shown_.*namedColours()[i].member);
        }
        CHOOSECOLORA choice{};
        choice.lStructSize = sizeof choice;
        choice.hwndOwner = handle();
        choice.rgbResult = colourRef(chosen());
        choice.lpCustColors = others.data();
        choice.Flags = CC_RGBINIT | CC_FULLOPEN;
        if (ChooseColorA(&choice) != FALSE) {
            give({GetRValue(choice.rgbResult), GetGValue(choice.rgbResult), GetBValue(choice.rgbResult)});
        }
    }

    ModColours& colours_;
    ModColours shown_;
    EditHistory<ModColours> history_;
    std::size_t index_ = 0;
};

} // namespace

bool editColours(HWND owner, ModColours& colours) {
    return ColoursDialog(colours).run(owner);
}

} // namespace varrocade
