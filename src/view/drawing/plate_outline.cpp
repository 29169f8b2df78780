#include "view/drawing/plate_outline.h"

#include "data/unit_fields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

namespace varrocade {

namespace {

/// How wide a strip is, as a share of the narrower side's half or of the radius.
constexpr double StripShare = 0.22;
constexpr int Quarters = 4;

/// The plates of the four sides clockwise from the front, the lower ones of each and the upper ones.
struct SidePlates {
    std::string_view lower;
    std::string_view upper;
};
constexpr std::array<SidePlates, Quarters> Sides = {{{field::LowerFront.element, field::UpperFront.element},
                                                     {field::LowerRight.element, field::UpperRight.element},
                                                     {field::LowerRear.element, field::UpperRear.element},
                                                     {field::LowerLeft.element, field::UpperLeft.element}}};

/// The rim of a part at `share` of its size, a quarter of it a side clockwise from the front's left end.
using Rim = std::array<std::vector<Point>, Quarters>;

Rim rectangleRim(double halfWidth, double halfLength, double inset) {
    const double x = halfWidth - inset;
    const double y = halfLength - inset;
    const std::array<Point, Quarters> corners = {{{-x, y}, {x, y}, {x, -y}, {-x, -y}}};
    Rim rim;
    for (std::size_t side = 0; side < Quarters; ++side) {
        rim[side] = {corners[side], corners[(side + 1) % Quarters]};
    }
    return rim;
}

Rim roundRim(double radius) {
    constexpr int steps = 8; // of a side
    constexpr double quarter = std::numbers::pi / 2;
    Rim rim;
    for (std::size_t side = 0; side < Quarters; ++side) {
        for (int step = 0; step <= steps; ++step) {
            const double angle =
                (static_cast<double>(side) - 0.5 + static_cast<double>(step) / steps) * quarter;
            rim[side].push_back({std::sin(angle) * radius, std::cos(angle) * radius});
        }
    }
    return rim;
}

class OutlineBuilder {
public:
    OutlineBuilder(const VehicleRecord& vehicle, std::span<const PlateRange> ranges)
        : vehicle_(vehicle), ranges_(ranges) {}

    PlateOutline build() {
        addKind(ComponentKind::Hull);
        addKind(ComponentKind::Superstructure);
        addKind(ComponentKind::Turret);
        return std::move(outline_);
    }

private:
    void addKind(ComponentKind kind) {
        for (std::size_t i = 0; i < vehicle_.components.size(); ++i) {
            const ComponentRecord& component = vehicle_.components[i];
            if (component.kind != kind) {
                continue;
            }
            index_ = i;
            // A hull has no offset, whatever an old file says.
            centre_ = kind == ComponentKind::Hull ? Point{}
                                                  : Point{static_cast<double>(component.offsetX),
                                                          static_cast<double>(component.offsetY)};
            turn_ = kind == ComponentKind::Turret && component.limitedTraverse ? component.offsetAngle : 0;
            if (kind == ComponentKind::Turret) {
                addRound(component.diameter / 2.0);
            } else {
                addRectangle(component.width / 2.0, component.length / 2.0);
            }
        }
    }

    void addRectangle(double halfWidth, double halfLength) {
        if (halfWidth > 0 && halfLength > 0) {
            const double strip = std::min(halfWidth, halfLength) * StripShare;
            addRims({rectangleRim(halfWidth, halfLength, 0), rectangleRim(halfWidth, halfLength, strip),
                     rectangleRim(halfWidth, halfLength, 2 * strip)});
        }
    }

    void addRound(double radius) {
        if (radius <= 0) {
            return;
        }
        addRims(
            {roundRim(radius), roundRim(radius * (1 - StripShare)), roundRim(radius * (1 - 2 * StripShare))});
        if (const auto mantlet = plateNamed(field::Mantlet.element)) {
            const double half = radius / 2;
            addPatch({{-half, radius}, {-half, radius + half / 2}, {half, radius + half / 2}, {half, radius}},
                     mantlet);
        }
    }

    void addRims(const std::array<Rim, 3>& rims) {
        std::vector<Point> top;
        for (std::size_t side = 0; side < Quarters; ++side) {
            addStrip(rims[0][side], rims[1][side], plateNamed(Sides[side].lower));
            addStrip(rims[1][side], rims[2][side], plateNamed(Sides[side].upper));
            top.insert(top.end(), rims[2][side].begin(), rims[2][side].end() - 1);
        }
        addPatch(std::move(top), std::nullopt);
    }

    void addStrip(const std::vector<Point>& outer, const std::vector<Point>& inner,
                  std::optional<std::size_t> plate) {
        std::vector<Point> corners = outer;
        corners.insert(corners.end(), inner.rbegin(), inner.rend());
        addPatch(std::move(corners), plate);
    }

    [[nodiscard]] std::optional<std::size_t> plateNamed(std::string_view name) const {
        const auto found = std::find_if(ranges_.begin(), ranges_.end(), [&](const PlateRange& range) {
            return range.plate.component == index_ && range.plate.name == name;
        });
        return found == ranges_.end() ? std::nullopt
                                      : std::optional(static_cast<std::size_t>(found - ranges_.begin()));
    }

    /// Turns and moves the corners to where the component stands.
    void addPatch(std::vector<Point> corners, std::optional<std::size_t> plate) {
        const double angle = turn_ * std::numbers::pi / 180;
        for (Point& corner : corners) {
            corner = {centre_.x + corner.x * std::cos(angle) + corner.y * std::sin(angle),
                      centre_.y - corner.x * std::sin(angle) + corner.y * std::cos(angle)};
            cover(corner);
        }
        outline_.patches.push_back({std::move(corners), plate});
    }

    void cover(Point point) {
        if (isFirst_) {
            outline_.least = outline_.greatest = point;
            isFirst_ = false;
        }
        outline_.least = {std::min(outline_.least.x, point.x), std::min(outline_.least.y, point.y)};
        outline_.greatest = {std::max(outline_.greatest.x, point.x), std::max(outline_.greatest.y, point.y)};
    }

    const VehicleRecord& vehicle_;
    std::span<const PlateRange> ranges_;
    PlateOutline outline_;
    std::size_t index_ = 0; ///< of the component that is being added, with its place and turn
    Point centre_;
    double turn_ = 0;
    bool isFirst_ = true;
};

/// Whether a point is within a patch: a line from it to the right crosses the rim an odd number of times.
bool isWithin(const std::vector<Point>& corners, Point point) {
    bool within = false;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point& a = corners[i];
        const Point& b = corners[(i + 1) % corners.size()];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
            within = !within;
        }
    }
    return within;
}

} // namespace

PlateOutline plateOutline(const VehicleRecord& vehicle, std::span<const PlateRange> ranges) {
    return OutlineBuilder(vehicle, ranges).build();
}

std::optional<std::size_t> plateAt(const PlateOutline& outline, Point point) {
    const auto top = std::find_if(outline.patches.rbegin(), outline.patches.rend(),
                                  [&](const OutlinePatch& patch) { return isWithin(patch.corners, point); });
    return top == outline.patches.rend() ? std::nullopt : top->plate;
}

} // namespace varrocade
