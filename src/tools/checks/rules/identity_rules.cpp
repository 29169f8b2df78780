#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;

/// The nationality that a file's name begins with, the longest where there are several; empty for none.
std::string_view nationalityOfFile(std::string_view fileName) {
    static const std::vector<std::string> words = [] {
        std::vector<std::string> shown;
        for (const std::string_view name : nationalityNames()) {
            shown.push_back(displayName(name, NationalityPrefix));
        }
        return shown;
    }();
    std::string_view found;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view name = nationalityNames()[i];
        const std::string& word = words[i];
        const bool begins = fileName.size() > word.size() && fileName[word.size()] == ' ' &&
                            equalsIgnoringCase(fileName.substr(0, word.size()), word);
        found = begins && name.size() > found.size() ? name : found;
    }
    return found;
}

void checkCategory(const CheckedUnit& checked) {
    const SquadRecord& unit = checked.unit;
    const bool isVehicle = checked.category == Category::Vehicles;
    const bool isAircraft = checked.category == Category::Aircraft;
    std::string_view lacking;
    if (isVehicle && !unit.vehicle) {
        lacking = element::Vehicle;
    } else if (isAircraft && !unit.aircraft) {
        lacking = element::Aircraft;
    } else if (!isVehicle && !isAircraft && (unit.vehicle || unit.aircraft)) {
        lacking = element::Man;
    } else if (checked.category == Category::AtGuns && !unit.heavyWeapon) {
        lacking = element::Atgun;
    }
    if (!lacking.empty()) {
        checked.out.atValue(field::Type.element, {.key = ck::WrongCategory,
                                                  .message = "a file of the folder " +
                                                             std::string(categoryName(checked.category)) +
                                                             " needs a " + tagText(lacking),
                                                  .value = unit.type.str(),
                                                  .expected = tagText(lacking)});
    }
}

void checkType(const CheckedUnit& checked) {
    constexpr auto ofVehicles =
        std::to_array<std::string_view>({"TYPE_ARMOURED_CAR", "TYPE_ASSAULT_GUN", "TYPE_HALFTRACK",
                                         "TYPE_INFANTRY_FIGHTING_VEHICLE", "TYPE_LORRY", "TYPE_TANK"});
    constexpr auto ofAircraft = std::to_array<std::string_view>({"TYPE_HELICOPTER", "TYPE_PLANE"});
    const std::string_view type = checked.unit.type;
    const auto names = unitTypeNames();
    const bool isKnown = std::find(names.begin(), names.end(), type) != names.end();
    const bool isVehicle = std::find(ofVehicles.begin(), ofVehicles.end(), type) != ofVehicles.end();
    const bool isAircraft = std::find(ofAircraft.begin(), ofAircraft.end(), type) != ofAircraft.end();
    if (isKnown &&
        (isVehicle != checked.unit.vehicle.has_value() || isAircraft != checked.unit.aircraft.has_value())) {
        checked.out.atValue(field::Type.element, {.key = ck::WrongCategory,
                                                  .message = quoted(type) + " is not the type of such a unit",
                                                  .value = std::string(type)});
    }
}

void checkNationality(const CheckedUnit& checked) {
    const std::string_view ofFile = nationalityOfFile(checked.fileName);
    const std::string_view ofUnit = checked.unit.nationality;
    if (ofFile.empty() || ofFile == ofUnit ||
        equalsIgnoringCase(displayName(ofFile, NationalityPrefix), displayName(ofUnit, NationalityPrefix))) {
        return;
    }
    checked.out.atValue(field::Nationality.element,
                        {.key = ck::FileNationality,
                         .message = "the unit is " + displayName(ofUnit, NationalityPrefix) +
                                    ", its file's name begins with " + displayName(ofFile, NationalityPrefix),
                         .value = std::string(ofUnit),
                         .expected = std::string(ofFile),
                         .hint = "write " + quoted(ofFile) + ", or rename the file"});
}

void checkNames(const CheckedUnit& checked) {
    const auto found = checked.knowledge.unitsByName.find(checked.unit.longName.view());
    if (found == checked.knowledge.unitsByName.end()) {
        return;
    }
    for (const KnownUnit& other : found->second) {
        if (other.file != checked.out.file() && other.nationality == checked.unit.nationality.view()) {
            checked.out.atValue(field::LongName.element, {.key = ck::SameName,
                                                          .message = quoted(checked.unit.longName) +
                                                                     " is also the name of " + other.file,
                                                          .value = checked.unit.longName.str()});
            return;
        }
    }
}

} // namespace

void checkIdentity(const CheckedUnit& checked) {
    checkCategory(checked);
    const std::vector<Finding>& found = checked.out.found();
    const bool isWrongKind = std::any_of(found.begin(), found.end(),
                                         [](const Finding& one) { return one.key == ck::WrongCategory; });
    if (!isWrongKind) {
        checkType(checked);
    }
    checkNationality(checked);
    checkNames(checked);
}

} // namespace varrocade
