#pragma once
// Putting pictures together without a device: premultiplied pixels that others are laid over.

#include "pictures/picture.h"
#include "view/painting/pixmap.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Transparent.
Pixmap emptyPixmap(PictureSize size);

/// A picture with its colours multiplied by the alpha, as composing needs it; deep ones lose their lower
/// bytes.
Pixmap premultiplied(const Picture& picture);

/// Back again. What is fully transparent is black.
Picture straightened(const Pixmap& pixmap);

/// Lays a picture, stretched and turned about its centre, over a canvas with the centre at a place of it, in
/// pixels from the canvas's upper left corner.
void layOver(Pixmap& canvas, const Pixmap& picture, PixmapPlacement placement, double centreX,
             double centreY);

/// Lays a picture over a canvas as it is, its upper left corner at a pixel.
void layOver(Pixmap& canvas, const Pixmap& picture, int left, int top);

/// A text broken into lines that are at most `width` pixels wide, at blanks; a longer word is cut. Letters
/// are those of ASCII, others show as "?".
std::vector<std::string> brokenText(std::string_view text, int width);

inline constexpr int TextLineHeight = 14; ///< pixels

/// Writes a line in black with a bright rim, which is read on dark ground too; its middle at `centreX`.
void writeLine(Pixmap& canvas, const std::string& line, int centreX, int top);

} // namespace varrocade
