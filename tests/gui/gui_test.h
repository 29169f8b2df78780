#pragma once

#include "editor_process.h"
#include "temp_game.h"
#include "user_mod.h"
#include "windows_driver.h"

#include "resources/resource.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::gui {

// The numbers that other programs know the main window's parts by.
inline constexpr int ListId = 1001;
inline constexpr int NewId = 1002;
inline constexpr int DuplicateId = 1003;
inline constexpr int RenameId = 1004;
inline constexpr int DeleteId = 1005;
inline constexpr int VehiclesId = 1006;
inline constexpr int AtGunsId = 1007;
inline constexpr int InfantryId = 1008;
inline constexpr int AircraftId = 1009;
inline constexpr int WeaponsId = 1010;
inline constexpr int ModModeCommand = 32777;
inline constexpr int EditModCommand = 32778;

inline constexpr std::string_view Tiger = "German Panzer VI Tiger Ausf E";

struct CategoryParts {
    int button;
    std::string_view name;
};

inline constexpr CategoryParts Categories[] = {
    {VehiclesId, "Vehicles"}, {AtGunsId, "AT Guns"},  {InfantryId, "Infantry"},
    {AircraftId, "Aircraft"}, {WeaponsId, "Weapons"},
};

/// "Data\Vehicles\Name.txt".
std::string dataFile(std::string_view name, std::string_view category = "Vehicles");

/// The text with one part of it, which must be there, replaced.
std::string withReplaced(std::string text, std::string_view part, std::string_view replacement);

/// A test with a game folder that holds the sample's units, an empty mod folder in the profile and one
/// editor, which is ended when the test takes too long. A test that is over closes the editor, which must end
/// well and quietly.
class GuiTest : public testing::Test {
protected:
    GuiTest();
    ~GuiTest() override;
    void SetUp() override;
    void TearDown() override;

    /// Starts the editor in the game folder, or in another; the main window must come.
    void start(const std::string& folder = {});
    /// Closes the main window; the editor must end with status 0.
    void close();

    [[nodiscard]] Window list() const { return window.control(ListId); }
    [[nodiscard]] std::vector<std::string> entries() const { return list().listTexts(); }
    [[nodiscard]] std::string selected() const { return list().selectedText(); }
    /// Selects an entry, which opens its file.
    void select(std::string_view name) const { list().choose(name); }
    void chooseCategory(int button) const { window.press(button); }
    void sendCommand(int command) const { window.send(WM_COMMAND, MAKEWPARAM(command, 0)); }
    [[nodiscard]] bool isEnabled(int id) const { return window.control(id).isEnabled(); }
    [[nodiscard]] UINT menuState(int command) const { return editor->menuState(window, command); }

    /// Gives a command or presses a button that opens a dialog.
    [[nodiscard]] Window openDialog(int command, std::string_view caption) const;
    [[nodiscard]] Window openDetails() const { return openDialog(IDC_EDIT_DETAILS, "Details"); }
    /// Presses a button that closes the dialog, and waits until what follows from it is done.
    void finish(Window dialog, int button = IDOK) const;
    /// Closes the dialog by its caption's button.
    void dismiss(Window dialog) const;
    /// Waits until a closing dialog is gone and its owner answers.
    static void expectGone(Window dialog, Window owner);
    /// Waits for a message box, compares it and answers it.
    void answer(const Box& expected, int button = IDOK) const;

    TempGame game;
    UserMod userMod;
    std::unique_ptr<EditorProcess> editor;
    Window window;

private:
    static void CALLBACK endLateTest(PVOID test, BOOLEAN isTimer);
    HANDLE timer_ = nullptr;
};

} // namespace varrocade::gui
