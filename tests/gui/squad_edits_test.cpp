// Each field of squads on foot, heavy weapons and aircraft typed into its dialog: the saved file has the
// lines that the cases say, and no others.

#include "gui_test.h"

#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/man_form.h"
#include "editors/squad/rotor_list.h"
#include "editors/squad/squad_form.h"
#include "editors/unit/uniform_form.h"
#include "editors/unit/unit_lists.h"
#include "shared/squad_edits.h"

#include <algorithm>
#include <set>

namespace varrocade::gui {

namespace {

using tests::controlOf;
using tests::SquadEdit;

bool isOf(const SquadEdit& edit, std::string_view part) {
    return edit.form.find(part) != std::string::npos;
}

/// The row of the list of members: the heavy weapon's, or that of the first man.
int memberRow(Window details, bool isHeavy) {
    const std::vector<std::string> lines = details.control(IDC_MEMBERS).listTexts();
    const auto found = std::find_if(lines.begin(), lines.end(), [isHeavy](const std::string& line) {
        const auto kinds = FormWords<HeavyWeaponKind>::words();
        return isHeavy == std::any_of(kinds.begin(), kinds.end(), [&](const auto& kind) {
                   return line.find(". " + std::string(kind.word) + ":") != std::string::npos;
               });
    });
    EXPECT_NE(found, lines.end());
    return static_cast<int>(found - lines.begin());
}

void set(Window dialog, int control, const std::string& value) {
    const Window window = dialog.control(control);
    if (!window.isEnabled()) {
        return; // the file of this kind does not store it
    }
    if (window.className() == "Button") {
        if (window.isChecked() != (value == "yes")) {
            window.send(BM_CLICK);
        }
    } else if (window.hasStyle(CBS_DROPDOWNLIST) && window.className() == "ComboBox") {
        window.choose(value);
    } else {
        dialog.setText(control, value);
    }
}

} // namespace

class SquadEditsTest : public GuiTest {
protected:
    /// Opens the form of a case, and all dialogs before it.
    std::vector<Window> openForm(const SquadEdit& edit) {
        std::vector<Window> dialogs = {openDetails()};
        const auto open = [&](int button, std::string_view caption) {
            dialogs.back().startPress(button);
            dialogs.push_back(editor->waitForDialog(caption));
        };
        if (isOf(edit, "man ") || isOf(edit, "heavy")) {
            const Window members = dialogs.back().control(IDC_MEMBERS);
            const int row = memberRow(dialogs.back(), isOf(edit, "heavy"));
            members.send(LB_SETSEL, FALSE, -1);
            members.send(LB_SETSEL, TRUE, row);
            open(IDC_MEMBER_EDIT, isOf(edit, "man ") ? "Man" : "Heavy Weapon");
        }
        if (isOf(edit, " weapon")) {
            open(IDC_WEAPONS_BUTTON, "Weapons");
        } else if (isOf(edit, " ammo")) {
            open(isOf(edit, "man ") ? IDC_MAN_AMMO_BUTTON : IDC_AMMO_BUTTON, "Ammunition");
        } else if (isOf(edit, "uniform")) {
            open(IDC_UNIFORM_BUTTON, "Uniform");
        } else if (isOf(edit, "availability")) {
            open(IDC_AVAILABILITY, "Availability");
        } else if (isOf(edit, "rotor")) {
            open(IDC_ROTORS_BUTTON, "Rotor Blades");
        }
        return dialogs;
    }

    static int controlOfCase(const SquadEdit& edit, bool isAircraft) {
        const std::string_view field = edit.field;
        if (isOf(edit, " weapon")) {
            return controlOf(weaponShape().form, field);
        }
        if (isOf(edit, " ammo")) {
            return controlOf(ammunitionShape().form, field);
        }
        if (isOf(edit, "man ")) {
            return controlOf(manShape(), field);
        }
        if (isOf(edit, "heavy")) {
            return controlOf(heavyWeaponShape(), field);
        }
        if (isOf(edit, "uniform")) {
            return controlOf(uniformShape(), field);
        }
        if (isOf(edit, "availability")) {
            return controlOf(availabilityShape().form, field);
        }
        if (isOf(edit, "rotor")) {
            return controlOf(rotorShape().form, field);
        }
        return controlOf(isAircraft ? aircraftShape() : squadShape(), field);
    }

    /// Ends the dialog of weapons. Ammunition whose weapon is no longer there is for the new one.
    void takeNewWeapon(std::vector<Window>& dialogs) {
        const Window weapons = dialogs.back();
        weapons.startPress(IDOK);
        EXPECT_TRUE(eventually([&] {
            for (const Window& open : editor->dialogs()) {
                if (std::find(dialogs.begin(), dialogs.end(), open) == dialogs.end()) {
                    open.startPress(IDNO);
                    return true;
                }
            }
            return !weapons.exists();
        }));
        dialogs.pop_back();
        expectGone(weapons, dialogs.back());
    }

    /// Types a case, saves and takes it back; returns the lines of the file that changed.
    std::string linesChangedBy(const SquadEdit& edit, const std::string& path, const std::string& former) {
        std::vector<Window> dialogs = openForm(edit);
        const int control = controlOfCase(edit, path.find("Aircraft") != std::string::npos);
        EXPECT_NE(control, 0);
        set(dialogs.back(), control, edit.value);
        if (isOf(edit, " weapon") && edit.field == "type") {
            takeNewWeapon(dialogs);
        }
        while (!dialogs.empty()) {
            finish(dialogs.back());
            dialogs.pop_back();
        }
        sendCommand(IDM_SAVE);
        std::string changed = tests::changedLines(former, game.read(path));
        for (int steps = 0; steps < 3; ++steps) {
            sendCommand(IDM_UNDO);
        }
        return changed;
    }
};

TEST_F(SquadEditsTest, EachFieldOfTheDialogsChangesItsLinesOfTheFile) {
    start();
    std::set<std::string> tried;
    std::string unit;
    std::string path;
    std::string former;
    for (const SquadEdit& edit : tests::squadEdits(readFile("tests\\golden\\squad_edits.txt"))) {
        // Each field once where it changes the file, and once where it does not.
        if (!tried.insert(edit.form + edit.field + (edit.changed.empty() ? "-" : "+")).second) {
            continue;
        }
        SCOPED_TRACE(edit.unit + ": " + edit.form + ": " + edit.field + " = " + edit.value);
        if (edit.unit != unit) {
            unit = edit.unit;
            const auto category =
                std::find_if(std::begin(Categories), std::end(Categories),
                             [&](const auto& each) { return game.exists(dataFile(unit, each.name)); });
            ASSERT_NE(category, std::end(Categories));
            chooseCategory(category->button);
            select(unit);
            path = dataFile(unit, category->name);
            former = game.read(path);
        }
        const std::string changed = linesChangedBy(edit, path, former);
        if (isOf(edit, " weapon") && edit.field == "type") {
            // With the lines of the ammunition.
            EXPECT_EQ(changed.find(edit.changed.substr(0, edit.changed.find('\n'))), 0U) << changed;
        } else {
            EXPECT_EQ(changed, edit.changed);
        }
        ASSERT_TRUE(editor->dialogs().empty());
    }
}

} // namespace varrocade::gui
