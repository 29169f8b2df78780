// What the elements of a "Mod.txt" set.

#include "data/element_table.h"
#include "data/tag_rules.h"
#include "mod/mod_elements.h"
#include "mod/mod_fields.h"
#include "mod/mod_text.h"

#include <array>

namespace varrocade {

namespace {

namespace mf = mod_field;
namespace me = mod_element;

enum class ModPlace : std::uint8_t {
    Unknown,
    Mod,
    Years,
    Credits,
    Colours,
    Nationality,
    Allegiance,
    Surnames,
    Surname,
    Uniform,
    Ranks,
    Rank,
    Equipment,
    Unit
};

struct ModReading : TagReading {
    using Place = ModPlace;
    using File = ModSettings;

    ModSettings& settings;
    ModPeriod* period = nullptr; ///< of the entry that is being read
};

// Places are entered from above only, so each of these is asked for when its entry is there.
template <typename Entry>
Entry* lastOf(std::vector<Entry>& entries) {
    return entries.empty() ? nullptr : &entries.back();
}
ModSettings* target(ModReading& reading, const ModSettings*) {
    return &reading.settings;
}
ModColours* target(ModReading& reading, const ModColours*) {
    return &reading.settings.colours;
}
ModPeriod* target(ModReading& reading, const ModPeriod*) {
    return reading.period;
}
ModNationality* target(ModReading& reading, const ModNationality*) {
    return lastOf(reading.settings.nationalities);
}
ModAllegiance* target(ModReading& reading, const ModAllegiance*) {
    return lastOf(reading.settings.nationalities.back().allegiances);
}
ModSurname* target(ModReading& reading, const ModSurname*) {
    return lastOf(reading.settings.nationalities.back().surnames);
}
ModUniform* target(ModReading& reading, const ModUniform*) {
    return lastOf(reading.settings.nationalities.back().uniforms);
}
ModRank* target(ModReading& reading, const ModRank*) {
    return lastOf(reading.settings.nationalities.back().ranks);
}
ModEquipment* target(ModReading& reading, const ModEquipment*) {
    return lastOf(reading.settings.nationalities.back().equipment);
}
ModListedUnit* target(ModReading& reading, const ModListedUnit*) {
    return lastOf(reading.settings.nationalities.back().equipment.back().units);
}

void addCreditLine(ModReading& reading, std::string_view text) {
    reading.settings.credits.emplace_back(text);
}
void addNationality(ModReading& reading, std::string_view) {
    reading.settings.nationalities.emplace_back();
}
/// An entry with a period is where the next dates belong.
template <auto Entries>
void addTimed(ModReading& reading, std::string_view) {
    reading.period = &(reading.settings.nationalities.back().*Entries).emplace_back().period;
}
template <auto Entries>
void add(ModReading& reading, std::string_view) {
    (reading.settings.nationalities.back().*Entries).emplace_back();
}
void addUnit(ModReading& reading, std::string_view) {
    reading.settings.nationalities.back().equipment.back().units.emplace_back();
}

using ModRule = tag_rules::Rule<ModReading>;
using P = ModPlace;

template <const auto& F>
constexpr ModRule value(ModPlace in) {
    return {in, F.element, P::Unknown, tag_rules::set<ModReading, F>, tag_rules::FieldList<F>};
}

constexpr auto ModRules = std::to_array<ModRule>({
    {P::Unknown, me::Mod, P::Mod},     value<mf::Name>(P::Mod),
    value<mf::Author>(P::Mod),         value<mf::Version>(P::Mod),
    value<mf::Comment>(P::Mod),        {P::Mod, me::Years, P::Years},
    value<mf::FirstYear>(P::Years),    value<mf::FirstMonth>(P::Years),
    value<mf::LastYear>(P::Years),     value<mf::LastMonth>(P::Years),
    {P::Mod, me::Credits, P::Credits}, {P::Credits, me::CreditLine, P::Unknown, addCreditLine},
    {P::Mod, me::Colours, P::Colours}, value<mf::Background>(P::Colours),
    value<mf::Panel>(P::Colours),      value<mf::Text>(P::Colours),
    value<mf::Heading>(P::Colours),    value<mf::Button>(P::Colours),
    value<mf::ButtonText>(P::Colours), value<mf::Selection>(P::Colours),
    value<mf::Friendly>(P::Colours),   value<mf::Enemy>(P::Colours),
    value<mf::Neutral>(P::Colours),
});

template <ModPlace Place>
constexpr std::array<ModRule, 4> PeriodRules = {
    value<mf::PeriodFirstYear>(Place), value<mf::PeriodFirstMonth>(Place), value<mf::PeriodLastYear>(Place),
    value<mf::PeriodLastMonth>(Place)};

constexpr auto NationalityRules = std::to_array<ModRule>({
    {P::Mod, me::Nationality, P::Nationality, addNationality},
    value<mf::Id>(P::Nationality),
    value<mf::ShownName>(P::Nationality),
    value<mf::Adjective>(P::Nationality),
    value<mf::Flag>(P::Nationality),
    value<mf::AnimatedFlag>(P::Nationality),
    {P::Nationality, me::Allegiance, P::Allegiance, addTimed<&ModNationality::allegiances>},
    value<mf::Side>(P::Allegiance),
    {P::Nationality, me::Surnames, P::Surnames},
    {P::Surnames, me::Surname, P::Surname, add<&ModNationality::surnames>},
    value<mf::SurnameText>(P::Surname),
    value<mf::Commonness>(P::Surname),
    {P::Nationality, me::Uniform, P::Uniform, addTimed<&ModNationality::uniforms>},
    value<mf::UniformProfile>(P::Uniform),
    value<mf::UniformGame>(P::Uniform),
    value<mf::UniformRanks>(P::Uniform),
    {P::Nationality, me::Ranks, P::Ranks},
    {P::Ranks, me::Rank, P::Rank, add<&ModNationality::ranks>},
    value<mf::RankName>(P::Rank),
    value<mf::RankImage>(P::Rank),
    {P::Nationality, me::Equipment, P::Equipment, addTimed<&ModNationality::equipment>},
    value<mf::EquipmentName>(P::Equipment),
    {P::Equipment, me::Unit, P::Unit, addUnit},
    value<mf::UnitFile>(P::Unit),
    value<mf::UnitCategory>(P::Unit),
    value<mf::UnitShare>(P::Unit),
    value<mf::UnitCost>(P::Unit),
});

const tag_rules::RuleTable<ModReading>& ruleTable() {
    static const auto table = [] {
        tag_rules::RuleTable<ModReading> rules;
        rules.add(ModRules);
        rules.add(NationalityRules);
        rules.add(PeriodRules<P::Allegiance>);
        rules.add(PeriodRules<P::Uniform>);
        rules.add(PeriodRules<P::Equipment>);
        return rules;
    }();
    return table;
}

ModPlace visitSetting(ModReading& reading, ModPlace parent, const TagNode& node, bool& hasRule) {
    // Within an element that is not ours, ours mean nothing, nor does a second <mod> further in.
    if ((parent == P::Unknown || node.name == me::Mod) && node.parent != 0) {
        return P::Unknown;
    }
    return tag_rules::apply(ruleTable(), reading, parent, node, hasRule);
}

} // namespace

const ElementTable& modElements() {
    static const ElementTable table(ruleTable());
    return table;
}

ModSettings readModSettings(std::string_view fileContent) {
    ModSettings settings;
    TagTree tree;
    tree.parse(fileContent);
    ModReading reading{{.tree = tree}, settings};
    tag_rules::walk(reading, visitSetting);
    return settings;
}

} // namespace varrocade
