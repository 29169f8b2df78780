#include "view/drawing/part_at.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

/// The point in the frame of a turned rectangle around `centre`, as shares of its size from its upper left
/// corner.
Point shareOf(Point point, Point centre, double width, double height, double angle) {
    const Point offset = turned(point - centre, -angle);
    return {offset.x / width + 0.5, 0.5 - offset.y / height};
}

bool isWithin(Point share) {
    return share.x >= 0 && share.x <= 1 && share.y >= 0 && share.y <= 1;
}

struct Covers {
    Point point;
    PictureSizes& sizes;

    bool operator()(const PictureItem& item) const {
        const Point share = shareOf(point, item.centre, item.width, item.height, item.angle);
        return isWithin(share) && sizes.isSolidAt(item.path, share.x, share.y);
    }
    bool operator()(const PlaceholderItem& item) const {
        return isWithin(shareOf(point, item.centre, item.width, item.height, item.angle));
    }
    bool operator()(const OutlineItem& item) const {
        return isWithin(shareOf(point, item.centre, item.width, item.height, 0));
    }
    bool operator()(const LabelItem&) const { return false; }
    bool operator()(const LineItem&) const { return false; }
    bool operator()(const SectorItem&) const { return false; }
    bool operator()(const MarkItem&) const { return false; }
    /// A ray to the right crosses the edges of a polygon an odd number of times when it begins inside.
    bool operator()(const ShapeItem& item) const {
        bool isInside = false;
        for (std::size_t i = 0; i < item.corners.size(); ++i) {
            const Point a = item.corners[i];
            const Point b = item.corners[(i + 1) % item.corners.size()];
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
                isInside = !isInside;
            }
        }
        return isInside;
    }
};

UnitPart partOf(const DrawItem& item) {
    return std::visit([](const auto& one) { return one.part; }, item);
}

} // namespace

UnitPart partAt(const DrawList& list, Point point, double reach, PictureSizes& sizes) {
    UnitPart nearest;
    double least = reach;
    for (const DrawItem& item : list.items) {
        if (const auto* mark = std::get_if<MarkItem>(&item)) {
            const Point away = point - mark->centre;
            const double distance = std::hypot(away.x, away.y);
            if (mark->part && distance <= least) {
                least = distance;
                nearest = mark->part;
            }
        }
    }
    if (nearest) {
        return nearest;
    }
    const auto top = std::find_if(list.items.rbegin(), list.items.rend(), [&](const DrawItem& item) {
        return partOf(item) && std::visit(Covers{point, sizes}, item);
    });
    return top == list.items.rend() ? UnitPart{} : partOf(*top);
}

std::vector<const DrawItem*> itemsOf(const DrawList& list, const UnitPart& part) {
    std::vector<const DrawItem*> items;
    for (const DrawItem& item : list.items) {
        if (part && isSameShown(partOf(item), part)) {
            items.push_back(&item);
        }
    }
    return items;
}

} // namespace varrocade
