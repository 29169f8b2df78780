#include "editors/unit/availability_dialog.h"

#include "data/unit_fields.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/unit/availability_edit.h"
#include "editors/unit/unit_lists.h"
#include "resources/resource.h"
#include "view/painting/timeline_painter_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace varrocade {

namespace {

constexpr int Reach = 8;  // pixels at 96 dpi, as the other
constexpr int Jitter = 3; // of a hand that moves to the side

/// The point that something is to be done about.
std::size_t firstPoint(const EditContext& edit) {
    const FieldId field = edit.focus.field;
    const bool isOfPoint = field == &field::Month || field == &field::Year || field == &field::NumberOfUnits;
    return isOfPoint ? edit.firstShown : 0;
}

class AvailabilityDialog final : public ListDialog {
public:
    /// `points` is the copy that the dialog works on.
    AvailabilityDialog(const EditContext& edit, std::vector<AvailabilityPoint>& points,
                       const DrawingObjects& drawing)
        : ListDialog({.dialogTemplate = IDD_AVAILABILITY,
                      .caption = "Availability",
                      .fullText = "There are already 255 dates, the most that the game counts",
                      .fullCaption = "Availability",
                      .first = firstPoint(edit),
                      .focus = edit.focus.field},
                     model_),
          points_(points), drawing_(drawing),
          model_(points, availabilityShape(),
                 {.next = [this] { return nextDate(points_); },
                  .place = [this](const AvailabilityPoint& added) { return placeOfDate(points_, added); }}) {
        onButton(IDC_ENTRY_SORT, [this] { sort(); });
    }

private:
    void prepare() override {
        SetWindowSubclass(timeline(), timelineProcedure, 0, reinterpret_cast<DWORD_PTR>(this));
    }
    void follow() override { repaintTimeline(); }
    void paint(const DRAWITEMSTRUCT& item) override {
        FillRect(item.hDC, &item.rcItem, drawing_.beigeBrush.get());
        paintTimeline(item.hDC, item.rcItem, points_, drawing_);
    }

    [[nodiscard]] HWND timeline() const { return GetDlgItem(handle(), IDC_TIMELINE); }
    [[nodiscard]] TimelineScale scale() const;
    [[nodiscard]] std::optional<std::size_t> pointNear(int x, int y) const;
    /// A number that the mouse has found: a round one, unless Shift is held.
    [[nodiscard]] std::uint16_t chosenNumber(std::uint16_t number) const {
        return GetKeyState(VK_SHIFT) < 0 ? number : roundNumber(number, dragScale_.greatest);
    }
    void repaintTimeline() const { InvalidateRect(timeline(), nullptr, FALSE); }

    void sort();
    void beginDragging(int x, int y);
    void drag(int x, int y);
    void endDragging();
    void addPointAt(int x, int y);
    void deletePointAt(int x, int y);
    static LRESULT CALLBACK timelineProcedure(HWND timeline, UINT message, WPARAM parameter, LPARAM detail,
                                              UINT_PTR, DWORD_PTR data);

    std::vector<AvailabilityPoint>& points_;
    const DrawingObjects& drawing_;
    VectorListModel<AvailabilityPoint> model_;
    std::optional<std::size_t> dragged_;
    TimelineScale dragScale_ = {};   ///< stays as it was when the dragging began
    AvailabilityPoint grabbed_ = {}; ///< the dragged point as it was then
    POINT grip_{};                   ///< where the mouse took hold of it
};

TimelineScale AvailabilityDialog::scale() const {
    RECT area{};
    GetClientRect(timeline(), &area);
    TimelineScale scale = timelineScaleIn(area, points_, drawing_);
    const bool isEmpty = std::all_of(points_.begin(), points_.end(),
                                     [](const AvailabilityPoint& point) { return point.number == 0; });
    // Numbers that would be 0 or 1 wherever the mouse is.
    scale.greatest = isEmpty ? FirstNumberOfUnits : scale.greatest;
    return scale;
}

std::optional<std::size_t> AvailabilityDialog::pointNear(int x, int y) const {
    return timelinePointNear(points_, scale(), x, y, drawing_.scaled(Reach));
}

/// The chosen point stays the chosen one.
void AvailabilityDialog::sort() {
    if (takeShown()) {
        const auto chosen = isShown() ? points_[shownIndex()] : AvailabilityPoint();
        sortByDate(points_);
        const auto place = std::find(points_.begin(), points_.end(), chosen);
        refresh(place == points_.end() ? -1 : static_cast<int>(place - points_.begin()));
    }
}

void AvailabilityDialog::beginDragging(int x, int y) {
    if (!takeShown()) {
        return;
    }
    dragScale_ = scale();
    dragged_ = pointNear(x, y);
    if (dragged_) {
        grabbed_ = points_[*dragged_];
        grip_ = {x, y};
        SetCapture(timeline());
        refresh(static_cast<int>(*dragged_));
    }
}

/// The corner moves as far as the mouse does. A number that is not meant stays, another one is round unless
/// Shift is held.
void AvailabilityDialog::drag(int x, int y) {
    if (dragged_) {
        AvailabilityPoint to =
            dragScale_.pointAt(dragScale_.xOf(grabbed_.year, std::max<int>(1, grabbed_.month)) + x - grip_.x,
                               dragScale_.yOf(grabbed_.number) + y - grip_.y);
        if (std::abs(y - grip_.y) <= drawing_.scaled(Jitter)) {
            to.number = grabbed_.number;
        } else {
            to.number = chosenNumber(to.number);
        }
        points_[*dragged_] = to;
        refresh(static_cast<int>(*dragged_));
        repaintTimeline();
    }
}

void AvailabilityDialog::endDragging() {
    dragged_.reset();
    ReleaseCapture();
}

/// A double-click beside the steps' corners adds a point there.
void AvailabilityDialog::addPointAt(int x, int y) {
    const TimelineScale former = scale();
    if (!pointNear(x, y) && takeShown() && hasRoom()) {
        dragScale_ = former;
        AvailabilityPoint added = former.pointAt(x, y);
        added.number = chosenNumber(added.number);
        model_.insert(added);
        refresh(static_cast<int>(model_.newest()));
    }
}

/// A right click on a step's corner deletes its point. What the form shows of it need not be right.
void AvailabilityDialog::deletePointAt(int x, int y) {
    const auto point = pointNear(x, y);
    const bool isShownPoint = point && isShown() && *point == shownIndex();
    if (!point || (!isShownPoint && !takeShown())) {
        return;
    }
    model_.erase(*point);
    refresh(std::min(static_cast<int>(*point), static_cast<int>(points_.size()) - 1));
}

/// The timeline's mouse: its steps are dragged by their corners.
LRESULT CALLBACK AvailabilityDialog::timelineProcedure(HWND timeline, UINT message, WPARAM parameter,
                                                       LPARAM detail, UINT_PTR, DWORD_PTR data) {
    auto& dialog = *reinterpret_cast<AvailabilityDialog*>(data);
    const int x = GET_X_LPARAM(detail);
    const int y = GET_Y_LPARAM(detail);
    switch (message) {
    case WM_LBUTTONDOWN:
        dialog.beginDragging(x, y);
        return 0;
    case WM_MOUSEMOVE:
        dialog.drag(x, y);
        return 0;
    case WM_LBUTTONUP:
        dialog.endDragging();
        return 0;
    case WM_LBUTTONDBLCLK:
        dialog.addPointAt(x, y);
        return 0;
    case WM_RBUTTONUP:
        dialog.deletePointAt(x, y);
        return 0;
    default:
        return DefSubclassProc(timeline, message, parameter, detail);
    }
}

} // namespace

bool editAvailability(HWND owner, EditContext& edit, const DrawingObjects& drawing) {
    std::vector<AvailabilityPoint> points = edit.record.availability;
    if (!AvailabilityDialog(edit, points, drawing).run(owner) || points == edit.record.availability) {
        return false;
    }
    edit.record.availability = std::move(points);
    return true;
}

} // namespace varrocade
