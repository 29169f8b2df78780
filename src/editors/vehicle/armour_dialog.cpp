#include "editors/vehicle/armour_dialog.h"

#include "data/unit_fields.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/form/list_keys_win32.h"
#include "editors/vehicle/armour_form.h"
#include "resources/resource.h"
#include "view/painting/armour_painter.h"
#include "view/painting/gdi_device_win32.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// From the side above, across below, as on the data sheet.
void drawArmour(const DRAWITEMSTRUCT& item, const DrawingObjects& drawing, const ComponentRecord& component) {
    FillRect(item.hDC, &item.rcItem, drawing.beigeBrush.get());
    ArmourRecord armour = component.armour;
    if (component.kind != ComponentKind::Turret) {
        armour.mantlet = ArmourNotGiven;
    }
    GdiDevice device(item.hDC, drawing);
    const PixelRect area = pixelRect(item.rcItem);
    const int middle = (area.top + area.bottom) / 2;
    int thickest = std::max({1, armour.mantlet, armour.frontSpaced, armour.sideSpaced, armour.rearSpaced});
    for (const auto* plate : field::Plates) {
        thickest = std::max(thickest, plate->of(armour).thickness);
    }
    paintPlates(device, {area.left, area.top, area.right, middle}, sideSketch(armour), "front (left) to rear",
                thickest);
    paintPlates(device, {area.left, middle, area.right, area.bottom}, crossSketch(armour), "left to right",
                thickest);
}

constexpr auto ButtonTips = std::to_array<Tip>({
    {IDC_MIRROR_ARMOUR, "Gives the right side the plates of the left one"},
    {IDC_SIDES_ALIKE, "Makes all four side plates, upper and lower, as the upper left one"},
});

/// Shown for turrets alone.
constexpr std::array<int, 4> MantletControls = {IDC_MANTLET_LABEL, IDC_MANTLET, IDC_MANTLET_UNIT,
                                                IDC_MANTLET_GIVEN};

class ArmourDialog final : public FormDialog {
public:
    /// `component` is the copy that the dialog works on: what the fields hold, as far as it can be taken.
    ArmourDialog(const EditContext& edit, ComponentRecord& component)
        : FormDialog({.dialogTemplate = IDD_ARMOUR,
                      .caption = "Armour",
                      .title = captionOf(edit, "armour"),
                      .focus = edit.focus.field},
                     form_),
          focus_(edit.focus.field), drawing_(edit.drawing), component_(component),
          form_(component, armourShape()) {
        onButton(IDC_MIRROR_ARMOUR, [this] { rearrange(mirrorLeftToRight); });
        onButton(IDC_SIDES_ALIKE, [this] { rearrange(makeSidesAlike); });
    }

private:
    void prepare() override {
        addTips(handle(), ButtonTips);
        for (const int control : MantletControls) {
            ShowWindow(GetDlgItem(handle(), control),
                       component_.kind == ComponentKind::Turret ? SW_SHOWNA : SW_HIDE);
        }
        if (component_.kind == ComponentKind::FixedWeapon) {
            port().setText(IDC_NOT_STORED, "The armour of a fixed weapon is not stored in the file.");
        }
    }
    /// The effective thicknesses and the drawing follow what is typed.
    void follow() override {
        followPlates(port(), component_);
        InvalidateRect(GetDlgItem(handle(), IDC_ARMOUR_DRAWING), nullptr, TRUE);
    }
    void paint(const DRAWITEMSTRUCT& item) override { drawArmour(item, drawing_, component_); }
    void rearrange(void (*how)(ArmourRecord&)) {
        if (take()) {
            how(component_.armour);
            show();
        }
    }

    int firstFocus() override {
        const int plate = controlOfPlate(focus_);
        return plate != 0 ? plate : FormDialog::firstFocus();
    }

    FieldId focus_;
    const DrawingObjects& drawing_;
    ComponentRecord& component_;
    RecordForm<ComponentRecord> form_;
};

} // namespace

bool editArmour(HWND owner, EditContext& edit, ComponentRecord& component) {
    ComponentRecord copy = component;
    if (!ArmourDialog(edit, copy).run(owner) || copy.armour == component.armour) {
        return false;
    }
    component.armour = copy.armour;
    return true;
}

} // namespace varrocade
