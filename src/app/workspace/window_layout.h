#pragma once
// Where things stand in the main window. All lengths are pixels of a 96 dpi screen unless said otherwise.

#include <array>
#include <cstddef>

namespace varrocade {

/// A rectangle by its corner and size.
struct WindowPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const WindowPlace&) const = default;
};

/// The band of the client area that holds the list and the data sheet; the rest is the picture area.
inline constexpr int BandWidth = 966;
/// The list with its buttons takes this much of the band.
inline constexpr int ListWidth = 358;
/// The picture area's aspect: width to height of the client area.
inline constexpr int PictureAspectWidth = 350;
inline constexpr int PictureAspectHeight = 650;

/// The system's measures that the window's first size is made of, in pixels of the screen.
struct FrameMetrics {
    int frame = 0;   ///< width of the sizing frame
    int caption = 0; ///< height of the caption
    int menu = 0;    ///< height of the menu bar
};

/// The window at start: as high as the work area, as wide as band and picture area need, centred. The
/// band grows with `dpi`, the screen's dots per inch, as far as the work area is wide.
WindowPlace firstWindowPlace(int workWidth, int workHeight, const FrameMetrics& metrics, int dpi);

/// The list box and the filter above it, for a client area of `height`.
WindowPlace fileListPlace(int height);
WindowPlace filterPlace();
/// In mod mode the filter leaves room for the box beside it that shows the game's units.
WindowPlace filterBesideBoxPlace();
WindowPlace gameUnitsBoxPlace();
/// What stands over the list while it is empty: words and the button below them.
WindowPlace listNoticePlace();
WindowPlace listRemedyPlace();

/// The height of the band that names the mod. It lies between the menu and the client area, in which
/// everything keeps its place.
inline constexpr int ModBandHeight = 22;

inline constexpr std::size_t FileButtonCount = 4;
/// The four file buttons below the list, in the order New, Duplicate, Rename, Delete.
std::array<WindowPlace, FileButtonCount> fileButtonPlaces(int height);

inline constexpr std::size_t CategoryButtonCount = 5;
inline constexpr std::array<WindowPlace, CategoryButtonCount> CategoryButtonPlaces = {{
    {7, 4, 66, 36},
    {76, 4, 66, 36},
    {145, 4, 66, 36},
    {215, 4, 66, 36},
    {284, 4, 66, 36},
}};

/// The picture area is given no less than this, for which the data sheet gives way down to its own least
/// width.
inline constexpr int LeastPictureWidth = 200;
inline constexpr int LeastSheetWidth = 400;
/// The smallest client area in which all controls are whole, the list has some entries and the drawing can be
/// worked in.
inline constexpr int LeastClientWidth = ListWidth + LeastPictureWidth + LeastSheetWidth;
inline constexpr int LeastClientHeight = 360;

/// The picture and the data sheet, in the pixels of the screen, for a client area of such pixels. The sheet
/// is as wide as the band leaves, the picture has the rest; in a narrow window they share what is there.
WindowPlace picturePlace(int width, int height, int dpi);
WindowPlace sheetPlace(int width, int height, int dpi);

} // namespace varrocade
