#pragma once
// Signs beside what something is wrong with: in the list of files, on the sheet, in the drawing.

#include "data/finding.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"
#include "view/drawing/view_place.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/sheet_painter.h"

#include <windows.h>

#include <vector>

namespace varrocade {

/// A part of the open unit or weapon that has a sign, an error or a warning.
struct MarkedPart {
    UnitPart part;
    Severity severity = Severity::Warning;
    bool operator==(const MarkedPart&) const = default;
};

/// The parts that findings about a unit or weapon are about, each once with the worst of its findings.
std::vector<MarkedPart> markedParts(const SquadRecord& unit, const std::vector<Finding>& findings);
std::vector<MarkedPart> markedParts(const WeaponRecord& weapon, const std::vector<Finding>& findings);

/// How wide and high a sign is, in pixels of 96 dpi.
inline constexpr int ProblemSignSize = 11;

/// A red disc for an error, a yellow triangle for a warning, each with an exclamation mark.
void paintProblemSign(HDC device, const DrawingObjects& objects, POINT centre, Severity severity);

/// Signs in the margin of the rows that show the parts.
void paintSheetMarks(HDC device, const DrawingObjects& objects, const SheetLayout& layout, int scroll,
                     const std::vector<MarkedPart>& marks);

/// Signs at the parts of a drawing.
void paintDrawingMarks(HDC device, const DrawingObjects& objects, const DrawList& drawing, const Fit& fit,
                       const std::vector<MarkedPart>& marks);

} // namespace varrocade
