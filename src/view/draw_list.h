#pragma once
// What the drawing of a unit consists of, computed without any device: a thin painter puts it on the screen.
// Coordinates are centimetres from the centre of the hull, x to the right, y towards the front; angles are
// degrees clockwise seen from above, 0 straight ahead.

#include "data/category.h"
#include "data/unit_record.h"
#include "platform/png_size.h"

#include <cstddef>
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

/// The colours of the drawing; the painter has a pen for each.
enum class Ink { Black, White, Red, Green, PaleGreen, Yellow, Blue };

/// A picture file, stretched to `width` by `height` around its centre, then turned.
struct PictureItem {
    std::string path;
    Point centre;
    double width = 0;
    double height = 0;
    double angle = 0;
};

/// Stands where a picture is missing: a labelled outline of the size that the picture would have.
struct PlaceholderItem {
    std::string label;
    Point centre;
    double width = 0;
    double height = 0;
    double angle = 0;
    bool isRound = false;
};

/// The outline of a part that has no picture of its own.
struct OutlineItem {
    Point centre;
    double width = 0;
    double height = 0;
};

struct LineItem {
    Point from;
    Point to;
    Ink ink = Ink::Black;
};

/// A mark of a fixed size on the screen, whatever the scale.
struct MarkItem {
    enum class Shape { Exhaust, SmokeDischarger };
    Shape shape = Shape::Exhaust;
    Point centre;
    std::optional<double> direction; ///< an arrow in this direction
};

using DrawItem = std::variant<PictureItem, PlaceholderItem, OutlineItem, LineItem, MarkItem>;

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
};

/// Where the pictures come from and how the unit is shown.
struct DrawOptions {
    /// The folders that "Images\" is looked for in, in order; each ends in a backslash. A mod's comes before
    /// the game's.
    std::vector<std::string> bases;
    bool showDestroyed = false;
};

/// The drawing of a vehicle. All its pictures are drawn at one scale, the one at which the hull's picture is
/// as long as the hull.
DrawList drawVehicle(const VehicleRecord& vehicle, const DrawOptions& options, PictureSizes& sizes);

/// The drawing of a heavy weapon: its base and the gun on it.
DrawList drawHeavyWeapon(const HeavyWeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes);

/// The drawing of an aircraft with its rotors.
DrawList drawAircraft(const AircraftRecord& aircraft, const DrawOptions& options, PictureSizes& sizes);

/// Where the drawing of `list` goes in an area of the screen: a scale at which a metre is a whole number of
/// pixels, and the pixel of the point (0, 0).
struct Fit {
    int pixelsPerMetre = 100;
    int originX = 0;
    int originY = 0;

    /// The pixel of a point; y grows downwards on the screen.
    [[nodiscard]] double screenX(double x) const { return originX + x * pixelsPerMetre / 100; }
    [[nodiscard]] double screenY(double y) const { return originY - y * pixelsPerMetre / 100; }
    [[nodiscard]] double length(double centimetres) const { return centimetres * pixelsPerMetre / 100; }
};

/// Fits a drawing into an area of `width` by `height` pixels with `margin` pixels left free on each side.
Fit fitInto(const DrawList& list, int width, int height, int margin);

} // namespace varrocade
