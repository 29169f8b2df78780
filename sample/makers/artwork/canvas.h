#pragma once

#include "picture.h"

#include <cairo.h>
#include <initializer_list>
#include <memory>

namespace artwork {

/// A flat drawing area, x to the right, y down, in units of the caller's choice.
class Canvas {
public:
    /// A transparent area of so many pixels; one unit is `scale` pixels.
    Canvas(int pixelWidth, int pixelHeight, double scale);

    void colour(Rgb colour, double alpha = 1.0);
    void rect(double x, double y, double width, double height, Rgb fill);
    void disc(double x, double y, double radius, Rgb fill);
    void polygon(std::initializer_list<Vec2> points, Rgb fill);
    void line(Vec2 from, Vec2 to, double width, Rgb stroke);
    /// A star with its first point at a bearing; `inner` is the share of the inner radius.
    void star(Vec2 centre, double radius, Rgb fill, double angle = 0.0, int points = 5, double inner = 0.382);
    /// A crescent: a disc less another one shifted.
    void crescent(Vec2 centre, double radius, double cut, Vec2 shift, Rgb fill);
    /// Limits what follows to a rectangle, until the canvas is asked to stop.
    void clip(double x, double y, double width, double height);
    void unclip();

    [[nodiscard]] cairo_t* context() const { return context_.get(); }
    [[nodiscard]] Picture picture() const;

private:
    struct Release {
        void operator()(cairo_t* context) const { cairo_destroy(context); }
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    };
    std::unique_ptr<cairo_surface_t, Release> surface_;
    std::unique_ptr<cairo_t, Release> context_;
};

} // namespace artwork
