#include "editors/vehicle/armour_dialog.h"

#include "editors/form/form_dialog_win32.h"
#include "editors/form/list_keys_win32.h"
#include "editors/vehicle/armour_form.h"
#include "resources/resource.h"
#include "view/painting/drawing_objects_win32.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace varrocade {

namespace {

// ---- the small drawing: a cut from the front (left) to the rear, and one across

constexpr COLORREF PlateColour = RGB(90, 100, 60);
constexpr COLORREF Paper = RGB(239, 226, 191);

struct Spot {
    double x;
    double y;
};

/// A plate from a point, leaning inwards by its angle, as thick as its thickness.
class PlatePainter {
public:
    PlatePainter(HDC device, double thicknessScale, double height)
        : device_(device), thicknessScale_(thicknessScale), height_(height),
          brush_(CreateSolidBrush(PlateColour)) {}

    /// `side` is -1 for a plate that faces left and 1 for one that faces right; `upwards` is 1 for an upper
    /// plate and -1 for a lower one.
    void paint(Spot from, const ArmourPlate& plate, int side, int upwards) const {
        const double angle = std::min(std::abs(plate.angle), 80) * std::numbers::pi / 180;
        const double lean = std::tan(angle) * height_ * -side;
        const Spot to{from.x + std::clamp(lean, -3 * height_, 3 * height_), from.y - upwards * height_};
        const double thickness = std::max(2.0, plate.thickness * thicknessScale_);
        const std::array<POINT, 4> corners = {point(from.x, from.y), point(to.x, to.y),
                                              point(to.x - side * thickness / std::cos(angle), to.y),
                                              point(from.x - side * thickness / std::cos(angle), from.y)};
        const Selection brush(device_, brush_.get());
        Polygon(device_, corners.data(), static_cast<int>(corners.size()));
    }

    void level(double left, double right, double y, std::int32_t thickness, int inwards) const {
        const double depth = std::max(1.0, thickness * thicknessScale_) * inwards;
        const std::array<POINT, 4> corners = {point(left, y), point(right, y), point(right, y + depth),
                                              point(left, y + depth)};
        const Selection brush(device_, brush_.get());
        Polygon(device_, corners.data(), static_cast<int>(corners.size()));
    }

    /// A plate that stands before the others, if there is one; `outwards` is -1 to the left and 1 to the
    /// right.
    void upright(double x, double middle, double halfHeight, std::int32_t thickness, int outwards) const {
        if (thickness <= 0) {
            return;
        }
        const double width = std::max(2.0, thickness * thicknessScale_) * outwards;
        const std::array<POINT, 4> corners = {
            point(x, middle - halfHeight), point(x + width, middle - halfHeight),
            point(x + width, middle + halfHeight), point(x, middle + halfHeight)};
        const Selection brush(device_, brush_.get());
        Polygon(device_, corners.data(), static_cast<int>(corners.size()));
    }

private:
    static POINT point(double x, double y) {
        return {static_cast<LONG>(std::lround(x)), static_cast<LONG>(std::lround(y))};
    }

    HDC device_;
    double thicknessScale_;
    double height_;
    GdiObject<HBRUSH> brush_;
};

/// What a cut through the component meets, from left to right.
struct Cut {
    const char* title;
    const ArmourPlate& leftUpper;
    const ArmourPlate& leftLower;
    const ArmourPlate& rightUpper;
    const ArmourPlate& rightLower;
    std::int32_t leftSpaced;
    std::int32_t rightSpaced;
    std::int32_t mantlet; ///< on the left
};

void paintCut(HDC device, const RECT& area, const Cut& cut, const ArmourRecord& armour,
              double thicknessScale) {
    const double height = (area.bottom - area.top) * 0.26;
    const double middle = (area.top + area.bottom) / 2.0 + height * 0.3;
    const double inset = (area.right - area.left) * 0.16;
    const double left = area.left + inset;
    const double right = area.right - inset;
    const PlatePainter painter(device, thicknessScale, height);
    painter.paint({left, middle}, cut.leftUpper, -1, 1);
    painter.paint({left, middle}, cut.leftLower, -1, -1);
    painter.paint({right, middle}, cut.rightUpper, 1, 1);
    painter.paint({right, middle}, cut.rightLower, 1, -1);
    const double quarter = (right - left) / 4;
    painter.level(left + quarter, right - quarter, middle - height, armour.top, 1);
    painter.level(left + quarter, right - quarter, middle + height, std::max(0, armour.bottom), -1);
    // The mantlet stands against the plate, spaced armour away from it.
    const double gap = inset / 8;
    painter.upright(left - gap, middle, height / 2, cut.mantlet, -1);
    painter.upright(left - inset / 2 - gap, middle, height, cut.leftSpaced, -1);
    painter.upright(right + inset / 2 + gap, middle, height, cut.rightSpaced, 1);
    TextOutA(device, area.left + 4, area.top + 2, cut.title, lstrlenA(cut.title));
}

/// `isTurret`: a mantlet can stand before the front.
void drawArmour(const DRAWITEMSTRUCT& item, const ArmourRecord& armour, bool isTurret) {
    const GdiObject<HBRUSH> paper(CreateSolidBrush(Paper));
    FillRect(item.hDC, &item.rcItem, paper.get());
    SetBkMode(item.hDC, TRANSPARENT);
    std::int32_t thickest =
        std::max({1, armour.mantlet, armour.frontSpaced, armour.sideSpaced, armour.rearSpaced});
    for (const auto* plate : plateFields()) {
        thickest = std::max(thickest, plate->of(armour).thickness);
    }
    RECT upper = item.rcItem;
    upper.bottom = (upper.top + upper.bottom) / 2;
    RECT lower = item.rcItem;
    lower.top = upper.bottom;
    const double scale = (item.rcItem.right - item.rcItem.left) * 0.055 / thickest;
    paintCut(item.hDC, upper,
             {.title = "front (left) to rear",
              .leftUpper = armour.upperFront,
              .leftLower = armour.lowerFront,
              .rightUpper = armour.upperRear,
              .rightLower = armour.lowerRear,
              .leftSpaced = armour.frontSpaced,
              .rightSpaced = armour.rearSpaced,
              .mantlet = isTurret ? armour.mantlet : 0},
             armour, scale);
    paintCut(item.hDC, lower,
             {.title = "left to right",
              .leftUpper = armour.upperLeft,
              .leftLower = armour.lowerLeft,
              .rightUpper = armour.upperRight,
              .rightLower = armour.lowerRight,
              .leftSpaced = armour.sideSpaced,
              .rightSpaced = armour.sideSpaced,
              .mantlet = 0},
             armour, scale);
}

// ---- the dialog

constexpr auto ButtonTips = std::to_array<Tip>({
    {IDC_MIRROR_ARMOUR, "Gives the right side the plates of the left one"},
    {IDC_SIDES_ALIKE, "Makes all four side plates, upper and lower, as the upper left one"},
});

class ArmourDialog final : public FormDialog {
public:
    /// `component` is the copy that the dialog works on: what the fields hold, as far as it can be taken.
    explicit ArmourDialog(ComponentRecord& component)
        : FormDialog({.dialogTemplate = IDD_ARMOUR, .caption = "Armour"}, form_), component_(component),
          form_(component, armourShape()) {
        onButton(IDC_MIRROR_ARMOUR, [this] { rearrange(mirrorLeftToRight); });
        onButton(IDC_SIDES_ALIKE, [this] { rearrange(makeSidesAlike); });
    }

private:
    void prepare() override {
        addTips(handle(), ButtonTips);
        if (component_.kind == ComponentKind::FixedWeapon) {
            port().setText(IDC_NOT_STORED, "The armour of a fixed weapon is not stored in the file.");
        }
    }
    /// The effective thicknesses and the drawing follow what is typed.
    void follow() override {
        followPlates(port(), component_);
        InvalidateRect(GetDlgItem(handle(), IDC_ARMOUR_DRAWING), nullptr, TRUE);
    }
    void paint(const DRAWITEMSTRUCT& item) override {
        drawArmour(item, component_.armour, component_.kind == ComponentKind::Turret);
    }
    void rearrange(void (*how)(ArmourRecord&)) {
        if (take()) {
            how(component_.armour);
            show();
        }
    }

    ComponentRecord& component_;
    RecordForm<ComponentRecord> form_;
};

} // namespace

bool editArmour(HWND owner, EditContext&, ComponentRecord& component) {
    ComponentRecord copy = component;
    if (!ArmourDialog(copy).run(owner) || copy.armour == component.armour) {
        return false;
    }
    component.armour = copy.armour;
    return true;
}

} // namespace varrocade
