#include "editors/unit/availability_dialog.h"

#include "editors/form/list_dialog_win32.h"
#include "editors/unit/unit_lists.h"
#include "resources/resource.h"
#include "view/painting/timeline_painter_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

namespace varrocade {

namespace {

struct AvailabilityContext {
    const DrawingObjects& drawing;
    std::vector<AvailabilityPoint> points; ///< the copy that the dialog works on
    HWND dialog = nullptr;
    ListDialog* list = nullptr;
    std::optional<std::size_t> dragged;
    TimelineScale dragScale; ///< stays as it was when the dragging began
};

constexpr int Reach = 8;

AvailabilityContext& contextOf(const ListDialog& list) {
    return *static_cast<AvailabilityContext*>(list.context);
}

void repaintTimeline(HWND dialog) {
    InvalidateRect(GetDlgItem(dialog, IDC_TIMELINE), nullptr, FALSE);
}

TimelineScale scaleOf(HWND timeline, const AvailabilityContext& context) {
    RECT area{};
    GetClientRect(timeline, &area);
    return timelineScaleIn(area, context.points, context.drawing);
}

void beginDragging(HWND timeline, AvailabilityContext& context, int x, int y) {
    if (!takeShownEntry(context.dialog, *context.list)) {
        return;
    }
    context.dragScale = scaleOf(timeline, context);
    context.dragged =
        timelinePointNear(context.points, context.dragScale, x, y, context.drawing.scaled(Reach));
    if (context.dragged) {
        SetCapture(timeline);
        refreshEntries(context.dialog, *context.list, static_cast<int>(*context.dragged));
    }
}

void drag(AvailabilityContext& context, int x, int y) {
    if (!context.dragged) {
        return;
    }
    context.points[*context.dragged] = context.dragScale.pointAt(x, y);
    refreshEntries(context.dialog, *context.list, static_cast<int>(*context.dragged));
    repaintTimeline(context.dialog);
}

/// A double-click beside the steps' corners adds a point there.
void addPointAt(HWND timeline, AvailabilityContext& context, int x, int y) {
    const TimelineScale scale = scaleOf(timeline, context);
    const int reach = context.drawing.scaled(Reach);
    if (timelinePointNear(context.points, scale, x, y, reach) ||
        !takeShownEntry(context.dialog, *context.list) || !hasRoomForEntry(*context.list)) {
        return;
    }
    context.points.push_back(scale.pointAt(x, y));
    refreshEntries(context.dialog, *context.list, static_cast<int>(context.points.size()) - 1);
}

/// A right click on a step's corner deletes its point. What the form shows of it need not be right.
void deletePointAt(HWND timeline, AvailabilityContext& context, int x, int y) {
    const auto point =
        timelinePointNear(context.points, scaleOf(timeline, context), x, y, context.drawing.scaled(Reach));
    if (!point) {
        return;
    }
    if (static_cast<int>(*point) != context.list->shown && !takeShownEntry(context.dialog, *context.list)) {
        return;
    }
    context.points.erase(context.points.begin() + static_cast<std::ptrdiff_t>(*point));
    const int last = static_cast<int>(context.points.size()) - 1;
    refreshEntries(context.dialog, *context.list, std::min(static_cast<int>(*point), last));
}

/// The timeline's mouse: its steps are dragged by their corners.
LRESULT CALLBACK timelineProcedure(HWND timeline, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                   DWORD_PTR data) {
    auto& context = *reinterpret_cast<AvailabilityContext*>(data);
    switch (message) {
    case WM_LBUTTONDOWN:
        beginDragging(timeline, context, GET_X_LPARAM(detail), GET_Y_LPARAM(detail));
        return 0;
    case WM_MOUSEMOVE:
        drag(context, GET_X_LPARAM(detail), GET_Y_LPARAM(detail));
        return 0;
    case WM_LBUTTONUP:
        context.dragged.reset();
        ReleaseCapture();
        return 0;
    case WM_LBUTTONDBLCLK:
        addPointAt(timeline, context, GET_X_LPARAM(detail), GET_Y_LPARAM(detail));
        return 0;
    case WM_RBUTTONUP:
        deletePointAt(timeline, context, GET_X_LPARAM(detail), GET_Y_LPARAM(detail));
        return 0;
    default:
        return DefSubclassProc(timeline, message, parameter, detail);
    }
}

void prepareAvailability(HWND dialog, ListDialog& list) {
    AvailabilityContext& context = contextOf(list);
    context.dialog = dialog;
    context.list = &list;
    SetWindowSubclass(GetDlgItem(dialog, IDC_TIMELINE), timelineProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(&context));
}

void followAvailability(HWND dialog, ListDialog&) {
    repaintTimeline(dialog);
}

bool availabilityCommand(HWND dialog, ListDialog& list, int control) {
    if (control != IDC_ENTRY_SORT) {
        return false;
    }
    if (takeShownEntry(dialog, list)) {
        // The chosen point stays the chosen one.
        std::vector<AvailabilityPoint>& points = contextOf(list).points;
        const auto chosen =
            list.shown < 0 ? AvailabilityPoint() : points[static_cast<std::size_t>(list.shown)];
        sortByDate(points);
        const auto place = std::find(points.begin(), points.end(), chosen);
        refreshEntries(dialog, list, place == points.end() ? -1 : static_cast<int>(place - points.begin()));
    }
    return true;
}

INT_PTR CALLBACK availabilityProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(pointer);
        const AvailabilityContext& context = contextOf(*dialogContext<ListDialog>(dialog, message, pointer));
        FillRect(item.hDC, &item.rcItem, context.drawing.beigeBrush.get());
        paintTimeline(item.hDC, item.rcItem, context.points, context.drawing);
        return TRUE;
    }
    return handleListDialog(dialog, message, parameter, pointer);
}

} // namespace

bool editAvailability(HWND owner, EditContext& edit, const DrawingObjects& drawing) {
    AvailabilityContext context{
        .drawing = drawing, .points = edit.record.availability, .dragged = {}, .dragScale = {}};
    VectorListModel<AvailabilityPoint> model(context.points, availabilityShape());
    ListDialog list{.model = model,
                    .caption = "Availability",
                    .fullText = "There are already 255 dates, the most that the game counts",
                    .fullCaption = "Availability",
                    .context = &context,
                    .command = availabilityCommand,
                    .prepare = prepareAvailability,
                    .follow = followAvailability};
    if (runDialog(owner, IDD_AVAILABILITY, availabilityProcedure, &list) == 0 ||
        context.points == edit.record.availability) {
        return false;
    }
    edit.record.availability = std::move(context.points);
    return true;
}

} // namespace varrocade
