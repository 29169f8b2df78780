// Working in the drawing with mouse and keyboard.

#include "gui_test.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>

namespace varrocade::gui {

namespace {

constexpr std::string_view Havoc = "American A-20G Havoc";
constexpr std::string_view TurretGun = "HMG MG34, X 40 cm, Y 118 cm";

constexpr std::array<UINT, 3> DoubleClick = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK};

LPARAM at(POINT place) {
    return MAKELPARAM(place.x, place.y);
}

} // namespace

class DrawingTest : public GuiTest {
protected:
    void startWith(std::string_view name, int category = VehiclesId) {
        start();
        chooseCategory(category);
        select(name);
        drawing = window.control(IDC_DRAWING);
        // A click into the corner selects nothing and takes the keyboard there.
        drawing.send(WM_LBUTTONDOWN, MK_LBUTTON, at({1, 1}));
        drawing.send(WM_LBUTTONUP, 0, at({1, 1}));
        EXPECT_TRUE(eventually([&] { return editor->focus() == drawing; }));
    }
    [[nodiscard]] bool shows(std::string_view text) const {
        return eventually([&] { return drawing.text().find(text) != std::string::npos; });
    }
    /// Goes from part to part until one is selected that is named so.
    void selectPart(std::string_view name) const {
        constexpr int mostParts = 60;
        for (int i = 0; i < mostParts && drawing.text().find(name) == std::string::npos; ++i) {
            const std::string before = drawing.text();
            drawing.pressKey(VK_NEXT);
            eventually([&] { return drawing.text() != before; });
        }
        ASSERT_TRUE(shows(name));
    }
    /// The caret, which stands on the selected part for as long as the drawing has the keyboard. A window
    /// that closes late can take the keyboard away; the right button brings it back and selects nothing.
    [[nodiscard]] POINT caret() const {
        POINT place{};
        EXPECT_TRUE(eventually([&] {
            if (editor->focus() != drawing) {
                drawing.send(WM_RBUTTONDOWN, MK_RBUTTON, at({1, 1}));
            }
            place = editor->caret();
            return place.x != 0 || place.y != 0;
        })) << "no caret";
        return place;
    }
    /// Takes hold of the selected part and moves it by pixels, without letting it go.
    [[nodiscard]] POINT drag(int right, int down) const {
        const POINT from = caret();
        const POINT to{from.x + right, from.y + down};
        // As a program does that knows of one window only.
        const auto send = [&](UINT message, POINT place) {
            MapWindowPoints(drawing.handle(), window.handle(), &place, 1);
            window.send(message, MK_LBUTTON, at(place));
        };
        send(WM_LBUTTONDOWN, from);
        send(WM_MOUSEMOVE, {from.x + right / 2, from.y + down / 2});
        send(WM_MOUSEMOVE, to);
        return to;
    }
    void press(POINT place) const { drawing.send(WM_LBUTTONDOWN, MK_LBUTTON, at(place)); }
    void moveTo(POINT place) const { drawing.send(WM_MOUSEMOVE, MK_LBUTTON, at(place)); }
    void release(POINT place) const { drawing.send(WM_LBUTTONUP, 0, at(place)); }
    /// Where a part is on the screen.
    [[nodiscard]] POINT placeOf(std::string_view part) const {
        selectPart(part);
        return caret();
    }
    void expectAt(std::string_view part, POINT expected, const char* when) const {
        constexpr LONG rounding = 2;
        const POINT place = placeOf(part);
        EXPECT_LE(std::abs(place.x - expected.x), rounding) << when << ", x " << place.x;
        EXPECT_LE(std::abs(place.y - expected.y), rounding) << when << ", y " << place.y;
    }
    void turnWheel(POINT place, int delta) const {
        MapWindowPoints(drawing.handle(), nullptr, &place, 1);
        window.send(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), at(place));
    }
    /// "X 12 cm, Y 34 cm" of the selected part, as the file has it.
    [[nodiscard]] std::string positionElements() const {
        int x = 0;
        int y = 0;
        const std::string text = drawing.text();
        EXPECT_EQ(std::sscanf(text.c_str() + text.rfind("X "), "X %d cm, Y %d cm", &x, &y), 2) << text;
        return "<offsetX>" + std::to_string(x) + "</offsetX><offsetY>" + std::to_string(y) + "</offsetY>";
    }
    /// Expects that the selected entry is marked as unsaved or not, by what leaving it asks.
    void expectQuestion(std::string_view other, std::string_view question, int button) const {
        list().startChoosing(other);
        answer({"Save changes", std::string(question), {IDCANCEL, IDYES, IDNO}}, button);
    }

    Window drawing;
};

TEST_F(DrawingTest, DraggedPositionsAreInTheFileThatThePromptSaves) {
    startWith(Tiger);
    const std::string before = game.read(dataFile(Tiger));
    selectPart(TurretGun);
    POINT end = drag(24, -16);
    EXPECT_TRUE(eventually([&] { return drawing.text().find(TurretGun) == std::string::npos; }));
    drawing.send(WM_LBUTTONUP, 0, at(end));
    const std::string gun = positionElements();
    selectPart("Exhaust pipe 2, X 56 cm, Y -302 cm");
    end = drag(-20, 12);
    drawing.send(WM_LBUTTONUP, 0, at(end));
    EXPECT_TRUE(eventually([&] { return drawing.text().find("X 56 cm") == std::string::npos; }));
    const std::string pipe = positionElements();
    EXPECT_EQ(game.read(dataFile(Tiger)), before);

    expectQuestion("French Panhard 178", "Save your changes to weapon and exhaust positions?", IDYES);
    EXPECT_TRUE(eventually([&] { return game.read(dataFile(Tiger)) != before; }));
    std::string expected =
        withReplaced(before, "MG34</type><offsetX>40</offsetX><offsetY>118</offsetY>", "MG34</type>" + gun);
    expected = withReplaced(expected, "<offsetX>56</offsetX><offsetY>-302</offsetY>", pipe);
    EXPECT_EQ(game.read(dataFile(Tiger)), expected);
}

TEST_F(DrawingTest, EscapePutsPositionsBack) {
    startWith(Tiger);
    selectPart(TurretGun);
    // A run of the arrow keys is one move.
    for (const int key : {VK_RIGHT, VK_RIGHT, VK_UP}) {
        drawing.pressKey(key);
    }
    EXPECT_TRUE(shows("HMG MG34, X 42 cm, Y 119 cm"));
    drawing.pressKey(VK_ESCAPE);
    EXPECT_TRUE(shows(TurretGun));
    sendCommand(IDM_REDO);
    EXPECT_TRUE(shows("HMG MG34, X 42 cm, Y 119 cm")) << "what Escape took back is not lost";
    sendCommand(IDM_UNDO);
    EXPECT_TRUE(shows(TurretGun));
    // While the mouse still holds it.
    const POINT end = drag(30, 30);
    EXPECT_TRUE(eventually([&] { return drawing.text().find(TurretGun) == std::string::npos; }));
    drawing.pressKey(VK_ESCAPE);
    EXPECT_TRUE(shows(TurretGun));
    drawing.send(WM_LBUTTONUP, 0, at(end));
    select("French Panhard 178");
    EXPECT_TRUE(editor->dialogs().empty()) << "nothing is unsaved";
}

TEST_F(DrawingTest, SheetAndDrawingSelectTheSamePartAndOpenItsEditor) {
    startWith(Tiger);
    const Window sheet = window.control(IDC_SHEET);
    const auto clickUntil = [&](std::string_view name) {
        constexpr int step = 6;
        const int height = sheet.areaInParent().height;
        for (int y = 100; y < height; y += step) {
            sheet.send(WM_LBUTTONDOWN, MK_LBUTTON, at({20, y}));
            if (drawing.text().find(name) != std::string::npos) {
                return POINT{20, y};
            }
        }
        ADD_FAILURE() << "no row of " << name;
        return POINT{};
    };
    clickUntil("Armour");
    for (int page = 0; page < 2; ++page) {
        sheet.send(WM_VSCROLL, SB_PAGEDOWN);
    }
    const POINT row = clickUntil(TurretGun);
    sheet.post(WM_LBUTTONDBLCLK, MK_LBUTTON, at(row));
    Window weapons = editor->waitForDialog("Turret 2: weapons");
    EXPECT_EQ(weapons.control(IDC_ENTRY_LIST).selectedText(), "2. HMG MG34 (40, 118)");
    weapons.setText(IDC_OFFSET_X, "41");
    EXPECT_TRUE(shows("HMG MG34, X 41 cm, Y 118 cm")) << "while the dialog is open";
    finish(weapons);
    EXPECT_TRUE(shows("HMG MG34, X 41 cm, Y 118 cm"));
    EXPECT_FALSE(menuState(IDM_SAVE) & MF_GRAYED);
    sendCommand(IDM_UNDO);
    EXPECT_TRUE(shows(TurretGun));
    selectPart("Exhaust pipe 2");
    drawing.pressKey(VK_RETURN);
    const Window pipes = editor->waitForDialog("Exhaust Pipes");
    EXPECT_EQ(pipes.control(IDC_ENTRY_LIST).selectedText().substr(0, 2), "2.");
    finish(pipes, IDCANCEL);
}

TEST_F(DrawingTest, AircraftWeaponsMoveAndFileSaveKeepsThem) {
    startWith(Havoc, AircraftId);
    const std::string before = game.read(dataFile(Havoc, "Aircraft"));
    selectPart("Bomb M64 500LB, X 330 cm, Y 20 cm");
    drawing.pressKey(VK_DOWN);
    EXPECT_TRUE(shows("X 330 cm, Y 19 cm"));
    expectQuestion("British Typhoon IB", "Save your changes to weapon positions?", IDCANCEL);
    EXPECT_EQ(selected(), Havoc);
    sendCommand(IDM_SAVE);
    EXPECT_EQ(game.read(dataFile(Havoc, "Aircraft")),
              withReplaced(before, "<offsetX>330</offsetX><offsetY>20</offsetY>",
                           "<offsetX>330</offsetX><offsetY>19</offsetY>"));
    select("British Typhoon IB");
    EXPECT_TRUE(editor->dialogs().empty()) << "what was saved is not asked for again";
}

TEST_F(DrawingTest, TheViewIsZoomedAboutTheMouseMovedAndReset) {
    startWith(Tiger);
    constexpr POINT ground{4, 4};
    const POINT home = placeOf(TurretGun);
    const POINT mouse{home.x + 60, home.y + 80};
    turnWheel(mouse, WHEEL_DELTA);
    const POINT zoomed = placeOf(TurretGun);
    const double growthX = (zoomed.x - mouse.x) / -60.0;
    const double growthY = (zoomed.y - mouse.y) / -80.0;
    EXPECT_GT(growthX, 1.05);
    EXPECT_NEAR(growthX, growthY, 0.05) << "what is below the mouse stays there";
    turnWheel(zoomed, -WHEEL_DELTA);
    expectAt(TurretGun, zoomed, "zoomed out about itself");
    press(ground);
    moveTo({ground.x + 20, ground.y + 10});
    moveTo({ground.x + 33, ground.y + 21});
    release({ground.x + 33, ground.y + 21});
    expectAt(TurretGun, {zoomed.x + 33, zoomed.y + 21}, "dragged with the ground");
    for (const UINT message : DoubleClick) {
        drawing.send(message, MK_LBUTTON, at(ground));
    }
    expectAt(TurretGun, home, "the whole unit again");
}

TEST_F(DrawingTest, ATurretTurnsForLookingOnly) {
    startWith(Tiger);
    const std::string before = game.read(dataFile(Tiger));
    const POINT gun = placeOf(TurretGun);
    // The pipes are at X -56 and 56, Y -302; the turret turns about X 0, Y 8, its gun is at X 30, Y 120 of
    // it.
    const POINT leftPipe = placeOf("Exhaust pipe 1");
    const POINT rightPipe = placeOf("Exhaust pipe 2");
    const double pixels = (rightPipe.x - leftPipe.x) / 112.0;
    const POINT pivot{(leftPipe.x + rightPipe.x) / 2, std::lround(leftPipe.y - 310 * pixels)};
    const auto from = [&](double x, double y) {
        return POINT{pivot.x + std::lround(x * pixels), pivot.y - std::lround(y * pixels)};
    };
    const auto turnRight = [&] {
        press(from(-70, -60));
        moveTo(from(-90, 0));
        moveTo(from(-60, 70));
    };
    turnRight();
    drawing.send(WM_KEYDOWN, VK_ESCAPE);
    release(from(-60, 70));
    expectAt(TurretGun, gun, "put back while the mouse holds it");
    turnRight();
    release(from(-60, 70));
    expectAt(TurretGun, from(118, -40), "a quarter to the right");
    EXPECT_NE(menuState(IDM_SAVE) & MF_GRAYED, 0U);
    select("French Panhard 178");
    EXPECT_TRUE(editor->dialogs().empty()) << "nothing is unsaved";
    EXPECT_EQ(game.read(dataFile(Tiger)), before);
}

TEST_F(DrawingTest, ShiftMovesByTenCentimetres) {
    startWith(Tiger);
    selectPart(TurretGun);
    const DWORD thread = GetWindowThreadProcessId(drawing.handle(), nullptr);
    ASSERT_TRUE(AttachThreadInput(GetCurrentThreadId(), thread, TRUE));
    std::array<BYTE, 256> keys{};
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys.data());
    drawing.send(WM_KEYDOWN, VK_RIGHT);
    drawing.send(WM_KEYDOWN, VK_DOWN);
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys.data());
    AttachThreadInput(GetCurrentThreadId(), thread, FALSE);
    EXPECT_TRUE(shows("HMG MG34, X 50 cm, Y 108 cm")) << drawing.text();
    drawing.pressKey(VK_ESCAPE);
    EXPECT_TRUE(shows(TurretGun));
}

TEST_F(DrawingTest, TheMouseOpensTheEditorOfWhatItPointsAt) {
    startWith(Tiger);
    const POINT gun = placeOf(TurretGun);
    const auto doubleClick = [&] {
        for (const UINT message : DoubleClick) {
            drawing.post(message, MK_LBUTTON, at(gun));
        }
    };
    const auto chooseFromMenu = [&] {
        POINT place = gun;
        MapWindowPoints(drawing.handle(), nullptr, &place, 1);
        drawing.post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(drawing.handle()), at(place));
        // A menu is in sight before it takes keys: one that is still there after a while is asked again.
        constexpr ULONGLONG patience = 300;
        ULONGLONG asked = 0;
        EXPECT_TRUE(eventually([&] {
            HWND menu = FindWindowW(L"#32768", nullptr);
            const bool isThere = menu != nullptr && IsWindowVisible(menu) != FALSE;
            if (isThere && GetTickCount64() >= asked + patience) {
                asked = GetTickCount64();
                // The menu is gone before the key would go up.
                PostMessageW(menu, WM_KEYDOWN, 'E', 0);
            }
            return asked != 0 && !isThere;
        }));
    };
    for (const std::function<void()>& open : {std::function<void()>(doubleClick), {chooseFromMenu}}) {
        selectPart("Exhaust pipe 2");
        open();
        const Window weapons = editor->waitForDialog("Turret 2: weapons");
        EXPECT_TRUE(weapons.control(IDC_ENTRY_LIST).selectedText().starts_with("2. HMG MG34 ("));
        weapons.setText(IDC_OFFSET_X, "99");
        finish(weapons, IDCANCEL);
        EXPECT_TRUE(shows(TurretGun)) << "as before";
    }
}

} // namespace varrocade::gui
