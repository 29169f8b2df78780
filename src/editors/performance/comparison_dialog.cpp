#include "editors/performance/comparison_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "editors/performance/comparison_form.h"
#include "resources/resource.h"
#include "view/chart/chart_painter.h"
#include "view/painting/gdi_device_win32.h"
#include "view/painting/painter_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <array>
#include <chrono>

namespace varrocade {

namespace {

constexpr UINT_PTR ReadTimer = 1;

constexpr std::array<TableColumn, OutlierHeads.size()> OutlierColumns = {{
    {OutlierHeads[0], 200},
    {OutlierHeads[1], 460},
}};

class ComparisonDialog final : public DialogFrame {
public:
    explicit ComparisonDialog(const ComparisonTools& tools)
        : DialogFrame(IDD_COMPARE_VEHICLES, "Compare Vehicles"), tools_(tools),
          open_(tools.openUnit != nullptr ? tools.openUnit->fileName.str() : std::string()) {
        onButton(IDC_COPY_TABLE,
                 [this] { copyToClipboard(handle(), comparisonTable(comparison_.vehicles())); });
        onButton(IDC_SHOW_FILE, [this] { showVehicle(selectedOutlier()); });
    }

    [[nodiscard]] const std::string& chosen() const { return chosen_; }

private:
    void init() override;
    bool accept() override {
        showVehicle(selectedOutlier());
        return false;
    }
    bool notice(int control, int notification) override;
    void paint(const DRAWITEMSTRUCT& item) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;

    static LRESULT CALLBACK pointsProcedure(HWND window, UINT message, WPARAM parameter, LPARAM detail,
                                            UINT_PTR, DWORD_PTR data);
    [[nodiscard]] std::optional<std::size_t> pointAtPixel(HWND window, LPARAM detail) const;
    void point(std::optional<std::size_t> pointed);
    void read();
    void showAll();
    void composePoints();
    [[nodiscard]] ComparedFigure figureOf(int control) const;
    [[nodiscard]] std::optional<std::size_t> selectedOutlier() const;
    void showVehicle(std::optional<std::size_t> vehicle);

    const ComparisonTools& tools_;
    std::string open_;
    std::string chosen_;
    VehicleComparison comparison_;
    ComparisonPoints points_;
    std::vector<OutlierRow> outliers_;
    std::optional<std::size_t> pointed_; ///< among the points
};

void ComparisonDialog::init() {
    const std::vector<std::string> figures = comparedFigureChoices();
    for (const int control : {IDC_ACROSS, IDC_UPWARDS}) {
        port().setChoices(control, figures);
    }
    const auto choose = [&](int control, ComparedFigure figure) {
        SendDlgItemMessageA(handle(), control, CB_SETCURSEL, static_cast<WPARAM>(figure), 0);
    };
    choose(IDC_ACROSS, ComparedFigure::Weight);
    choose(IDC_UPWARDS, ComparedFigure::RoadSpeed);
    prepareTable(GetDlgItem(handle(), IDC_OUTLIERS), OutlierColumns);
    port().setEnabled(IDC_COPY_TABLE, false);
    port().setEnabled(IDC_SHOW_FILE, false);
    SetWindowSubclass(GetDlgItem(handle(), IDC_VEHICLE_POINTS), pointsProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(this));
    std::optional<SquadRecord> open;
    if (tools_.openUnit != nullptr) {
        open = *tools_.openUnit;
    }
    comparison_.start(tools_.folders, WeaponMasses(tools_.catalogue), std::move(open));
    SendDlgItemMessageA(handle(), IDC_PROGRESS_BAR, PBM_SETRANGE32, 0,
                        static_cast<LPARAM>(comparison_.progress().total));
    SetTimer(handle(), ReadTimer, USER_TIMER_MINIMUM, nullptr);
}

/// A part of the reading that nobody feels.
void ComparisonDialog::read() {
    constexpr std::chrono::milliseconds slice{10};
    const auto end = std::chrono::steady_clock::now() + slice;
    bool isMore = true;
    while (isMore && std::chrono::steady_clock::now() < end) {
        isMore = comparison_.step();
    }
    port().setText(IDC_COMPARISON_PROGRESS, progressText(comparison_));
    SendDlgItemMessageA(handle(), IDC_PROGRESS_BAR, PBM_SETPOS, comparison_.progress().done, 0);
    if (!isMore) {
        KillTimer(handle(), ReadTimer);
        showAll();
    }
}

void ComparisonDialog::showAll() {
    port().setText(IDCANCEL, "Close");
    ShowWindow(GetDlgItem(handle(), IDC_PROGRESS_BAR), SW_HIDE);
    port().setEnabled(IDC_COPY_TABLE, !comparison_.vehicles().empty());
    outliers_ = outlierRows(comparison_.vehicles());
    HWND table = GetDlgItem(handle(), IDC_OUTLIERS);
    for (OutlierRow& row : outliers_) {
        addTableRow(table, row.cells);
    }
    ListView_SetItemState(table, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    composePoints();
}

ComparedFigure ComparisonDialog::figureOf(int control) const {
    return static_cast<ComparedFigure>(
        std::max<LRESULT>(0, SendDlgItemMessageA(handle(), control, CB_GETCURSEL, 0, 0)));
}

void ComparisonDialog::composePoints() {
    pointed_.reset();
    if (comparison_.isDone()) {
        points_ =
            comparisonPoints(comparison_.vehicles(), open_, figureOf(IDC_ACROSS), figureOf(IDC_UPWARDS));
    }
    InvalidateRect(GetDlgItem(handle(), IDC_VEHICLE_POINTS), nullptr, FALSE);
}

std::optional<std::size_t> ComparisonDialog::selectedOutlier() const {
    const int row = selectedTableRow(GetDlgItem(handle(), IDC_OUTLIERS));
    return row >= 0 && static_cast<std::size_t>(row) < outliers_.size()
               ? std::optional(outliers_[static_cast<std::size_t>(row)].vehicle)
               : std::nullopt;
}

void ComparisonDialog::showVehicle(std::optional<std::size_t> vehicle) {
    if (vehicle) {
        chosen_ = comparison_.vehicles()[*vehicle].name;
        end();
    }
}

bool ComparisonDialog::notice(int control, int notification) {
    if ((control == IDC_ACROSS || control == IDC_UPWARDS) && notification == CBN_SELCHANGE) {
        composePoints();
        return true;
    }
    return false;
}

void ComparisonDialog::paint(const DRAWITEMSTRUCT& item) {
    paintBuffered(item.hDC, item.rcItem, tools_.drawing, [&](HDC screen) {
        GdiDevice device(screen, tools_.drawing);
        paintPoints(device, pixelRect(item.rcItem), points_.chart, pointed_);
    });
}

bool ComparisonDialog::receive(UINT message, WPARAM, LPARAM detail) {
    if (message == WM_TIMER) {
        read();
        return true;
    }
    if (message != WM_NOTIFY) {
        return false;
    }
    const auto* notified = reinterpret_cast<const NMHDR*>(detail);
    if (notified->code == LVN_ITEMCHANGED) {
        port().setEnabled(IDC_SHOW_FILE, selectedOutlier().has_value());
    } else if (notified->code == NM_DBLCLK) {
        showVehicle(selectedOutlier());
    }
    return true;
}

// ---- the mouse

std::optional<std::size_t> ComparisonDialog::pointAtPixel(HWND window, LPARAM detail) const {
    RECT area{};
    GetClientRect(window, &area);
    HDC screen = GetDC(window);
    std::optional<std::size_t> found;
    {
        GdiDevice device(screen, tools_.drawing);
        found = pointAt(device, pixelRect(area), points_.chart, {GET_X_LPARAM(detail), GET_Y_LPARAM(detail)});
    }
    ReleaseDC(window, screen);
    return found;
}

void ComparisonDialog::point(std::optional<std::size_t> pointed) {
    if (pointed != pointed_) {
        pointed_ = pointed;
        port().setText(IDC_POINTED_VEHICLE,
                       pointed ? comparedSentence(comparison_.vehicles()[points_.places[*pointed]])
                               : std::string());
        InvalidateRect(GetDlgItem(handle(), IDC_VEHICLE_POINTS), nullptr, FALSE);
    }
}

LRESULT CALLBACK ComparisonDialog::pointsProcedure(HWND window, UINT message, WPARAM parameter, LPARAM detail,
                                                   UINT_PTR, DWORD_PTR data) {
    auto& dialog = *reinterpret_cast<ComparisonDialog*>(data);
    if (message == WM_MOUSEMOVE || message == WM_MOUSELEAVE) {
        dialog.point(message == WM_MOUSEMOVE ? dialog.pointAtPixel(window, detail) : std::nullopt);
        TRACKMOUSEEVENT track{
            .cbSize = sizeof(track), .dwFlags = TME_LEAVE, .hwndTrack = window, .dwHoverTime = 0};
        TrackMouseEvent(&track);
        return 0;
    }
    if (message == WM_LBUTTONDOWN) {
        if (const auto clicked = dialog.pointAtPixel(window, detail)) {
            dialog.showVehicle(dialog.points_.places[*clicked]);
        }
        return 0;
    }
    return DefSubclassProc(window, message, parameter, detail);
}

} // namespace

std::string compareVehicles(HWND owner, const ComparisonTools& tools) {
    ComparisonDialog dialog(tools);
    dialog.run(owner);
    return dialog.chosen();
}

} // namespace varrocade
