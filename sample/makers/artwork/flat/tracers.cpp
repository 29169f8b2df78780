#include "canvas.h"
#include "flat/flat.h"

#include <array>

namespace artwork {

namespace {

struct Release {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using Gradient = std::unique_ptr<cairo_pattern_t, Release>;

void stop(const Gradient& gradient, double at, Rgb colour, double alpha) {
    cairo_pattern_add_color_stop_rgba(gradient.get(), at, colour.r, colour.g, colour.b, alpha);
}

/// A glow that is brightest in the middle of its width and fades from `head` down to `tail`.
void streak(Canvas& c, double x, double head, double tail, double halfWidth, Rgb core, Rgb glow) {
    cairo_t* k = c.context();
    constexpr int layers = 6;
    for (int i = 0; i < layers; ++i) {
        const double part = 1.0 - static_cast<double>(i) / layers;
        const Rgb colour = mix(core, glow, part);
        const Gradient gradient(cairo_pattern_create_linear(0.0, head, 0.0, tail));
        stop(gradient, 0.0, colour, 0.0);
        stop(gradient, 0.06, colour, 0.55);
        stop(gradient, 0.25, colour, 0.40);
        stop(gradient, 1.0, colour, 0.0);
        cairo_set_source(k, gradient.get());
        const double w = halfWidth * part;
        cairo_new_path(k);
        cairo_move_to(k, x, head);
        cairo_curve_to(k, x + w * 1.2, head, x + w, lerp(head, tail, 0.3), x + w * 0.2, tail);
        cairo_line_to(k, x - w * 0.2, tail);
        cairo_curve_to(k, x - w, lerp(head, tail, 0.3), x - w * 1.2, head, x, head);
        cairo_fill(k);
    }
}

/// A round body lit from the left: a rectangle with a rounded or pointed head.
void body(Canvas& c, double x, double top, double bottom, double halfWidth, double nose, Rgb colour) {
    cairo_t* k = c.context();
    const Gradient gradient(cairo_pattern_create_linear(x - halfWidth, 0.0, x + halfWidth, 0.0));
    stop(gradient, 0.0, scaled(colour, 0.7), 1.0);
    stop(gradient, 0.35, mix(colour, {1, 1, 1}, 0.25), 1.0);
    stop(gradient, 1.0, scaled(colour, 0.45), 1.0);
    cairo_set_source(k, gradient.get());
    cairo_new_path(k);
    cairo_move_to(k, x - halfWidth, bottom);
    cairo_line_to(k, x - halfWidth, top + nose);
    cairo_curve_to(k, x - halfWidth, top + nose * 0.4, x - halfWidth * 0.4, top, x, top);
    cairo_curve_to(k, x + halfWidth * 0.4, top, x + halfWidth, top + nose * 0.4, x + halfWidth, top + nose);
    cairo_line_to(k, x + halfWidth, bottom);
    cairo_close_path(k);
    cairo_fill(k);
}

void fins(Canvas& c, double x, double top, double bottom, double halfWidth, double inner, Rgb colour) {
    for (const double side : {-1.0, 1.0}) {
        c.polygon({{x + side * inner, top},
                   {x + side * halfWidth, lerp(top, bottom, 0.5)},
                   {x + side * halfWidth, bottom},
                   {x + side * inner, bottom}},
                  scaled(colour, side < 0 ? 1.0 : 0.7));
    }
}

void flame(Canvas& c, double x, double top, double bottom, double halfWidth) {
    streak(c, x, top, bottom, halfWidth, hex(0xFFF6CC), hex(0xF07A22));
    streak(c, x, top, lerp(top, bottom, 0.6), halfWidth * 0.6, hex(0xFFFFFF), hex(0xFFD468));
}

void white(Canvas& c) {
    streak(c, 4, 2, 47, 2.6, hex(0xFFFFF0), hex(0xF4D66A));
}

void red(Canvas& c) {
    streak(c, 4, 2, 47, 2.6, hex(0xFFE9D8), hex(0xEE3524));
}

void green(Canvas& c) {
    streak(c, 4, 2, 47, 2.6, hex(0xF2FFE4), hex(0x44D640));
}

void shell(Canvas& c) {
    streak(c, 6, 4, 63, 5.2, hex(0xFFF4D0), hex(0xF0781E));
    body(c, 6, 1, 13, 2.4, 7, hex(0x6B5A44));
}

void grenade(Canvas& c) {
    flame(c, 8, 30, 47, 3.4);
    body(c, 8, 1, 16, 4.2, 9, hex(0x5E6440));
    c.rect(7, 16, 2, 16, hex(0x4A4A44));
    fins(c, 8, 25, 32, 5.6, 0.8, hex(0x6A6A60));
}

void missile(Canvas& c) {
    flame(c, 8, 38, 63, 4.2);
    body(c, 8, 1, 40, 3.0, 8, hex(0x6C7052));
    fins(c, 8, 28, 40, 7.4, 2.6, hex(0x585C44));
    fins(c, 8, 9, 13, 5.2, 2.6, hex(0x585C44));
    c.rect(5, 16, 6, 1.6, hex(0xC9A94E));
}

void rocket(Canvas& c) {
    flame(c, 7, 34, 79, 5.0);
    body(c, 7, 1, 36, 3.2, 12, hex(0x5B6048));
    fins(c, 7, 29, 37, 6.4, 2.8, hex(0x4A4E3A));
}

void bomb(Canvas& c) {
    fins(c, 12, 44, 62, 11.0, 3.0, hex(0x4C5046));
    body(c, 12, 1, 40, 8.6, 16, hex(0x5A6050));
    c.polygon({{3.4, 38}, {20.6, 38}, {15.2, 58}, {8.8, 58}}, hex(0x4C5146));
    c.rect(3.4, 18, 17.2, 2, hex(0xC9A94E));
    c.rect(4.2, 58, 15.6, 4, hex(0x3E423A));
}

void mortarBomb(Canvas& c) {
    c.rect(5, 18, 2, 10, hex(0x45463E));
    fins(c, 6, 24, 31, 4.8, 0.8, hex(0x5A5C50));
    body(c, 6, 1, 19, 4.4, 10, hex(0x5E6440));
    c.disc(6, 2.2, 1.1, hex(0xB08A42));
}

struct Tracer {
    std::string_view path;
    int width;
    int height;
    void (*draw)(Canvas&);
};

constexpr std::array<Tracer, 9> Tracers{{{"Tracers/tracer_white.png", 8, 48, white},
                                         {"Tracers/tracer_red.png", 8, 48, red},
                                         {"Tracers/tracer_green.png", 8, 48, green},
                                         {"Tracers/tracer_shell.png", 12, 64, shell},
                                         {"Tracers/tracer_rpg.png", 16, 48, grenade},
                                         {"Tracers/tracer_missile.png", 16, 64, missile},
                                         {"Tracers/tracer_rocket.png", 14, 80, rocket},
                                         {"Tracers/tracer_bomb.png", 24, 64, bomb},
                                         {"Tracers/tracer_mortar.png", 12, 32, mortarBomb}}};

} // namespace

void drawTracers(Album& album) {
    for (const Tracer& tracer : Tracers) {
        if (album.wants(tracer.path)) {
            Canvas canvas(tracer.width, tracer.height, 1.0);
            tracer.draw(canvas);
            album.put(tracer.path, canvas.picture());
        }
    }
}

} // namespace artwork
