#pragma once
// Lays a data sheet out and paints it.

#include "view/painting/paint_device.h"
#include "view/sheet/data_sheet.h"

#include <string>
#include <vector>

namespace varrocade {

/// How a sheet is looked at.
struct SheetOptions {
    std::vector<std::string> bases; ///< the folders that flags and uniforms are looked for in
    int scroll = 0;                 ///< pixels that the sheet is scrolled down
    UnitPart selected = {};
};

/// A part of the unit and where the sheet shows it.
struct SheetPlace {
    PixelRect place; ///< from the top of the sheet
    UnitPart part;
};

/// A line of the bar below the title, which does not scroll either.
struct SheetWarningPlace {
    PixelRect place;
    UnitPart part; ///< none: the section of problems
    std::string field = {};
};

/// A note that a click opens something of.
struct SheetLinkPlace {
    PixelRect place; ///< as `SheetPlace` counts
    std::string text;
};

struct SheetLayout {
    int height = 0;                          ///< pixels of the whole sheet
    int headHeight = 0;                      ///< pixels of its title and bar, which do not scroll
    std::vector<SheetPlace> places;          ///< rows before the sections that they are in
    std::vector<SheetWarningPlace> warnings; ///< the lines of the bar
    std::vector<SheetLinkPlace> links = {};
    PixelRect problems = {}; ///< the section that holds them, as `SheetPlace` counts
};

/// Paints a sheet into `area`, whose ground is there already.
SheetLayout paintSheet(PaintDevice& device, const PixelRect& area, const DataSheet& sheet,
                       const SheetOptions& options);

/// The line of the bar at a pixel of the area, or null.
const SheetWarningPlace* sheetWarningAt(const SheetLayout& layout, PixelPoint pixel);

/// The link at a pixel of the area that a sheet was painted into, scrolled down so far; or null.
const SheetLinkPlace* sheetLinkAt(const SheetLayout& layout, int scroll, PixelPoint pixel);

/// The part at a pixel of the area that a sheet was painted into, scrolled down so far.
UnitPart sheetPartAt(const SheetLayout& layout, int scroll, PixelPoint pixel);

} // namespace varrocade
