#include "layout_check.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <map>

namespace varrocade::gui {

namespace {

struct Part {
    Window window;
    std::string kind; ///< its window class
    std::string text;
    Area area;
    DWORD type = 0; ///< the part of its style that tells which static or button it is

    [[nodiscard]] bool isStaticText() const { return kind == "Static" && type <= SS_RIGHT; }
    [[nodiscard]] bool isBox() const { return kind == "Button" && type == BS_GROUPBOX; }
    [[nodiscard]] bool isCheck() const {
        return kind == "Button" && type != BS_GROUPBOX && type > BS_DEFPUSHBUTTON;
    }
    /// What only tells something needs no label.
    [[nodiscard]] bool isField() const {
        return (kind == "Edit" && !window.hasStyle(ES_READONLY)) || kind == "ComboBox" || kind == "ListBox";
    }
};

std::vector<Part> partsOf(Window dialog) {
    std::vector<Part> parts;
    for (HWND child = GetWindow(dialog.handle(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const Window window(child);
        Part& part =
            parts.emplace_back(Part{window, window.className(), window.text(), window.areaInParent()});
        const auto style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
        part.type = style & static_cast<DWORD>(part.kind == "Static" ? SS_TYPEMASK : BS_TYPEMASK);
    }
    return parts;
}

/// The size that a text takes in the font of the dialogs, broken at `width` pixels.
SIZE sizeOfText(const std::string& text, int width) {
    constexpr int points = 8;
    constexpr int pointsPerInch = 72;
    HDC screen = GetDC(nullptr);
    HFONT font = CreateFontW(-MulDiv(points, GetDeviceCaps(screen, LOGPIXELSY), pointsPerInch), 0, 0, 0,
                             FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                             CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"MS Shell Dlg");
    HGDIOBJ former = SelectObject(screen, font);
    RECT area{0, 0, width, 0};
    DrawTextW(screen, toWide(text).c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK);
    SelectObject(screen, former);
    DeleteObject(font);
    ReleaseDC(nullptr, screen);
    return {area.right, area.bottom};
}

void expectTextFits(const Part& part) {
    if (!part.isStaticText() && (part.kind != "Button" || part.isBox())) {
        return;
    }
    constexpr int checkMark = 17; // with the gap behind it
    const int width = part.area.width - (part.isCheck() ? checkMark : 0);
    const SIZE needed = sizeOfText(part.text, width);
    EXPECT_TRUE(needed.cx <= width && needed.cy <= part.area.height)
        << '"' << part.text << "\" is cut: it takes " << needed.cx << " x " << needed.cy << " of " << width
        << " x " << part.area.height;
}

bool overlap(const Area& a, const Area& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

/// Statics without a text show nothing that could be covered.
bool isSeen(const Part& part) {
    return !part.isBox() && (!part.isStaticText() || !part.text.empty());
}

void expectFree(const std::vector<Part>& parts, std::size_t index, const RECT& client) {
    const Part& part = parts[index];
    EXPECT_TRUE(part.area.x >= 0 && part.area.y >= 0 && part.area.x + part.area.width <= client.right &&
                part.area.y + part.area.height <= client.bottom)
        << '"' << part.text << "\" is not within the dialog: " << part.area;
    for (std::size_t other = index + 1; other < parts.size(); ++other) {
        if (isSeen(part) && isSeen(parts[other])) {
            EXPECT_FALSE(overlap(part.area, parts[other].area))
                << '"' << part.text << "\" (" << part.area << ") and \"" << parts[other].text << "\" ("
                << parts[other].area << ')';
        }
    }
}

} // namespace

void expectWellLaidOut(Window dialog) {
    SCOPED_TRACE(dialog.text());
    RECT place{};
    GetWindowRect(dialog.handle(), &place);
    EXPECT_TRUE(place.right - place.left <= 1366 && place.bottom - place.top <= 768);
    RECT client{};
    GetClientRect(dialog.handle(), &client);
    const std::vector<Part> parts = partsOf(dialog);
    std::map<wint_t, std::string> keys;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Part& part = parts[i];
        expectFree(parts, i, client);
        expectTextFits(part);
        if (part.isField()) {
            EXPECT_TRUE(i > 0 && !parts[i - 1].text.empty() &&
                        (parts[i - 1].isStaticText() || parts[i - 1].isCheck()))
                << "no label before " << GetDlgCtrlID(part.window.handle());
        }
        const std::wstring text = toWide(part.text);
        const std::size_t mark = text.find(L'&');
        if ((part.isStaticText() || part.kind == "Button") && mark != std::wstring::npos &&
            mark + 1 < text.size()) {
            const auto [former, isNew] = keys.emplace(towlower(text[mark + 1]), part.text);
            EXPECT_TRUE(isNew) << part.text << " and " << former->second;
        }
    }
}

} // namespace varrocade::gui
