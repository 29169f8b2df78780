#pragma once
// The picture and the data sheet of the open record in the main window.

#include "view/painting/painter_win32.h"
#include "view/painting/sheet_painter.h"
#include "view/sheet/data_sheet.h"

#include <windows.h>

#include <memory>
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
    std::optional<SquadRecord> before; ///< the unit and its unsaved positions before a move
    bool weaponPosChanged = false;
    bool exhaustPosChanged = false;
};

struct UnitDisplay {
    DrawList drawing;
    DataSheet sheet;
    std::optional<std::vector<std::string>> weaponUsers; ///< that the sheet of a weapon shows
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

/// The drawing of a unit as the present options show it; `turns` as in `UnitDisplay`.
DrawList drawingOf(const SquadRecord& unit, const std::vector<double>& turns);

/// How a drawing that the user has not zoomed is shown in a window of this size.
Fit wholeFit(const DrawList& drawing, SIZE size);

/// Paints the drawing into the whole of its window.
void paintUnit(HDC device, const RECT& client);

/// Paints the data sheet into the whole of its window.
void paintSheetArea(HDC device, const RECT& client);

/// Puts the units that carry the open weapon on its sheet, now that all are known; false when they are there.
bool updateWeaponUsers();

/// Scrolls the sheet by pixels, as far as there is something to see.
void scrollSheet(int pixels, int visibleHeight);

/// Scrolls the sheet so far that it shows the selected part, where it has a row for it.
void showSelectedOnSheet(int visibleHeight);

/// The part at a pixel of the sheet's window.
UnitPart sheetPartAt(POINT pixel);

} // namespace varrocade
