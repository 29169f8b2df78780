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
#include "test_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

std::vector<std::string> crLfLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        lines.emplace_back(takePart(text, "\r\n"));
    }
    return lines;
}

/// The lines that one text has in place of the other's: "  - former", "  + new".
std::string changedLines(std::string_view former, std::string_view present) {
    std::vector<std::string> before = crLfLines(former);
    std::vector<std::string> after = crLfLines(present);
    const auto [a, b] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    before.erase(before.begin(), a);
    after.erase(after.begin(), b);
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before.pop_back();
        after.pop_back();
    }
    std::string text;
    for (const std::string& line : before) {
        text += "  - " + line + "\n";
    }
    for (const std::string& line : after) {
        text += "  + " + line + "\n";
    }
    return text;
}

/// Changes the control of one field, named by its element or, without one, by its label.
template <typename Record>
void changeField(const FormShape<Record>& shape, Record& record, std::string_view field,
                 std::string_view value) {
    const auto row = std::find_if(shape.rows.begin(), shape.rows.end(), [&](const FormRow<Record>& each) {
        return (each.field->element.empty() ? each.field->label : each.field->element) == field;
    });
    ASSERT_NE(row, shape.rows.end());
    FakeFormPort port;
    fillForm(port, shape, record);
    port.setText(row->control, value);
    port.setChecked(row->control, value == "yes");
    updateEnabling(port, shape, record);
    if (port.disabled.contains(row->control)) {
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
    const std::string cases = goldenText("squad_edits.txt");
    std::string_view rest = cases;
    const SampleFile* file = nullptr;
    SquadRecord unit;
    std::string former;
    while (!rest.empty()) {
        std::string_view line = takePart(rest, "\n");
        const std::string edit(line);
        SCOPED_TRACE(edit);
        if (line.starts_with("== ")) {
            const auto found =
                std::find_if(sampleFiles().begin(), sampleFiles().end(),
                             [&](const SampleFile& each) { return edit == "== " + each.name; });
            ASSERT_NE(found, sampleFiles().end());
            file = &*found;
            unit = readUnitText(file->content);
            former = rewritten(file->category, file->content);
            continue;
        }
        std::string expected;
        while (rest.starts_with("  ")) {
            expected += std::string(takePart(rest, "\n")) + "\n";
        }
        const std::string_view form = takePart(line, ": ");
        const std::string_view field = takePart(line, " = ");
        SquadRecord changed = unit;
        changeIn(changed, form, field, line);
        EXPECT_EQ(changedLines(former, unitFileText(file->category, changed).value_or("")), expected);
    }
}

} // namespace
} // namespace varrocade::tests
