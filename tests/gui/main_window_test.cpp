#include "gui_test.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace varrocade::gui {

namespace {

std::string itemText(HMENU menu, UINT item, UINT flags) {
    std::array<wchar_t, 128> text{};
    GetMenuStringW(menu, item, text.data(), static_cast<int>(text.size()), flags);
    return toUtf8(text.data());
}

/// "&File/E&xit", without the accelerator's name.
std::string menuPath(HMENU menu, int command) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        std::string item = itemText(GetSubMenu(menu, i), static_cast<UINT>(command), MF_BYCOMMAND);
        if (!item.empty()) {
            item.resize(std::min(item.size(), item.find('\t')));
            return itemText(menu, static_cast<UINT>(i), MF_BYPOSITION) + "/" + item;
        }
    }
    return {};
}

struct ControlRow {
    int id;
    std::string_view className;
    std::string_view text;
    Area area; ///< a negative y counts from the bottom, a negative height is what is left of the client's
};

constexpr ControlRow Controls[] = {
    {ListId, "ListBox", "", {4, 68, 350, -102}},
    {VehiclesId, "Button", "Vehicles", {7, 4, 66, 36}},
    {AtGunsId, "Button", "AT Guns", {76, 4, 66, 36}},
    {InfantryId, "Button", "Infantry", {145, 4, 66, 36}},
    {AircraftId, "Button", "Aircraft", {215, 4, 66, 36}},
    {WeaponsId, "Button", "Weapons", {284, 4, 66, 36}},
    {NewId, "Button", "New...", {8, -34, 82, 24}},
    {DuplicateId, "Button", "Duplicate...", {94, -34, 82, 24}},
    {RenameId, "Button", "Rename...", {180, -34, 82, 24}},
    {DeleteId, "Button", "Delete...", {266, -34, 82, 24}},
};

} // namespace

class MainWindowTest : public GuiTest {};

TEST_F(MainWindowTest, IsCentredOnTheWorkAreaWithThePicturesAspect) {
    start();
    EXPECT_EQ(window.text(), "Varrocade Data Editor");
    EXPECT_TRUE(window.hasStyle(WS_OVERLAPPEDWINDOW));
    RECT work{};
    RECT place{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    GetWindowRect(window.handle(), &place);
    const int height = work.bottom - work.top;
    const int frame = GetSystemMetrics(SM_CXSIZEFRAME);
    const int inner = height - (2 * frame + 8) - GetSystemMetrics(SM_CYCAPTION) - GetSystemMetrics(SM_CYMENU);
    const int width = inner * 350 / 650 + 2 * (frame + 483);
    EXPECT_EQ(place.right - place.left, width);
    EXPECT_EQ(place.bottom - place.top, height);
    EXPECT_EQ(place.left, (work.right - work.left - width) / 2);
    EXPECT_EQ(place.top, 0);
}

TEST_F(MainWindowTest, ControlsKeepTheirPlacesAtEverySize) {
    start();
    EXPECT_TRUE(
        list().hasStyle(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY | LBS_DISABLENOSCROLL | WS_VSCROLL));
    EXPECT_FALSE(list().hasStyle(LBS_SORT));
    constexpr SIZE sizes[] = {{0, 0}, {1400, 700}, {990, 480}};
    for (const SIZE size : sizes) {
        if (size.cx != 0) {
            SetWindowPos(window.handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
        }
        RECT client{};
        GetClientRect(window.handle(), &client);
        for (const ControlRow& row : Controls) {
            SCOPED_TRACE(std::to_string(row.id) + " in a height of " + std::to_string(client.bottom));
            const Window control = window.control(row.id);
            Area area = row.area;
            area.y += area.y < 0 ? client.bottom : 0;
            area.height += area.height < 0 ? client.bottom : 0;
            EXPECT_EQ(control.className(), row.className);
            EXPECT_EQ(control.text(), row.text);
            EXPECT_EQ(control.areaInParent(), area);
            EXPECT_EQ(control.isEnabled(), row.id < DuplicateId || row.id > DeleteId);
            EXPECT_TRUE(control.isVisible());
        }
    }
}

TEST_F(MainWindowTest, ShowsTheCategoryAndKeepsRoomForAllOfIt) {
    start();
    for (const CategoryParts& chosen : Categories) {
        sendCommand(chosen.button);
        for (const CategoryParts& other : Categories) {
            EXPECT_EQ(window.control(other.button).isChecked(), other.button == chosen.button) << other.name;
        }
    }
    SetWindowPos(window.handle(), nullptr, 0, 0, 200, 100, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client{};
    GetClientRect(window.handle(), &client);
    EXPECT_GE(client.right, 958);
    EXPECT_GE(client.bottom, 360);
    EXPECT_GE(window.control(IDC_DRAWING).areaInParent().width, 200);
    EXPECT_GE(window.control(IDC_SHEET).areaInParent().width, 400);
}

TEST_F(MainWindowTest, OffersToChooseTheFolderWhereThereIsNoGame) {
    const TempGame nothing;
    start(nothing.path());
    EXPECT_TRUE(entries().empty());
    const Window notice = window.control(IDC_LIST_NOTICE);
    EXPECT_TRUE(notice.isVisible());
    EXPECT_NE(notice.text().find(nothing.path()), std::string::npos) << notice.text();
    EXPECT_EQ(window.control(IDC_LIST_REMEDY).text(), "Choose folder...");
    EXPECT_TRUE(window.control(IDC_LIST_REMEDY).isVisible());
    close();
}

TEST_F(MainWindowTest, MenuAndAcceleratorsHaveTheirCommands) {
    constexpr std::pair<int, std::string_view> items[] = {
        {105, "&File/E&xit"},
        {ModModeCommand, "&Mod/&Mod Mode"},
        {EditModCommand, "&Mod/&Edit Mod Settings..."},
        {32773, "&Tools/&Penetration calculations..."},
        {32789, "&Tools/Reduce PNG image sizes..."},
        {32772, "&Tools/Generate &vehicle thumbnails..."},
        {32779, "&Tools/Generate PNG usage &files..."},
        {32780, "&Tools/Generate unit spreadsheets..."},
        {32782, "&Tools/Check mod for unneeded duplicate files..."},
        {32783, "&Tools/Check mod for unused files..."},
        {32785, "&Tools/Check mod for missing voice files..."},
        {32786, "&Options/&Show destroyed vehicle images"},
        {104, "&Help/&About..."},
    };
    const std::unique_ptr<HINSTANCE__, decltype(&FreeLibrary)> program(
        LoadLibraryExW(pathBesideTests(L"VarrocadeDataEditor.exe").c_str(), nullptr,
                       LOAD_LIBRARY_AS_DATAFILE),
        FreeLibrary);
    const std::unique_ptr<HMENU__, decltype(&DestroyMenu)> menu(
        LoadMenuW(program.get(), MAKEINTRESOURCEW(109)), DestroyMenu);
    for (const auto& [command, path] : items) {
        EXPECT_EQ(menuPath(menu.get(), command), path);
    }
    constexpr ACCEL keys[] = {{FVIRTKEY | FCONTROL, 'S', 32786},
                              {FALT, '/', 104},
                              {FALT, '?', 104},
                              {FVIRTKEY | FCONTROL, 'R', 32789},
                              {FVIRTKEY | FCONTROL, 'F', IDM_FIND}};
    std::array<ACCEL, 100> table{};
    CopyAcceleratorTableW(LoadAcceleratorsW(program.get(), MAKEINTRESOURCEW(109)), table.data(),
                          static_cast<int>(table.size()));
    for (const ACCEL& key : keys) {
        EXPECT_TRUE(std::any_of(table.begin(), table.end(), [&](const ACCEL& row) {
            return (row.fVirt & (FVIRTKEY | FCONTROL | FALT | FSHIFT)) == key.fVirt && row.key == key.key &&
                   row.cmd == key.cmd;
        })) << static_cast<char>(key.key);
    }
}

TEST_F(MainWindowTest, MenuFollowsTheOpenRecord) {
    game.copyFromSample("Data\\Weapons");
    start();
    constexpr int reduceCommand = 32789;
    for (const int command : {EditModCommand, 32782, 32783, 32785, reduceCommand}) {
        EXPECT_TRUE(menuState(command) & MF_GRAYED) << command;
    }
    select(Tiger);
    EXPECT_FALSE(menuState(reduceCommand) & MF_GRAYED);
    chooseCategory(WeaponsId);
    list().choose(0);
    EXPECT_TRUE(isEnabled(DuplicateId));
    EXPECT_TRUE(menuState(reduceCommand) & MF_GRAYED);
    // What is greyed does nothing when its accelerator comes either.
    sendCommand(reduceCommand);

    constexpr int destroyedCommand = 32786;
    EXPECT_FALSE(menuState(destroyedCommand) & MF_CHECKED);
    sendCommand(destroyedCommand);
    EXPECT_TRUE(menuState(destroyedCommand) & MF_CHECKED);
    sendCommand(destroyedCommand);
    EXPECT_FALSE(menuState(destroyedCommand) & MF_CHECKED);
}

TEST_F(MainWindowTest, BulkToolsAskFirst) {
    struct Row {
        int command;
        std::string_view caption;
        std::string_view text;
    };
    constexpr Row rows[] = {
        {32772, "Generate vehicle thumbnails",
         "This will create PNGs of thumbnails of all the vehicles for each nationality"},
        {32789, "Reduce image sizes", "Are you sure you want to reduce the sizes\nof the vehicle's images?"},
        {32780, "Generate unit spreadsheets",
         "This will create the tab separated .csv files:\n\n    Vehicles.csv\n    Infantry.csv\n"
         "    AT Guns.csv\n\ncontaining the unit data"},
        {32779, "Create PNG usage files",
         "This will create a .txt file showing which vehicle PNGs are not being used, and which PNGs are "
         "used by which vehicles"},
    };
    start();
    select(Tiger);
    for (const Row& row : rows) {
        window.post(WM_COMMAND, MAKEWPARAM(row.command, 0));
        answer({std::string(row.caption), std::string(row.text), {IDYES, IDNO}}, IDNO);
    }
    finish(openDialog(IDM_ABOUT, "About Varrocade Data Editor"));
}

TEST_F(MainWindowTest, ExitCommandEndsTheProgram) {
    start();
    window.post(WM_COMMAND, MAKEWPARAM(105, 0));
    EXPECT_EQ(editor->waitForExit(), 0U);
}

} // namespace varrocade::gui
