#pragma once
// What the drawing of a unit consists of, computed without any device: a thin painter puts it on the screen.
// Coordinates are centimetres from the centre of the hull, x to the right, y towards the front; angles are
// degrees clockwise seen from above, 0 straight ahead.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "platform/png_size.h"
#include "view/drawing/unit_part.h"
#include "weapons/weapon_catalogue.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace varrocade {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// A colour of 8 bits a channel.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

/// The colours of the drawing; the painter has a pen for each.
enum class Ink { Black, White, Red, Yellow, Blue };

/// A picture file, stretched to `width` by `height` around its centre, then turned.
struct PictureItem {
    std::string path;
    Point centre;
    double width = 0;
    double height = 0;
    double angle = 0;
    UnitPart part = {};
    /// The diameter of what the picture shows around its centre, where most of the picture is empty;
    /// otherwise 0.
    double roundSize = 0;
};

/// Stands where a picture is missing: a labelled outline of the size that the picture would have.
struct PlaceholderItem {
    std::string label;
    Point centre;
    double width = 0;
    double height = 0;
    double angle = 0;
    bool isRound = false;
    UnitPart part = {};
};

/// The outline of a part that has no picture of its own.
struct OutlineItem {
    Point centre;
    double width = 0;
    double height = 0;
    UnitPart part = {};
};

struct LineItem {
    Point from;
    Point to;
    Ink ink = Ink::Black;
    UnitPart part = {};
};

/// The sector that something may be turned in, clockwise from one angle to another.
struct SectorItem {
    Point centre;
    double radius = 0;
    double from = 0;
    double to = 0;
    UnitPart part = {};
};

/// A mark of a fixed size on the screen, whatever the scale.
struct MarkItem {
    enum class Shape { Exhaust, SmokeDischarger, Weapon, CrewMan };
    Shape shape = Shape::Exhaust;
    Point centre;
    std::optional<double> direction = {}; ///< an arrow in this direction
    UnitPart part = {};
    double elevation = 0;    ///< how far the arrow points up from the ground, which makes it shorter
    std::string letter = {}; ///< inside the mark
};

/// Words of a fixed size on the screen below a point, `width` wide before they are broken.
struct LabelItem {
    std::string text;
    Point top;
    double width = 0;
    UnitPart part = {};
    bool isBold = false;
};

/// A filled shape: a polygon.
struct ShapeItem {
    std::vector<Point> corners;
    Colour fill;
    UnitPart part = {};
};

using DrawItem = std::variant<PictureItem, PlaceholderItem, OutlineItem, LineItem, SectorItem, MarkItem,
                              LabelItem, ShapeItem>;

struct DrawList {
    std::vector<DrawItem> items; ///< from bottom to top
    /// What the items cover.
    Point least;
    Point greatest;
    /// The pictures that the unit names and that are not there, by the path where they were looked for first.
    std::vector<std::string> missingPictures;
};

/// Finds out the sizes of picture files, and whether they are there at all.
class PictureSizes {
public:
    PictureSizes() = default;
    PictureSizes(const PictureSizes&) = delete;
    PictureSizes& operator=(const PictureSizes&) = delete;
    virtual ~PictureSizes() = default;
    /// Nothing when there is no such picture.
    virtual std::optional<PictureSize> sizeOf(const std::string& path) = 0;
    /// Whether the picture shows something at a place, given as shares of its width and height from its upper
    /// left corner.
    virtual bool isSolidAt(const std::string& path, double x, double y) = 0;
};

/// Where the pictures come from and how the unit is shown.
struct DrawOptions {
    /// The folders that "Images\" is looked for in, in order; each ends in a backslash. A mod's comes before
    /// the game's.
    std::vector<std::string> bases;
    bool showDestroyed = false;
    /// Marks for weapons, exhaust pipes, dischargers and crew, and the sectors of traverse.
    bool showMarks = true;
    /// How far each component is turned from its rest, for looking at.
    std::vector<double> turns = {};
};

/// The drawing of a vehicle. All its pictures are drawn at one scale, the one at which the hull's picture is
/// as long as the hull.
DrawList drawVehicle(const VehicleRecord& vehicle, const DrawOptions& options, PictureSizes& sizes);

/// The drawing of a heavy weapon: its base and the gun on it.
DrawList drawHeavyWeapon(const HeavyWeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes);

/// The drawing of an aircraft with its rotors.
DrawList drawAircraft(const AircraftRecord& aircraft, const DrawOptions& options, PictureSizes& sizes);

/// Adds the men of a squad in rows below what is drawn already, each with his weapons and grenades to scale.
void addMen(DrawList& list, const SquadRecord& unit, const WeaponCatalogue& catalogue,
            const DrawOptions& options, PictureSizes& sizes);

/// The drawing of a weapon with its tracer and its rounds.
DrawList drawWeapon(const WeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes);

} // namespace varrocade
