// The colours of the game's interface.

#include "editors/form/dialog_frame_win32.h"
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
        : DialogFrame(IDD_MOD_COLOURS, "Colours"), colours_(colours), shown_(colours) {
        onButton(IDC_MOD_COLOUR_CHANGE, [this] { change(); });
        onButton(IDC_MOD_COLOUR_DEFAULT, [this] {
            chosen() = ModColours().*namedColours()[index_].member;
            list();
        });
    }

private:
    void init() override { list(); }

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
        const GdiObject<HBRUSH> brush(CreateSolidBrush(colourRef(chosen())));
        FillRect(item.hDC, &item.rcItem, brush.get());
    }

    [[nodiscard]] Rgb& chosen() { return shown_.*namedColours()[index_].member; }

    void list() {
        HWND box = GetDlgItem(handle(), IDC_MOD_COLOUR_LIST);
        SendMessageA(box, LB_RESETCONTENT, 0, 0);
        for (const NamedColour& colour : namedColours()) {
            const std::string line = std::string(colour.label) + ": " + valueText(shown_.*colour.member);
            SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
        }
        SendMessageA(box, LB_SETCURSEL, index_, 0);
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
            chosen() = {GetRValue(choice.rgbResult), GetGValue(choice.rgbResult),
                        GetBValue(choice.rgbResult)};
            list();
        }
    }

    ModColours& colours_;
    ModColours shown_;
    std::size_t index_ = 0;
};

} // namespace

bool editColours(HWND owner, ModColours& colours) {
    return ColoursDialog(colours).run(owner);
}

} // namespace varrocade
