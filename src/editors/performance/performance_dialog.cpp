#include "editors/performance/performance_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/performance/comparison_dialog.h"
#include "editors/performance/performance_form.h"
#include "resources/resource.h"
#include "view/chart/chart_painter.h"
#include "view/painting/gdi_device_win32.h"
#include "view/painting/painter_win32.h"

#include <algorithm>

namespace varrocade {

namespace {

class PerformanceDialog final : public DialogFrame {
public:
    explicit PerformanceDialog(const PerformanceTerms& terms)
        : DialogFrame(IDD_PERFORMANCE, "Weight and Top Speed"), terms_(terms), shown_(terms.shown) {
        onButton(IDC_TAKE_ESTIMATE, [this] { takeEstimate(); });
        onButton(IDC_COPY_TABLE,
                 [this] { copyToClipboard(handle(), performanceTable(performance_, conditions_)); });
        onButton(IDC_COMPARE, [this] { compare(); });
    }

    [[nodiscard]] const std::string& chosen() const { return chosen_; }

private:
    void init() override;
    bool accept() override { return true; }
    bool notice(int control, int notification) override;
    void paint(const DRAWITEMSTRUCT& item) override;

    void compute();
    void showDriving();
    void takeEstimate();
    void compare();

    const PerformanceTerms& terms_;
    SquadRecord shown_;
    VehiclePerformance performance_;
    DriveConditions conditions_;
    std::string chosen_;
};

void PerformanceDialog::init() {
    port().setChoices(IDC_SURFACE, surfaceChoices());
    SendDlgItemMessageA(handle(), IDC_SURFACE, CB_SETCURSEL, 0, 0);
    port().setText(IDC_SLOPE, "0");
    ShowWindow(GetDlgItem(handle(), IDC_COMPARE), terms_.folders != nullptr ? SW_SHOW : SW_HIDE);
    compute();
}

void PerformanceDialog::compute() {
    performance_ = vehiclePerformance(shown_, WeaponMasses(terms_.edit.catalogue, *shown_.vehicle));
    port().setText(IDC_WEIGHT_SENTENCE, weightSentence(performance_));
    HWND former = GetFocus();
    const bool canTake =
        performance_.shares.has_value() && roundedWeight(performance_.estimate) != shown_.vehicle->weight;
    port().setEnabled(IDC_TAKE_ESTIMATE, canTake);
    if (!canTake && former == GetDlgItem(handle(), IDC_TAKE_ESTIMATE)) {
        // A disabled button would keep the keyboard.
        SetFocus(GetDlgItem(handle(), IDCANCEL));
    }
    InvalidateRect(GetDlgItem(handle(), IDC_WEIGHT_BARS), nullptr, FALSE);
    showDriving();
}

void PerformanceDialog::showDriving() {
    port().setText(IDC_DRIVING_TEXT, drivingText(performance_, conditions_));
    for (const int control : {IDC_FORCE_CURVES, IDC_SPEED_CURVE}) {
        InvalidateRect(GetDlgItem(handle(), control), nullptr, FALSE);
    }
}

bool PerformanceDialog::notice(int control, int notification) {
    if (control == IDC_SURFACE && notification == CBN_SELCHANGE) {
        const LRESULT chosen = SendDlgItemMessageA(handle(), IDC_SURFACE, CB_GETCURSEL, 0, 0);
        conditions_.surface = static_cast<Surface>(std::max<LRESULT>(0, chosen));
        showDriving();
        return true;
    }
    if (control == IDC_SLOPE && notification == EN_CHANGE) {
        const std::optional<double> slope = slopeOf(port().text(IDC_SLOPE));
        port().mark(IDC_SLOPE, slope ? std::string_view() : SlopeRefusal);
        if (slope) {
            conditions_.slope = *slope;
            showDriving();
        }
        return true;
    }
    return false;
}

void PerformanceDialog::paint(const DRAWITEMSTRUCT& item) {
    const DrawingObjects& drawing = terms_.edit.drawing;
    paintBuffered(item.hDC, item.rcItem, drawing, [&](HDC screen) {
        GdiDevice device(screen, drawing);
        const PixelRect area = pixelRect(item.rcItem);
        if (item.CtlID == IDC_WEIGHT_BARS) {
            paintBars(device, area, weightBars(performance_));
        } else if (item.CtlID == IDC_FORCE_CURVES) {
            paintCurves(device, area, forceCurves(performance_, conditions_));
        } else {
            paintCurves(device, area, speedCurve(performance_, conditions_));
        }
    });
}

void PerformanceDialog::takeEstimate() {
    shown_.vehicle->weight = roundedWeight(performance_.estimate);
    terms_.edit.record.vehicle->weight = shown_.vehicle->weight;
    terms_.edit.changed("Take the estimated weight");
    compute();
}

void PerformanceDialog::compare() {
    chosen_ = compareVehicles(handle(), {.catalogue = terms_.edit.catalogue,
                                         .drawing = terms_.edit.drawing,
                                         .folders = *terms_.folders,
                                         .openUnit = &shown_});
    if (!chosen_.empty()) {
        end();
    }
}

} // namespace

std::string showPerformance(HWND owner, const PerformanceTerms& terms) {
    PerformanceDialog dialog(terms);
    dialog.run(owner);
    return dialog.chosen();
}

} // namespace varrocade
