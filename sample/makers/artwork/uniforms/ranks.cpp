#include "develop.h"
#include "parts/armour.h"
#include "uniforms/uniforms.h"

#include <array>
#include <string>

namespace artwork {

namespace {

enum class Badge : std::uint8_t { Strap, ChevronUp, ChevronDown, Tab, Cuff };

struct RankStyle {
    std::string_view name;
    Badge badge = Badge::Strap;
    Rgb ground{};
    Rgb edge{};
    Rgb mark{};
    bool stars = false; ///< grades are counted in stars rather than bars
    bool braid = false; ///< non-commissioned grades carry braid around the edge
};

constexpr int Grades = 5;

constexpr std::array<RankStyle, 16> Styles{{
    {"uniform_ranks_american", Badge::ChevronUp, hex(0x2B2E27), hex(0x2B2E27), hex(0x9C9460)},
    {"uniform_ranks_british", Badge::ChevronDown, hex(0x5E583D), hex(0x5E583D), hex(0xDCD8C6)},
    {"uniform_ranks_chinese", Badge::Tab, hex(0x35538A), hex(0xC9B25C), hex(0xD9D4C4), true},
    {"uniform_ranks_finnish", Badge::Tab, hex(0x2F5A44), hex(0x9AA09A), hex(0xC9B25C)},
    {"uniform_ranks_french", Badge::Cuff, hex(0x7A6A45), hex(0x7A6A45), hex(0xC9A94E)},
    {"uniform_ranks_german", Badge::Strap, hex(0x47503F), hex(0xD6D2C4), hex(0xC8C5BA), true, true},
    {"uniform_ranks_german_1918", Badge::Strap, hex(0x6C7262), hex(0xA2342E), hex(0xC9B25C), true, true},
    {"uniform_ranks_hungarian", Badge::Tab, hex(0x9A2E2A), hex(0x5C6A44), hex(0xE0DCD0), true},
    {"uniform_ranks_italian", Badge::ChevronDown, hex(0x62685A), hex(0x62685A), hex(0xB8352E)},
    {"uniform_ranks_japanese", Badge::Tab, hex(0xA8302E), hex(0xA8302E), hex(0xE0C050), true},
    {"uniform_ranks_polish", Badge::Strap, hex(0x6A6B4C), hex(0x6A6B4C), hex(0xD8D5C8)},
    {"uniform_ranks_romanian", Badge::Strap, hex(0x7A6E4A), hex(0x7A6E4A), hex(0xD9B84A)},
    {"uniform_ranks_russian", Badge::Strap, hex(0x6F6A48), hex(0xA2342E), hex(0xA2342E)},
    {"uniform_ranks_russian_1985", Badge::Strap, hex(0xA8302E), hex(0xA8302E), hex(0xD9B84A)},
    {"uniform_ranks_russian_modern", Badge::Strap, hex(0x5B5F49), hex(0x4A4E3B), hex(0x2C2E26)},
    {"uniform_ranks_ukrainian", Badge::Strap, hex(0x6A7050), hex(0x4C523A), hex(0xC9B25C)},
}};

Paint thread(Rgb colour) {
    return {.colour = colour, .gloss = 0.12, .dirt = 0.3};
}

void raisedStar(Relief& r, Vec2 centre, double radius, Rgb colour) {
    std::array<Vec2, 8> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = centre + bearing(static_cast<double>(i) * 45.0) * (i % 2 == 0 ? radius : radius * 0.62);
    }
    r.add(Shape::polygon(points), raise(0.5).rounded(0.3, 0.3),
          {.colour = colour, .gloss = 0.5, .dirt = 0.2});
}

void strap(Relief& r, const RankStyle& style, int grade) {
    const Shape outline = Shape::polygon({{-1.5, -3.5}, {1.5, -3.5}, {1.5, 2.7}, {0.0, 3.6}, {-1.5, 2.7}});
    r.add(outline, flat(1.0).rounded(0.25, 0.3), thread(style.edge));
    r.add(Shape::polygon({{-1.22, -3.3}, {1.22, -3.3}, {1.22, 2.55}, {0.0, 3.25}, {-1.22, 2.55}}),
          flat(1.15).rounded(0.15, 0.15), thread(style.ground));
    if (style.braid && grade >= 2 && grade < 4) {
        r.add(Shape::line({{-0.9, -3.2}, {-0.9, 2.3}, {0, 2.8}, {0.9, 2.3}, {0.9, -3.2}}, 0.45),
              raise(0.3).rounded(0.2, 0.2), thread(style.mark));
    }
    if (style.braid && grade == 1) {
        r.add(Shape::line({{-1.1, -2.6}, {1.1, -2.6}}, 0.5), raise(0.3).rounded(0.2, 0.2),
              thread(style.mark));
    }
    if (grade == 4) {
        for (const double x : {-0.5, 0.5}) {
            r.add(Shape::capsule({x, -3.2}, {x, 2.4}, 0.5), raise(0.25).rounded(0.25, 0.2),
                  thread(style.mark));
        }
        raisedStar(r, {0, -0.6}, 0.75, hex(0xD9B84A));
        raisedStar(r, {0, 1.0}, 0.75, hex(0xD9B84A));
        return;
    }
    if (style.stars) {
        for (int i = 0; i < grade - 2; ++i) {
            raisedStar(r, {0, 0.0 - i * 1.4}, 0.6, hex(0xD5D2C8));
        }
        if (grade == 3) {
            raisedStar(r, {0, 1.2}, 0.6, hex(0xD5D2C8));
        }
        return;
    }
    for (int i = 0; i < grade; ++i) {
        const double y = -0.6 + i * 0.95;
        r.add(Shape::rect(-1.2, y, 1.2, y + (grade == 3 && i == 2 ? 0.9 : 0.5)),
              raise(0.3).rounded(0.15, 0.15), thread(style.mark));
    }
}

void chevron(Relief& r, double y, double way, Rgb colour) {
    r.add(Shape::polygon({{-2.6, y},
                          {0, y + way * 1.5},
                          {2.6, y},
                          {2.6, y + 0.75},
                          {0, y + way * 1.5 + 0.75},
                          {-2.6, y + 0.75}}),
          raise(0.4).rounded(0.2, 0.25), thread(colour));
}

void chevrons(Relief& r, const RankStyle& style, int grade, double way) {
    r.add(Shape::roundRect(-3.1, -3.4, 3.1, 3.4, 0.5), flat(1.0).rounded(0.3, 0.3), thread(style.ground));
    const int count = std::min(grade + 1, 3);
    for (int i = 0; i < count; ++i) {
        chevron(r, 0.4 - i * 1.1 - (way < 0 ? -0.9 : 0.3), way, style.mark);
    }
    if (grade >= 3 && way > 0) {
        for (int i = 0; i < grade - 2; ++i) {
            r.add(Shape::band({0, 1.2}, 3.2 + i * 0.7, 3.7 + i * 0.7, 138.0, 222.0),
                  raise(0.4).rounded(0.2, 0.2), thread(style.mark));
        }
    } else if (grade >= 3) {
        raisedStar(r, {0, 2.3}, 0.8, hex(0xD9B84A));
        if (grade == 4) {
            raisedStar(r, {-1.9, 2.3}, 0.6, hex(0xD9B84A));
            raisedStar(r, {1.9, 2.3}, 0.6, hex(0xD9B84A));
        }
    }
}

void tab(Relief& r, const RankStyle& style, int grade) {
    r.add(Shape::roundRect(-3.2, -1.9, 3.2, 1.9, 0.3), flat(1.0).rounded(0.25, 0.3), thread(style.edge));
    r.add(Shape::roundRect(-2.85, -1.55, 2.85, 1.55, 0.2), flat(1.15).rounded(0.15, 0.15),
          thread(style.ground));
    if (!style.stars) {
        for (int i = 0; i <= grade && i < 4; ++i) {
            r.add(Shape::line({{-2.4 + i * 1.2, -1.2}, {-1.8 + i * 1.2, 0.0}, {-2.4 + i * 1.2, 1.2}}, 0.42),
                  raise(0.35).rounded(0.2, 0.2), thread(style.mark));
        }
        if (grade == 4) {
            raisedStar(r, {2.2, 0}, 0.7, style.mark);
        }
        return;
    }
    if (grade >= 3) {
        for (const double y : grade == 4 ? std::array{-0.9, 0.9} : std::array{0.0, 0.0}) {
            r.add(Shape::rect(-2.8, y - 0.32, 2.8, y + 0.32), raise(0.25).rounded(0.15, 0.15),
                  thread(style.mark));
        }
    }
    const int count = grade % 3 + 1;
    for (int i = 0; i < count; ++i) {
        star(r, {-1.7 + i * 1.7, 0}, 0.78, grade >= 3 ? hex(0xF0EDE2) : style.mark, 1.0);
    }
}

void cuff(Relief& r, const RankStyle& style, int grade) {
    r.add(Shape::roundRect(-3.2, -3.2, 3.2, 3.2, 0.3), flat(1.0).rounded(0.3, 0.3), thread(style.ground));
    const int count = grade < 2 ? grade + 1 : grade - 1;
    for (int i = 0; i < count; ++i) {
        const double y = -2.4 + i * 1.4;
        const Rgb colour = grade < 2 ? hex(0xA2342E) : style.mark;
        r.add(Shape::polygon({{-2.9, y},
                              {2.9, y + (grade < 4 ? 2.6 : 0.0)},
                              {2.9, y + (grade < 4 ? 3.2 : 0.6)},
                              {-2.9, y + 0.6}}),
              raise(0.4).rounded(0.2, 0.25), thread(colour));
    }
}

void drawStrip(Relief& r, const RankStyle& style) {
    for (int grade = 0; grade < Grades; ++grade) {
        const auto placed = r.place({.x = (grade - 2) * 8.0});
        switch (style.badge) {
        case Badge::Strap:
            strap(r, style, grade);
            break;
        case Badge::ChevronUp:
            chevrons(r, style, grade, 1.0);
            break;
        case Badge::ChevronDown:
            chevrons(r, style, grade, -1.0);
            break;
        case Badge::Tab:
            tab(r, style, grade);
            break;
        case Badge::Cuff:
            cuff(r, style, grade);
            break;
        }
    }
}

} // namespace

void drawRanks(Album& album) {
    for (const RankStyle& style : Styles) {
        const std::string path = "Uniforms/" + std::string(style.name) + ".png";
        if (album.wants(path)) {
            Relief relief(160, 32, 4.0);
            drawStrip(relief, style);
            album.put(path,
                      develop(relief, {.base = style.ground, .dustAmount = 0.03, .wear = 0.0, .fade = 0.05},
                              {.shadowLength = 3.0, .rim = 0.1}));
        }
    }
}

} // namespace artwork
