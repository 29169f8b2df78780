#include "app/windows/mod_band_win32.h"

#include "app/windows/application.h"
#include "app/workspace/mod/mod_band.h"
#include "app/workspace/window_layout.h"
#include "resources/resource.h"
#include "view/painting/paint_device.h"

#include <algorithm>
#include <array>
#include <string>

namespace varrocade {

namespace {

struct BandColours {
    Colour ground;
    Colour ink;
};

constexpr BandColours OfMod = {{0, 110, 60}, {255, 255, 255}};
/// What is open is not the mod's yet.
constexpr BandColours OfGameFile = {{250, 210, 110}, {40, 34, 24}};

/// The band in the coordinates of the window with its frame.
RECT bandPlace(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    RECT client{};
    GetClientRect(window, &client);
    POINT corner{0, 0};
    ClientToScreen(window, &corner);
    const LONG left = corner.x - frame.left;
    const LONG bottom = corner.y - frame.top;
    return {left, bottom - modBandHeight(), left + client.right, bottom};
}

LONG drawWords(HDC device, const RECT& place, HFONT font, const std::string& words) {
    const Selection selected(device, font);
    RECT area = place;
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    DrawTextA(device, words.c_str(), static_cast<int>(words.size()), &area, format);
    SIZE size{};
    GetTextExtentPoint32A(device, words.c_str(), static_cast<int>(words.size()), &size);
    return place.left + size.cx;
}

void paintBand(HWND window) {
    if (modBandHeight() == 0 || IsIconic(window) != FALSE) {
        return;
    }
    const DrawingObjects& objects = application().drawing;
    const ModBand band = modBand(theWorkspace());
    const BandColours& colours = band.isAboutGameFile ? OfGameFile : OfMod;
    RECT place = bandPlace(window);
    HDC device = GetWindowDC(window);
    const GdiObject<HBRUSH> ground(CreateSolidBrush(colourRef(colours.ground)));
    FillRect(device, &place, ground.get());
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, colourRef(colours.ink));
    constexpr int margin = 8;
    constexpr int gap = 20;
    place.left += objects.scaled(margin);
    place.right -= objects.scaled(margin);
    place.left = drawWords(device, place, objects.boldFont.get(), band.name) + objects.scaled(gap);
    if (place.left < place.right) {
        drawWords(device, place, objects.normalFont.get(), band.remark);
    }
    ReleaseDC(window, device);
}

} // namespace

int modBandHeight() {
    return theWorkspace().modMode ? application().drawing.scaled(ModBandHeight) : 0;
}

void createModBand(HWND window) {
    CreateWindowExA(0, "STATIC", "", WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, window,
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDC_MOD_BAND)), application().instance,
                    nullptr);
}

LRESULT withModBand(HWND window, UINT message, WPARAM parameter, LPARAM detail) {
    const LRESULT result = DefWindowProcA(window, message, parameter, detail);
    if (message != WM_NCCALCSIZE) {
        paintBand(window);
        return result;
    }
    // Both structures that the parameter can stand for begin with the rectangle that becomes the client's.
    RECT& client = *reinterpret_cast<RECT*>(detail);
    client.top = std::min(client.top + modBandHeight(), client.bottom);
    return result;
}

void showModBand() {
    HWND window = application().window;
    const ModBand band = modBand(theWorkspace());
    const std::string text = band.name.empty() ? std::string() : band.name + "  " + band.remark;
    HWND control = GetDlgItem(window, IDC_MOD_BAND);
    std::array<char, 1024> former{};
    GetWindowTextA(control, former.data(), static_cast<int>(former.size()));
    if (text == former.data()) {
        return;
    }
    SetWindowTextA(control, text.c_str());
    if (band.name.empty() != (former[0] == '\0')) {
        SetWindowPos(window, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    paintBand(window);
}

} // namespace varrocade
