#include "editors/penetration_dialog.h"

#include "editors/clipboard_win32.h"
#include "editors/form_port_win32.h"
#include "editors/penetration_form.h"
#include "resources/resource.h"
#include "view/drawing_objects_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace varrocade {

namespace {

struct PenetrationDialog {
    const PenetrationTools& tools;
    const WeaponRecord* weapon = nullptr;
    std::size_t shell = 0;
    /// A curve each ammunition type of the weapon, for the angle and drag in the form.
    std::vector<PenetrationCurve> curves = {};
    int pointedRange = -1; ///< metres that the mouse points to in the curves
    bool isFilling = false;
};

void computeCurves(FormPort& port, PenetrationDialog& context) {
    context.curves.clear();
    if (context.weapon == nullptr) {
        return;
    }
    const double factor = angleFactor(formAngle(port));
    for (const AmmoTypeRecord& ammo : context.weapon->ammoTypes) {
        PenetrationCurve curve =
            penetrationCurve(projectileOf(*context.weapon, ammo), formDrag(port, ammo.flavour));
        for (double& value : curve) {
            value *= factor;
        }
        context.curves.push_back(std::move(curve));
    }
}

void recalculate(HWND dialog, PenetrationDialog& context) {
    DialogPort port(dialog);
    context.isFilling = true;
    showPenetration(port, context.weapon, context.shell);
    context.isFilling = false;
    computeCurves(port, context);
    port.setEnabled(IDC_COPY_TABLE, context.shell < context.curves.size());
    InvalidateRect(GetDlgItem(dialog, IDC_CURVES), nullptr, FALSE);
}

void chooseWeapon(HWND dialog, PenetrationDialog& context) {
    const LRESULT chosen = SendDlgItemMessageA(dialog, IDC_PEN_WEAPON, CB_GETCURSEL, 0, 0);
    const auto& entries = context.tools.catalogue.entries();
    context.weapon = chosen >= 0 && static_cast<std::size_t>(chosen) < entries.size()
                         ? &entries[static_cast<std::size_t>(chosen)].weapon
                         : nullptr;
    context.shell = 0;
    DialogPort(dialog).setChoices(IDC_PEN_SHELL, context.weapon != nullptr ? shellTypes(*context.weapon)
                                                                           : std::vector<std::string>());
    SendDlgItemMessageA(dialog, IDC_PEN_SHELL, CB_SETCURSEL, 0, 0);
    recalculate(dialog, context);
}

// ---- the curves

constexpr int CurveMargin = 24;
constexpr COLORREF OtherCurve = RGB(150, 140, 110);

int curveX(const RECT& area, int margin, int range) {
    return area.left + margin + MulDiv(range, area.right - area.left - 2 * margin, CurveEnd);
}

double greatestValue(const PenetrationDialog& context) {
    double greatest = 1;
    for (const PenetrationCurve& curve : context.curves) {
        greatest = std::max(greatest, *std::max_element(curve.begin(), curve.end()));
    }
    return greatest;
}

void drawAxes(HDC device, const RECT& area, int margin, double greatest) {
    constexpr int rangeStep = 500;
    const auto text = [&](int x, int y, const std::string& words) {
        TextOutA(device, x, y, words.data(), static_cast<int>(words.size()));
    };
    const GdiObject<HPEN> pen(CreatePen(PS_DOT, 1, OtherCurve));
    const Selection selected(device, pen.get());
    for (int range = 0; range <= CurveEnd; range += rangeStep) {
        const int x = curveX(area, margin, range);
        MoveToEx(device, x, area.top + margin / 2, nullptr);
        LineTo(device, x, area.bottom - margin);
        text(x - margin / 2, area.bottom - margin + 2, std::to_string(range));
    }
    text(area.left + 2, area.top + 2, std::to_string(std::lround(greatest)) + " mm");
}

void drawCurve(HDC device, const RECT& area, int margin, const PenetrationCurve& curve, double greatest) {
    const int height = area.bottom - area.top - margin - margin / 2;
    std::vector<POINT> points;
    for (int x = curveX(area, margin, 0); x <= curveX(area, margin, CurveEnd); ++x) {
        const int range = std::clamp(
            MulDiv(x - area.left - margin, CurveEnd, std::max<int>(1, area.right - area.left - 2 * margin)),
            0, CurveEnd);
        const double share = curve[static_cast<std::size_t>(range)] / greatest;
        points.push_back({x, area.bottom - margin - static_cast<LONG>(std::lround(share * height))});
    }
    Polyline(device, points.data(), static_cast<int>(points.size()));
}

void drawPointed(HDC device, const RECT& area, int margin, const PenetrationDialog& context) {
    if (context.pointedRange < 0 || context.shell >= context.curves.size()) {
        return;
    }
    const Selection pen(device, context.tools.drawing.redPen.get());
    const int x = curveX(area, margin, context.pointedRange);
    MoveToEx(device, x, area.top + margin / 2, nullptr);
    LineTo(device, x, area.bottom - margin);
    const double value = context.curves[context.shell][static_cast<std::size_t>(context.pointedRange)];
    const std::string words = std::to_string(context.pointedRange) + " m: " + penetrationText(value);
    SetTextAlign(device, TA_RIGHT | TA_TOP);
    TextOutA(device, area.right - 4, area.top + 2, words.data(), static_cast<int>(words.size()));
    SetTextAlign(device, TA_LEFT | TA_TOP);
}

void drawCurves(const DRAWITEMSTRUCT& item, const PenetrationDialog& context) {
    const DrawingObjects& drawing = context.tools.drawing;
    FillRect(item.hDC, &item.rcItem, drawing.beigeBrush.get());
    const Selection font(item.hDC, drawing.smallFont.get());
    SetBkMode(item.hDC, TRANSPARENT);
    const int margin = drawing.scaled(CurveMargin);
    const double greatest = greatestValue(context);
    drawAxes(item.hDC, item.rcItem, margin, greatest);
    const GdiObject<HPEN> other(CreatePen(PS_SOLID, 1, OtherCurve));
    const GdiObject<HPEN> chosen(CreatePen(PS_SOLID, 3, RGB(0, 110, 0)));
    for (std::size_t i = 0; i < context.curves.size(); ++i) {
        const Selection pen(item.hDC, i == context.shell ? chosen.get() : other.get());
        drawCurve(item.hDC, item.rcItem, margin, context.curves[i], greatest);
    }
    drawPointed(item.hDC, item.rcItem, margin, context);
}

/// The mouse reads the chosen curve.
LRESULT CALLBACK curvesProcedure(HWND curves, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                 DWORD_PTR data) {
    if (message == WM_MOUSEMOVE) {
        auto& context = *reinterpret_cast<PenetrationDialog*>(data);
        RECT area{};
        GetClientRect(curves, &area);
        const int margin = context.tools.drawing.scaled(CurveMargin);
        const int range =
            MulDiv(GET_X_LPARAM(detail) - margin, CurveEnd, std::max<int>(1, area.right - 2 * margin));
        context.pointedRange = range >= 0 && range <= CurveEnd ? range : -1;
        InvalidateRect(curves, nullptr, FALSE);
        return 0;
    }
    return DefSubclassProc(curves, message, parameter, detail);
}

// ---- the dialog

void fillDialog(HWND dialog, PenetrationDialog& context) {
    DialogPort port(dialog);
    context.isFilling = true;
    port.setChoices(IDC_PEN_WEAPON, penetrationWeapons(context.tools.catalogue));
    fillPenetrationDefaults(port);
    context.isFilling = false;
    SendDlgItemMessageA(dialog, IDC_PEN_WEAPON, CB_SETCURSEL, firstPenetrationWeapon(context.tools.catalogue),
                        0);
    SetWindowSubclass(GetDlgItem(dialog, IDC_CURVES), curvesProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(&context));
    chooseWeapon(dialog, context);
}

/// The same shot at a vehicle.
void askPlates(HWND dialog, const PenetrationDialog& context) {
    DialogPort port(dialog);
    const LRESULT weapon = SendDlgItemMessageA(dialog, IDC_PEN_WEAPON, CB_GETCURSEL, 0, 0);
    askWhatPenetrates(dialog, context.tools,
                      {.weapon = static_cast<std::size_t>(std::max<LRESULT>(0, weapon)),
                       .shell = context.shell,
                       .drags = formDrags(port)});
}

void handleCommand(HWND dialog, PenetrationDialog& context, int control, int notification) {
    if (control == IDC_PEN_WEAPON && notification == CBN_SELCHANGE) {
        chooseWeapon(dialog, context);
    } else if (control == IDC_PEN_SHELL && notification == CBN_SELCHANGE) {
        const LRESULT chosen = SendDlgItemMessageA(dialog, IDC_PEN_SHELL, CB_GETCURSEL, 0, 0);
        context.shell = static_cast<std::size_t>(std::max<LRESULT>(0, chosen));
        recalculate(dialog, context);
    } else if (control == IDC_PEN_ANGLE && notification == CBN_SELCHANGE) {
        completeChoice(dialog, IDC_PEN_ANGLE);
        recalculate(dialog, context);
    } else if (control == IDC_COPY_TABLE && context.shell < context.curves.size()) {
        DialogPort port(dialog);
        copyToClipboard(dialog, penetrationTable(port, *context.weapon, context.shell));
    } else if (control == IDC_CAN_PENETRATE) {
        askPlates(dialog, context);
    } else if (!context.isFilling && (notification == EN_CHANGE || notification == CBN_EDITCHANGE)) {
        recalculate(dialog, context);
    }
}

INT_PTR CALLBACK penetrationProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<PenetrationDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        fillDialog(dialog, *context);
        return TRUE;
    case WM_DRAWITEM:
        drawCurves(*reinterpret_cast<const DRAWITEMSTRUCT*>(pointer), *context);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(parameter) == IDOK || LOWORD(parameter) == IDCANCEL) {
            EndDialog(dialog, 0);
        } else if (context != nullptr) {
            handleCommand(dialog, *context, LOWORD(parameter), HIWORD(parameter));
        }
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void calculatePenetration(HWND owner, const PenetrationTools& tools) {
    PenetrationDialog context{.tools = tools};
    runDialog(owner, IDD_PENETRATION, penetrationProcedure, &context);
}

} // namespace varrocade
