#pragma once
// What the windows keep of the open record to show it.

#include "app/windows/problems/problem_marks.h"
#include "app/workspace/record/undo_history.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"
#include "view/drawing/view_place.h"
#include "view/painting/painter_win32.h"
#include "view/painting/sheet_painter.h"
#include "view/sheet/data_sheet.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace varrocade {

enum class DragKind { Pan, Move, Turn };

/// The mouse holds something of the drawing.
struct Drag {
    DragKind kind = DragKind::Pan;
    bool hasBegun = false; ///< the mouse went further than a click does
    POINT start{};
    POINT lastPixel{};
    Point grab; ///< from the position of what is moved to where the mouse took hold of it
    double startTurn = 0;
    double startDirection = 0;
    std::optional<RecordState> before; ///< the unit and its unsaved positions before a move
};

struct UnitDisplay {
    DrawList drawing;
    DataSheet sheet;
    std::string checkedContent; ///< the file's bytes that `fileProblems` are of
    std::vector<SheetProblem> fileProblems;
    std::vector<MarkedPart> marks;                       ///< where something is wrong with the open unit
    std::optional<std::vector<std::string>> weaponUsers; ///< that the sheet of a weapon shows
    bool wantsWeaponUsers = false;                       ///< they are to be looked for
    bool hasDrawing = false;
    bool isStale = true;        ///< the record changed since drawing and sheet were made
    bool isDrawingStale = true; ///< the same of the drawing alone
    int scroll = 0;             ///< pixels that the sheet is scrolled down
    SheetLayout sheetLayout;
    Canvas drawingCanvas;
    Canvas sheetCanvas;

    std::optional<Fit> ownFit; ///< the user's own view of the drawing
    Fit shownFit;
    std::vector<double> turns; ///< how far each component is turned for looking at
    UnitPart selected;
    UnitPart movedPart;  ///< the selected part, while it can be put back with one key
    std::string caption; ///< beside the selected part, while it is dragged
    std::string toldName;
    std::optional<Drag> drag;
};

/// The pictures of the units beside the selected one, which are decoded ahead.
struct PicturePrefetch {
    std::vector<std::string> units;    ///< whose files are still to be looked at
    std::vector<PictureItem> pictures; ///< of one of them, still to be decoded
    Fit fit;                           ///< how it will be shown
};

} // namespace varrocade
