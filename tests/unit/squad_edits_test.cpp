// Each field of squads on foot, heavy weapons and aircraft changed through its form: which lines of the file
// change, and no others.

#include "data/unit_fields.h"
#include "data/writing/unit_writers.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/man_form.h"
#include "editors/squad/rotor_list.h"
#include "editors/squad/squad_form.h"
#include "editors/unit/uniform_form.h"
#include "editors/unit/unit_lists.h"
#include "fake_form_port.h"
#include "shared/squad_edits.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

/// Changes the control of one field.
template <typename Record>
void changeField(const FormShape<Record>& shape, Record& record, std::string_view field,
                 std::string_view value) {
    const int control = controlOf(shape, field);
    ASSERT_NE(control, 0);
    FakeFormPort port;
    fillForm(port, shape, record);
    port.setText(control, value);
    port.setChecked(control, value == "yes");
    updateEnabling(port, shape, record);
    if (port.disabled.contains(control)) {
        fillForm(port, shape, record);
    }
    const auto error = readForm(port, shape, record);
    EXPECT_FALSE(error) << error->message;
}

/// Opens "man 3 ammo 1": a form, and which of its kind.
void changeIn(SquadRecord& unit, std::string_view form, std::string_view field, std::string_view value) {
    const auto place = [&] {
        return static_cast<std::size_t>(std::stoi(std::string(takePart(form, " ")))) - 1;
    };
    const auto ofArms = [&](auto& bearer) {
        const std::string_view list = takePart(form, " ");
        if (list == "weapon") {
            changeField(weaponShape().form, bearer.weapons.at(place()), field, value);
        } else {
            changeField(ammunitionShape().form, bearer.ammo.at(place()), field, value);
        }
    };
    const std::string_view what = takePart(form, " ");
    if (what == "details") {
        changeField(unit.aircraft ? aircraftShape() : squadShape(), unit, field, value);
    } else if (what == "uniform") {
        changeField(uniformShape(), unit, field, value);
    } else if (what == "availability") {
        changeField(availabilityShape().form, unit.availability.at(place()), field, value);
    } else if (what == "rotor") {
        changeField(rotorShape().form, unit.aircraft->rotorBlades.at(place()), field, value);
    } else if (what == "air") {
        ofArms(*unit.aircraft);
    } else if (what == "heavy") {
        if (form.empty()) {
            changeField(heavyWeaponShape(), *unit.heavyWeapon, field, value);
        } else {
            ofArms(*unit.heavyWeapon);
        }
    } else {
        CrewManRecord& man = unit.infantrymen.at(place());
        if (form.empty()) {
            changeField(manShape(), man, field, value);
        } else {
            takePart(form, " ");
            changeField(ammunitionShape().form, man.ammo.at(place()), field, value);
        }
    }
}

TEST(SquadEdits, ChangeTheLinesOfTheirFieldAndNoOthers) {
    const SampleFile* file = nullptr;
    for (const SquadEdit& edit : squadEdits(goldenText("squad_edits.txt"))) {
        SCOPED_TRACE(edit.unit + ": " + edit.form + ": " + edit.field + " = " + edit.value);
        if (file == nullptr || file->name != edit.unit) {
            const auto found = std::find_if(sampleFiles().begin(), sampleFiles().end(),
                                            [&](const SampleFile& each) { return each.name == edit.unit; });
            ASSERT_NE(found, sampleFiles().end());
            file = &*found;
        }
        SquadRecord unit = readUnitText(file->content);
        changeIn(unit, edit.form, edit.field, edit.value);
        EXPECT_EQ(changedLines(rewritten(file->category, file->content),
                               unitFileText(file->category, unit).value_or("")),
                  edit.changed);
    }
}

} // namespace
} // namespace varrocade::tests
