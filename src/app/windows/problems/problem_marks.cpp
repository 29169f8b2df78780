#include "app/windows/problems/problem_marks.h"

#include "view/drawing/part_at.h"
#include "view/painting/gdi_object_win32.h"
#include "view/sheet/unit_problems.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <variant>

namespace varrocade {

namespace {

constexpr COLORREF ErrorColour = RGB(205, 30, 30);
constexpr COLORREF WarningColour = RGB(250, 200, 40);
/// From the middle of a part's picture, in pixels of 96 dpi: the part's own marks stay in sight.
constexpr int BesidePart = 12;

/// Where an item of a drawing is, whatever it is.
template <typename Item>
Point placeOf(const Item& item) {
    if constexpr (requires { item.centre; }) {
        return item.centre;
    } else if constexpr (requires { item.from; }) {
        return item.from;
    } else if constexpr (requires { item.top; }) {
        return item.top;
    } else {
        return item.corners.front();
    }
}

template <typename Record>
std::vector<MarkedPart> partsOf(const Record& record, const std::vector<Finding>& findings) {
    std::vector<MarkedPart> marks;
    for (const Finding& finding : findings) {
        if (finding.severity == Severity::Note) {
            continue;
        }
        const UnitPart part = partOfField(record, finding.field);
        const auto found = std::find_if(marks.begin(), marks.end(),
                                        [&](const MarkedPart& mark) { return isSameShown(mark.part, part); });
        if (found == marks.end()) {
            marks.push_back({part, finding.severity});
        } else {
            found->severity = std::max(found->severity, finding.severity);
        }
    }
    return marks;
}

} // namespace

std::vector<MarkedPart> markedParts(const SquadRecord& unit, const std::vector<Finding>& findings) {
    return partsOf(unit, findings);
}

std::vector<MarkedPart> markedParts(const WeaponRecord& weapon, const std::vector<Finding>& findings) {
    return partsOf(weapon, findings);
}

void paintProblemSign(HDC device, const DrawingObjects& objects, POINT centre, Severity severity) {
    const bool isError = severity == Severity::Error;
    const int half = objects.scaled(ProblemSignSize) / 2;
    const GdiObject<HBRUSH> brush(CreateSolidBrush(isError ? ErrorColour : WarningColour));
    const GdiObject<HPEN> rim(CreatePen(PS_SOLID, 1, isError ? RGB(120, 0, 0) : RGB(120, 90, 0)));
    const GdiObject<HPEN> stroke(
        CreatePen(PS_SOLID, std::max(1, objects.scaled(2)), isError ? RGB(255, 255, 255) : RGB(60, 40, 0)));
    const Selection selectedBrush(device, brush.get());
    {
        const Selection pen(device, rim.get());
        if (isError) {
            Ellipse(device, centre.x - half, centre.y - half, centre.x + half + 1, centre.y + half + 1);
        } else {
            const std::array<POINT, 3> corners = {{{centre.x, centre.y - half - 1},
                                                   {centre.x + half + 1, centre.y + half},
                                                   {centre.x - half - 1, centre.y + half}}};
            Polygon(device, corners.data(), static_cast<int>(corners.size()));
        }
    }
    const Selection pen(device, stroke.get());
    MoveToEx(device, centre.x, centre.y - half / 2, nullptr);
    LineTo(device, centre.x, centre.y + 1);
    MoveToEx(device, centre.x, centre.y + half / 2, nullptr);
    LineTo(device, centre.x, centre.y + half / 2 + 1);
}

void paintSheetMarks(HDC device, const DrawingObjects& objects, const SheetLayout& layout, int scroll,
                     const std::vector<MarkedPart>& marks) {
    for (const MarkedPart& mark : marks) {
        // The first place is that of the part's own row; sections come behind their rows.
        const auto found =
            std::find_if(layout.places.begin(), layout.places.end(),
                         [&](const SheetPlace& place) { return isSameShown(place.part, mark.part); });
        if (found == layout.places.end()) {
            continue;
        }
        const int lineHalf = objects.scaled(ProblemSignSize) / 2 + objects.scaled(2);
        const POINT centre{found->place.left - objects.scaled(ProblemSignSize) / 2 - objects.scaled(1),
                           found->place.top - scroll + lineHalf};
        if (centre.y - lineHalf >= layout.headHeight) {
            paintProblemSign(device, objects, centre, mark.severity);
        }
    }
}

void paintDrawingMarks(HDC device, const DrawingObjects& objects, const DrawList& drawing, const Fit& fit,
                       const std::vector<MarkedPart>& marks) {
    const int beside = objects.scaled(BesidePart);
    for (const MarkedPart& mark : marks) {
        const std::vector<const DrawItem*> items = itemsOf(drawing, mark.part);
        if (!items.empty()) {
            const Point place = std::visit([](const auto& item) { return placeOf(item); }, *items.back());
            const POINT centre{static_cast<LONG>(std::lround(fit.screenX(place.x))) + beside,
                               static_cast<LONG>(std::lround(fit.screenY(place.y))) - beside};
            paintProblemSign(device, objects, centre, mark.severity);
        }
    }
}

} // namespace varrocade
