#pragma once
// A small game in a folder of its own with a workspace on it, for the tests of the workspace.

#include "app/workspace/category_list.h"
#include "app/workspace/edits.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/file_steps.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/names/file_names.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "data/writing/unit_writers.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace varrocade::tests {

using Names = std::vector<std::string>;

inline const std::string Tank = "Data\\Vehicles\\German Tank.txt";
inline constexpr UnitPart Gun{PartKind::Weapon, 1, 0};
inline constexpr UnitPart Pipe{PartKind::Exhaust, 0, 0};

/// Writes down what it hears.
class Listener : public WorkspaceListener {
public:
    void recordOpened() override { heard += "opened "; }
    void recordChanged() override { heard += "changed "; }
    void recordSaved() override { heard += "saved "; }
    void componentsRearranged(const FormerPlaces& places) override {
        heard += "rearranged" + std::to_string(places.size()) + " ";
    }
    void filterDropped() override { heard += "unfiltered "; }
    void modeChanged() override { heard += "mode "; }

    std::string heard;
};

inline std::string tankText(std::string_view longName = "") {
    SquadRecord unit = newUnit(Category::Vehicles, "", "NATIONALITY_GERMAN");
    unit.longName = longName;
    ComponentRecord& turret = unit.vehicle->components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.weapons.emplace_back().type = "WEAPON_A";
    unit.vehicle->exhaustPipes.resize(1);
    return vehicleFileText(unit).value();
}

/// A game with two tanks, a squad and a weapon.
class WorkspaceTest : public testing::Test {
protected:
    WorkspaceTest() {
        folder.write("Game\\" + Tank, tankText());
        folder.write("Game\\Data\\Vehicles\\German Truck.txt", tankText());
        folder.write("Game\\Data\\Infantry\\German Squad.txt",
                     squadFileText(newUnit(Category::Infantry, "", "NATIONALITY_GERMAN")));
        folder.write("Game\\Data\\Weapons\\Gun.txt", weaponFileText(newWeapon("Gun")));
        workspace.programFolder = folder.path() + "Game\\";
        workspace.profileFolder = folder.path() + "User";
        workspace.listener = &listener;
        loadCatalogue(workspace);
        refillNames(workspace);
    }

    /// Changes the name of the open unit or weapon as an editor does.
    void change(const std::string& name) {
        Record& record = workspace.open.present.record;
        if (auto* weapon = std::get_if<WeaponRecord>(&record)) {
            weapon->name = name;
        } else {
            std::get<SquadRecord>(record).longName = name;
        }
        recordChanged(workspace, "Name");
    }

    void nudge(const UnitPart& part, int right = 1) {
        ASSERT_TRUE(nudgeOpenPart(workspace, part, right, 0, {}, false));
    }

    /// "w", "e" or "we" for the positions that are unsaved.
    [[nodiscard]] std::string moved() const {
        return std::string(workspace.open.weaponPosChanged() ? "w" : "") +
               (workspace.open.exhaustPosChanged() ? "e" : "");
    }

    /// The files whose names begin so.
    [[nodiscard]] Names files(const std::string& begin) const {
        Names names = folder.files();
        std::erase_if(names, [&](const std::string& name) { return !name.starts_with(begin); });
        return names;
    }

    static Names captions() {
        Names names;
        for (const Message& message : MessageRecorder::shown()) {
            names.push_back(message.caption);
        }
        return names;
    }

    TemporaryFolder folder;
    MessageRecorder messages;
    Listener listener;
    Workspace workspace;
};

} // namespace varrocade::tests
