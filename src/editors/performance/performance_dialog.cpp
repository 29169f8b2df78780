#include "editors/performance/performance_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/performance/performance_form.h"
#include "resources/resource.h"
#include "view/chart/chart_painter.h"
#include "view/painting/gdi_device_win32.h"
#include "view/painting/painter_win32.h"

#include <algorithm>
#include <utility>

namespace varrocade {

PerformanceWindow::PerformanceWindow(PerformanceHooks hooks)
    : DialogFrame(IDD_PERFORMANCE, "Weight and Top Speed"), hooks_(std::move(hooks)) {
    onButton(IDC_TAKE_ESTIMATE, [this] { takeEstimate(); });
    onButton(IDC_COPY_TABLE,
             [this] { copyToClipboard(handle(), performanceTable(performance_, conditions_)); });
    onButton(IDC_COMPARE, [this] { hooks_.compare(); });
}

void PerformanceWindow::show(const SquadRecord* unit, TakeWeight take, bool mayLeave) {
    if (unit != nullptr && unit->vehicle) {
        shown_ = *unit;
    } else {
        shown_.reset();
    }
    take_ = std::move(take);
    mayLeave_ = mayLeave;
    if (isOpen()) {
        showAll();
    }
}

void PerformanceWindow::init() {
    port().setChoices(IDC_SURFACE, surfaceChoices());
    SendDlgItemMessageA(handle(), IDC_SURFACE, CB_SETCURSEL, static_cast<WPARAM>(conditions_.surface), 0);
    port().setText(IDC_SLOPE, slope_);
    showAll();
}

void PerformanceWindow::showAll() {
    performance_ = shown_ ? vehiclePerformance(*shown_, WeaponMasses(hooks_.catalogue, *shown_->vehicle))
                          : VehiclePerformance{};
    port().setText(IDC_WEIGHT_SENTENCE, shown_ ? weightSentence(performance_) : "No vehicle is open.");
    HWND former = GetFocus();
    const bool canTake = take_ && shown_ && performance_.shares.has_value() &&
                         roundedWeight(performance_.estimate) != shown_->vehicle->weight;
    port().setEnabled(IDC_TAKE_ESTIMATE, canTake);
    port().setEnabled(IDC_COPY_TABLE, shown_.has_value());
    port().setEnabled(IDC_COMPARE, mayLeave_);
    const bool isOwn = former != nullptr && GetParent(former) == handle();
    if (isOwn && IsWindowEnabled(former) == FALSE) {
        // A disabled button would keep the keyboard.
        SetFocus(GetDlgItem(handle(), IDCANCEL));
    }
    InvalidateRect(GetDlgItem(handle(), IDC_WEIGHT_BARS), nullptr, FALSE);
    showDriving();
}

void PerformanceWindow::showDriving() {
    port().setText(IDC_DRIVING_TEXT, shown_ ? drivingText(performance_, conditions_) : "");
    for (const int control : {IDC_FORCE_CURVES, IDC_SPEED_CURVE}) {
        InvalidateRect(GetDlgItem(handle(), control), nullptr, FALSE);
    }
}

bool PerformanceWindow::notice(int control, int notification) {
    if (control == IDC_SURFACE && notification == CBN_SELCHANGE) {
        const LRESULT chosen = SendDlgItemMessageA(handle(), IDC_SURFACE, CB_GETCURSEL, 0, 0);
        conditions_.surface = static_cast<Surface>(std::max<LRESULT>(0, chosen));
        showDriving();
        return true;
    }
    if (control == IDC_SLOPE && notification == EN_CHANGE) {
        const std::string text = port().text(IDC_SLOPE);
        const std::optional<double> slope = slopeOf(text);
        port().mark(IDC_SLOPE, slope ? std::string_view() : SlopeRefusal);
        if (slope) {
            slope_ = text;
            conditions_.slope = *slope;
            showDriving();
        }
        return true;
    }
    return false;
}

void PerformanceWindow::paint(const DRAWITEMSTRUCT& item) {
    const DrawingObjects& drawing = hooks_.drawing;
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

void PerformanceWindow::takeEstimate() {
    if (take_ && shown_) {
        // It shows the vehicle anew, and with that another way to take a weight.
        const TakeWeight take = take_;
        take(roundedWeight(performance_.estimate));
    }
}

} // namespace varrocade
