#include "editors/penetration/penetration_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/form_port_win32.h"
#include "editors/penetration/penetration_curves_win32.h"
#include "editors/penetration/penetration_form.h"
#include "resources/resource.h"
#include "view/painting/drawing_objects_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

namespace varrocade {

namespace {

struct PenetrationDialog {
    const PenetrationTools& tools;
    const WeaponRecord* weapon = nullptr;
    PenetrationChart chart = {}; ///< of the weapon, for the angle and drag in the form
    bool isFilling = false;
};

void computeCurves(FormPort& port, PenetrationDialog& context) {
    context.chart.curves.clear();
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
        context.chart.curves.push_back(std::move(curve));
    }
}

void recalculate(HWND dialog, PenetrationDialog& context) {
    DialogPort port(dialog);
    context.isFilling = true;
    showPenetration(port, context.weapon, context.chart.chosen);
    context.isFilling = false;
    computeCurves(port, context);
    port.setEnabled(IDC_COPY_TABLE, context.chart.chosen < context.chart.curves.size());
    InvalidateRect(GetDlgItem(dialog, IDC_CURVES), nullptr, FALSE);
}

void chooseWeapon(HWND dialog, PenetrationDialog& context) {
    const LRESULT chosen = SendDlgItemMessageA(dialog, IDC_PEN_WEAPON, CB_GETCURSEL, 0, 0);
    const auto& entries = context.tools.catalogue.entries();
    context.weapon = chosen >= 0 && static_cast<std::size_t>(chosen) < entries.size()
                         ? &entries[static_cast<std::size_t>(chosen)].weapon
                         : nullptr;
    context.chart.chosen = 0;
    context.chart.names =
        context.weapon != nullptr ? shellTypes(*context.weapon) : std::vector<std::string>();
    DialogPort port(dialog);
    port.setChoices(IDC_PEN_SHELL, context.chart.names);
    SendDlgItemMessageA(dialog, IDC_PEN_SHELL, CB_SETCURSEL, 0, 0);
    port.setText(IDC_PEN_NOTE, weaponFileNote(context.tools.catalogue, static_cast<std::size_t>(chosen)));
    recalculate(dialog, context);
}

// ---- the curves

void chooseShell(HWND dialog, PenetrationDialog& context, std::size_t shell) {
    context.chart.chosen = shell;
    recalculate(dialog, context);
}

/// The mouse reads the curves, and a click chooses one.
LRESULT CALLBACK curvesProcedure(HWND curves, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                 DWORD_PTR data) {
    auto& context = *reinterpret_cast<PenetrationDialog*>(data);
    RECT area{};
    GetClientRect(curves, &area);
    const POINT point{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    if (message == WM_MOUSEMOVE || message == WM_MOUSELEAVE) {
        const auto range = message == WM_MOUSEMOVE
                               ? chartRangeAt(area, point, context.chart, context.tools.drawing)
                               : std::nullopt;
        if (range != context.chart.pointedRange) {
            context.chart.pointedRange = range;
            InvalidateRect(curves, nullptr, FALSE);
        }
        TRACKMOUSEEVENT track{
            .cbSize = sizeof(track), .dwFlags = TME_LEAVE, .hwndTrack = curves, .dwHoverTime = 0};
        TrackMouseEvent(&track);
        return 0;
    }
    if (message == WM_LBUTTONDOWN) {
        if (const auto curve = chartCurveAt(area, point, context.chart, context.tools.drawing)) {
            SendDlgItemMessageA(GetParent(curves), IDC_PEN_SHELL, CB_SETCURSEL, *curve, 0);
            chooseShell(GetParent(curves), context, *curve);
        }
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
    SendDlgItemMessageA(dialog, IDC_PEN_WEAPON, CB_SETCURSEL,
                        firstPenetrationWeapon(context.tools.catalogue, context.tools.weapon), 0);
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
                       .shell = context.chart.chosen,
                       .drags = formDrags(port)});
}

void handleCommand(HWND dialog, PenetrationDialog& context, int control, int notification) {
    if (control == IDC_PEN_WEAPON && notification == CBN_SELCHANGE) {
        chooseWeapon(dialog, context);
    } else if (control == IDC_PEN_SHELL && notification == CBN_SELCHANGE) {
        const LRESULT chosen = SendDlgItemMessageA(dialog, IDC_PEN_SHELL, CB_GETCURSEL, 0, 0);
        chooseShell(dialog, context, static_cast<std::size_t>(std::max<LRESULT>(0, chosen)));
    } else if (control == IDC_PEN_ANGLE && notification == CBN_SELCHANGE) {
        completeChoice(dialog, IDC_PEN_ANGLE);
        recalculate(dialog, context);
    } else if (control == IDC_COPY_TABLE && context.chart.chosen < context.chart.curves.size()) {
        DialogPort port(dialog);
        copyToClipboard(dialog, penetrationTable(port, *context.weapon, context.chart.chosen));
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
        paintChart(*reinterpret_cast<const DRAWITEMSTRUCT*>(pointer), context->chart, context->tools.drawing);
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
