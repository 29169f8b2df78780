#include "editors/vehicle/armour_dialog.h"

#include "data/unit/plate_rows.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/list_keys_win32.h"
#include "editors/vehicle/armour_form.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/armour_painter.h"
#include "view/painting/gdi_device_win32.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

struct ArmourDialog {
    const DrawingObjects& drawing;
    ArmourRecord armour; ///< what the fields hold, as far as it can be taken
    ComponentKind kind;
    bool isFilling = false;
};

bool isTurret(const ArmourDialog& context) {
    return context.kind == ComponentKind::Turret;
}

void fillDialog(HWND dialog, ArmourDialog& context) {
    DialogPort port(dialog);
    context.isFilling = true;
    fillArmourForm(port, context.armour, isTurret(context));
    context.isFilling = false;
    InvalidateRect(GetDlgItem(dialog, IDC_ARMOUR_DRAWING), nullptr, TRUE);
}

/// The effective thicknesses and the drawing follow what is typed.
void followTyping(HWND dialog, ArmourDialog& context) {
    DialogPort port(dialog);
    enableGiven(port, isTurret(context));
    readArmourForm(port, context.armour, isTurret(context));
    followPlates(port, context.armour);
    InvalidateRect(GetDlgItem(dialog, IDC_ARMOUR_DRAWING), nullptr, TRUE);
}

/// From the side above, across below, as on the data sheet.
void drawArmour(const DRAWITEMSTRUCT& item, const ArmourDialog& context) {
    FillRect(item.hDC, &item.rcItem, context.drawing.beigeBrush.get());
    ArmourRecord armour = context.armour;
    if (!isTurret(context)) {
        armour.mantlet = ArmourNotGiven;
    }
    GdiDevice device(item.hDC, context.drawing);
    const PixelRect area = pixelRect(item.rcItem);
    const int middle = (area.top + area.bottom) / 2;
    int thickest = std::max({1, armour.mantlet, armour.frontSpaced, armour.sideSpaced, armour.rearSpaced});
    for (const ArmourPlateRow& row : ArmourPlateRows) {
        thickest = std::max(thickest, (armour.*row.member).thickness);
    }
    paintPlates(device, {area.left, area.top, area.right, middle}, sideSketch(armour), "front (left) to rear",
                thickest);
    paintPlates(device, {area.left, middle, area.right, area.bottom}, crossSketch(armour), "left to right",
                thickest);
}

// ---- the dialog

constexpr auto ButtonTips = std::to_array<Tip>({
    {IDC_MIRROR_ARMOUR, "Gives the right side the plates of the left one"},
    {IDC_SIDES_ALIKE, "Makes all four side plates, upper and lower, as the upper left one"},
});

/// Takes the fields over into the context; false after telling what is wrong.
bool takeFields(HWND dialog, ArmourDialog& context) {
    DialogPort port(dialog);
    if (const auto error = readArmourForm(port, context.armour, isTurret(context))) {
        showMessage({.text = error->message, .caption = "Armour", .icon = MessageIcon::Information});
        port.focus(error->control);
        return false;
    }
    return true;
}

INT_PTR handleCommand(HWND dialog, ArmourDialog& context, WPARAM parameter) {
    switch (LOWORD(parameter)) {
    case IDOK:
        if (takeFields(dialog, context)) {
            EndDialog(dialog, 1);
        }
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, 0);
        return TRUE;
    case IDC_MIRROR_ARMOUR:
    case IDC_SIDES_ALIKE:
        if (takeFields(dialog, context)) {
            (LOWORD(parameter) == IDC_MIRROR_ARMOUR ? mirrorLeftToRight : makeSidesAlike)(context.armour);
            fillDialog(dialog, context);
        }
        return TRUE;
    default:
        if (!context.isFilling && (HIWORD(parameter) == EN_CHANGE || HIWORD(parameter) == BN_CLICKED)) {
            followTyping(dialog, context);
        }
        return TRUE;
    }
}

INT_PTR CALLBACK armourProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ArmourDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        placeBesideDrawing(dialog);
        fillDialog(dialog, *context);
        addTips(dialog, ButtonTips);
        if (context->kind == ComponentKind::FixedWeapon) {
            DialogPort(dialog).setText(IDC_NOT_STORED,
                                       "The armour of a fixed weapon is not stored in the file.");
        }
        return TRUE;
    case WM_DRAWITEM:
        drawArmour(*reinterpret_cast<const DRAWITEMSTRUCT*>(pointer), *context);
        return TRUE;
    case WM_COMMAND:
        return context == nullptr ? FALSE : handleCommand(dialog, *context, parameter);
    default:
        return FALSE;
    }
}

} // namespace

bool editArmour(HWND owner, EditContext& edit, ComponentRecord& component) {
    ArmourDialog context{.drawing = edit.drawing, .armour = component.armour, .kind = component.kind};
    if (runDialog(owner, IDD_ARMOUR, armourProcedure, &context) == 0 || context.armour == component.armour) {
        return false;
    }
    component.armour = context.armour;
    return true;
}

} // namespace varrocade
