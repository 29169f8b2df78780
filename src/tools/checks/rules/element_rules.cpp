#include "tools/checks/rules/element_rules.h"

#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/reading/unit_rules.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;
namespace e = element;
namespace older = element::older;

/// What a file of the game never lacks: the element `name` in each `parent`.
struct Required {
    std::string_view parent;
    std::string_view name;
    bool ofWeaponFiles = false;
};

constexpr auto RequiredElements = std::to_array<Required>({
    {e::Squad, e::Description},
    {e::Squad, e::Availability},
    {e::Aircraft, e::Description},
    {e::Aircraft, e::Availability},
    {e::Description, field::Type.element},
    {e::Description, field::Nationality.element},
    {e::Description, field::LongName.element},
    {e::Description, field::ShortName.element},
    {e::Data, field::Month.element},
    {e::Data, field::Year.element},
    {e::Data, field::NumberOfUnits.element},
    {e::Vehicle, e::Attributes},
    {e::Vehicle, e::Drive},
    {e::Vehicle, e::Hull},
    {e::Attributes, field::Weight.element},
    {e::Attributes, field::ProfileImage.element},
    {e::Drive, e::Engine},
    {e::Drive, field::Steering.element},
    {e::Drive, e::Gears},
    {e::Hull, field::ViewImage.element},
    {e::Hull, field::Width.element},
    {e::Hull, field::Length.element},
    {e::Hull, field::Height.element},
    {e::Hull, e::Armour},
    {e::Superstructure, field::Width.element},
    {e::Superstructure, field::Length.element},
    {e::Superstructure, field::Height.element},
    {e::Turret, field::ViewImage.element},
    {e::Turret, field::Height.element},
    {e::Turret, field::Diameter.element},
    {e::Turret, field::RotateTime.element},
    {e::FixedWeapon, field::RotateTime.element},
    {e::FixedWeapon, field::OffsetZ.element},
    {e::Weapon, field::MountedType.element},
    {e::Ammo, field::AmmoFor.element},
    {e::Ammo, field::Rounds.element},
    {weapon_element::Weapon, weapon_field::Name.element, true},
    {weapon_element::Weapon, weapon_field::Type.element, true},
    {weapon_element::Weapon, weapon_element::Ammo, true},
    {weapon_element::Type, weapon_field::Flavour.element, true},
    {weapon_element::Type, weapon_field::Mass.element, true},
});

/// What is known of a row of a table beforehand.
struct RowFacts {
    std::vector<std::string_view> required; ///< what the element may not lack
    /// Rows that may not stand beside each other in one parent have a bit in common. Others may have, too.
    std::uint64_t bits = 0;
};

/// Numbers those that come, in their order, and gives a bit for each.
template <typename Thing>
class Bits {
public:
    std::uint64_t of(Thing thing) {
        constexpr std::size_t most = 64;
        return std::uint64_t{1} << (numbers_.try_emplace(thing, numbers_.size()).first->second % most);
    }

private:
    std::map<Thing, std::size_t> numbers_;
};

std::vector<RowFacts> factsOfRows(const ElementTable& table, bool ofWeapons) {
    std::vector<RowFacts> facts;
    Bits<FieldId> ofFields;
    Bits<std::string_view> ofGroups;
    for (const ElementRow& row : table.rows()) {
        RowFacts& known = facts.emplace_back();
        for (const Required& one : RequiredElements) {
            if (one.parent == row.element && one.ofWeaponFiles == ofWeapons && row.place != 0 &&
                table.find(row.place, one.name) != nullptr) {
                known.required.push_back(one.name);
            }
        }
        known.bits = row.place != 0 ? ofGroups.of(row.element) : 0;
        for (const FieldId field : row.fields) {
            known.bits |= ofFields.of(field);
        }
    }
    return facts;
}

/// The same of the two tables that there are, made once.
const std::vector<RowFacts>& rowFacts(bool ofWeapons) {
    static const std::vector<RowFacts> ofUnitFiles = factsOfRows(unit_rules::elements(), false);
    static const std::vector<RowFacts> ofWeaponFiles = factsOfRows(weapon_rules::elements(), true);
    return ofWeapons ? ofWeaponFiles : ofUnitFiles;
}

/// Older forms that have no field of their own: what stands in their place today.
std::string_view olderForm(const TagNode& node, const TagNode& parent, const ElementRow& row) {
    if (node.name == e::Commonness) {
        return e::Availability;
    }
    const bool isInDrive = parent.name == e::Drive;
    if (isInDrive && row.place != 0 && !row.fields.empty() && !node.text.empty()) {
        return field::EngineName.element;
    }
    constexpr auto ofEngine = std::to_array<FieldId>(
        {&field::Reliability, &field::MountOfEngine, &field::IdleRevolutions, &field::RevolutionLimit});
    const bool isOfEngine = !row.fields.empty() &&
                            std::find(ofEngine.begin(), ofEngine.end(), row.fields.front()) != ofEngine.end();
    return isInDrive && isOfEngine ? e::Engine : std::string_view();
}

bool isQuarter(std::string_view name) {
    return name.size() == 6 && name[4] == 'Q' && name[5] >= '1' && name[5] <= '4' &&
           entireInteger(name.substr(0, 4)).has_value();
}

class ElementCheck {
public:
    ElementCheck(std::span<const TagNode> nodes, Category category, const ElementTable& table,
                 FileFindings& out)
        : nodes_(nodes), table_(table), out_(out), ofWeapons_(category == Category::Weapons),
          facts_(rowFacts(ofWeapons_)), places_(nodes.size(), 0), rows_(nodes.size(), nullptr) {}

    void run() {
        for (std::uint32_t i = 1; i < nodes_.size(); ++i) {
            const TagNode& node = nodes_[i];
            const bool isAtTop = node.parent == 0;
            // What an unknown element holds went with it.
            const bool isInForeign = !isAtTop && places_[node.parent] == 0;
            const ElementRow* row = table_.find(places_[node.parent], node.name);
            if (row == nullptr || (isAtTop && !isRoot(node.name)) || (isInForeign && row->parent == 0)) {
                checkForeign(node, isInForeign);
                continue;
            }
            rows_[i] = row;
            places_[i] = row->place;
            checkKnown(node, *row);
        }
        for (std::uint32_t i = 0; i < nodes_.size(); ++i) {
            if (nodes_[i].childCount > 1 && (i == 0 || places_[i] != 0)) {
                checkTwice(nodes_[i]);
            }
            if (i != 0 && rows_[i] != nullptr && rows_[i]->place != 0) {
                checkMissing(nodes_[i], *rows_[i]);
            }
        }
    }

private:
    [[nodiscard]] bool isRoot(std::string_view name) const {
        return ofWeapons_ ? name == weapon_element::Weapon : name == e::Squad || name == e::Aircraft;
    }
    [[nodiscard]] const RowFacts& factsOf(const ElementRow& row) const {
        return facts_[static_cast<std::size_t>(&row - table_.rows().data())];
    }
    [[nodiscard]] const TagNode& parentOf(const TagNode& node) const { return nodes_[node.parent]; }
    [[nodiscard]] std::string placeText(const TagNode& node) const {
        return node.parent == 0 ? std::string("at the top of the file")
                                : "in " + tagText(parentOf(node).name);
    }

    void checkForeign(const TagNode& node, bool isInForeign) {
        const bool isInValue = isInForeign && rows_[node.parent] != nullptr;
        const bool isSilent = isInForeign && !isInValue;
        if (isSilent) {
            return;
        }
        if (parentOf(node).name == e::Commonness && !ofWeapons_ && isQuarter(node.name)) {
            checkValueText(node, field::NumberOfUnits, out_);
            return;
        }
        if (table_.knows(node.name)) {
            out_.atElement(node, {.key = ck::WrongPlace,
                                  .message = tagText(node.name) + " has no place " + placeText(node),
                                  .expected = homesOf(node.name),
                                  .hint = isInValue ? tagText(parentOf(node).name) + " holds a value and no "
                                                                                     "elements"
                                                    : "it stands in " + homesOf(node.name)});
            return;
        }
        NearestName nearest(node.name);
        for (const ElementRow& row : table_.rows()) {
            if (row.parent == places_[node.parent] && row.today.empty()) {
                nearest.offer(row.element);
            }
        }
        if (nearest.name().empty()) {
            for (const ElementRow& row : table_.rows()) {
                nearest.offer(row.element);
            }
        }
        out_.atElement(node, {.key = finding_key::UnknownElement,
                              .message = tagText(node.name) + " " + placeText(node) + " is not known",
                              .value = std::string(node.name),
                              .hint = nearest.name().empty() ? "" : "did you mean <" + nearest.name() + ">?",
                              .replacement = nearest.onlyName()});
    }

    /// "<turret>, <hull>": the elements that an element stands in.
    [[nodiscard]] std::string homesOf(std::string_view name) const {
        constexpr std::size_t mostShown = 4;
        std::set<std::string_view> homes;
        for (const ElementRow& row : table_.rows()) {
            if (row.element != name) {
                continue;
            }
            for (const ElementRow& home : table_.rows()) {
                if (home.place == row.parent && row.parent != 0) {
                    homes.insert(home.element);
                }
            }
        }
        std::string text;
        std::size_t count = 0;
        for (const std::string_view home : homes) {
            if (++count > mostShown) {
                return text + " and others";
            }
            text += (text.empty() ? "" : ", ") + tagText(home);
        }
        return text.empty() ? std::string("the top of the file") : text;
    }

    void checkKnown(const TagNode& node, const ElementRow& row) {
        if (row.isGroup() && !node.text.empty()) {
            out_.atText(node, {.key = ck::StrayText,
                               .message = quoted(node.text) + " stands where the elements of " +
                                          tagText(node.name) + " should be"});
            return;
        }
        std::string_view today = row.today == node.name ? std::string_view() : row.today;
        const bool isOtherPlace = today.empty();
        today = isOtherPlace ? olderForm(node, parentOf(node), row) : today;
        if (!today.empty()) {
            const bool isOtherWay = node.name == older::MinAngle || node.name == older::MinAngleCamel;
            const bool isPlace = isOtherPlace && node.name != e::Commonness && node.name != e::Engine;
            out_.atElement(node, {.key = ck::OlderSpelling,
                                  .message = tagText(node.name) + " is an older form",
                                  .value = std::string(node.name),
                                  .expected = tagText(today),
                                  .hint = (isPlace ? "it stands in " : "write ") + tagText(today) +
                                          (isOtherWay ? " without the minus" : " today")});
        }
        if (row.place == 0 && node.childCount == 0 && !row.fields.empty()) {
            checkValueText(node, *row.fields.front(), out_);
        }
    }

    /// Groups that stand once, and fields that one element sets after another did.
    void checkTwice(const TagNode& parent) {
        seen_.clear();
        std::uint64_t seenBits = 0;
        for (std::uint32_t i = parent.firstChild; i != TagNode::None; i = nodes_[i].nextSibling) {
            const ElementRow* row = rows_[i];
            if (row == nullptr) {
                continue;
            }
            const bool isAlone = row->place != 0 && (!row->makesEntry || row->element == e::Vehicle ||
                                                     row->element == e::Aircraft);
            const std::uint64_t bits = factsOf(*row).bits;
            if ((bits & seenBits) != 0 && isTwice(*row, isAlone)) {
                out_.atElement(nodes_[i], {.key = ck::GivenTwice,
                                           .message = elementText(nodes_[i]) + " " + placeText(nodes_[i]) +
                                                      " was given before"});
            }
            if (isAlone || (row->place == 0 && !row->fields.empty())) {
                seen_.push_back(i);
                seenBits |= bits;
            }
        }
    }

    /// Whether an element of a row sets what one of those seen did, or is a group that was there.
    [[nodiscard]] bool isTwice(const ElementRow& row, bool isAlone) const {
        return std::any_of(seen_.begin(), seen_.end(), [&](std::uint32_t earlier) {
            const ElementRow& former = *rows_[earlier];
            if (isAlone || former.place != 0) {
                return isAlone && former.element == row.element;
            }
            // A plate of its own after that of both is how armour is given.
            const bool isPartOfFormer =
                former.fields.size() > row.fields.size() && former.element != row.element;
            return !isPartOfFormer && std::any_of(row.fields.begin(), row.fields.end(), [&](FieldId field) {
                return std::find(former.fields.begin(), former.fields.end(), field) != former.fields.end();
            });
        });
    }

    void checkMissing(const TagNode& node, const ElementRow& row) {
        for (const std::string_view required : factsOf(row).required) {
            if (ofWeapons_ && node.name == weapon_element::Type &&
                parentOf(node).name != weapon_element::Ammo) {
                continue;
            }
            bool isThere = false;
            for (std::uint32_t i = node.firstChild; i != TagNode::None; i = nodes_[i].nextSibling) {
                if (nodes_[i].name == required ||
                    (required == e::Availability && nodes_[i].name == e::Commonness)) {
                    isThere = true;
                    break;
                }
            }
            if (!isThere) {
                out_.atElement(node, {.key = ck::MissingElement,
                                      .message = tagText(node.name) + " has no " + tagText(required),
                                      .expected = tagText(required),
                                      .field = std::string(required)});
            }
        }
    }

    std::span<const TagNode> nodes_;
    const ElementTable& table_;
    FileFindings& out_;
    bool ofWeapons_;
    const std::vector<RowFacts>& facts_;
    std::vector<std::uint8_t> places_;
    std::vector<const ElementRow*> rows_;
    std::vector<std::uint32_t> seen_;
};

} // namespace

void checkElements(std::span<const TagNode> nodes, Category category, const ElementTable& table,
                   FileFindings& out) {
    ElementCheck(nodes, category, table, out).run();
}

} // namespace varrocade
