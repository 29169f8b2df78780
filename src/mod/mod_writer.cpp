// The layout of a new "Mod.txt", top to bottom. Entries of long lists take a line each.

#include "data/field_text.h"
#include "mod/mod_elements.h"
#include "mod/mod_fields.h"
#include "mod/mod_text.h"

namespace varrocade {

namespace {

namespace mf = mod_field;
namespace me = mod_element;
using field_text::lines;
using field_text::pieces;

void putPeriod(FileText& out, const ModPeriod& period) {
    pieces(out, period, mf::PeriodFirstYear, mf::PeriodFirstMonth, mf::PeriodLastYear, mf::PeriodLastMonth);
}

template <typename Entry, typename Put>
void putList(FileText& out, int tabs, std::string_view group, std::string_view name,
             const std::vector<Entry>& entries, Put put) {
    if (entries.empty()) {
        return;
    }
    out.open(tabs, group);
    for (const Entry& entry : entries) {
        out.indent(tabs + 1).startTag(name);
        put(entry);
        out.endTag(name).endLine();
    }
    out.close(tabs, group);
}

void writeYears(FileText& out, const ModSettings& settings) {
    out.open(1, me::Years);
    lines(out, 2, settings, mf::FirstYear, mf::FirstMonth, mf::LastYear, mf::LastMonth);
    out.close(1, me::Years);
}

void writeColours(FileText& out, const ModColours& colours) {
    if (colours == ModColours()) {
        return;
    }
    out.open(1, me::Colours);
    lines(out, 2, colours, mf::Background, mf::Panel, mf::Text, mf::Heading, mf::Button, mf::ButtonText,
          mf::Selection, mf::Friendly, mf::Enemy, mf::Neutral);
    out.close(1, me::Colours);
}

void writeEquipment(FileText& out, const ModEquipment& list) {
    out.open(2, me::Equipment);
    lines(out, 3, list, mf::EquipmentName);
    lines(out, 3, list.period, mf::PeriodFirstYear, mf::PeriodFirstMonth, mf::PeriodLastYear,
          mf::PeriodLastMonth);
    for (const ModListedUnit& unit : list.units) {
        out.indent(3).startTag(me::Unit);
        pieces(out, unit, mf::UnitFile, mf::UnitCategory, mf::UnitShare, mf::UnitCost);
        out.endTag(me::Unit).endLine();
    }
    out.close(2, me::Equipment);
}

void writeNationality(FileText& out, const ModNationality& nation) {
    out.blankLine();
    out.open(1, me::Nationality);
    lines(out, 2, nation, mf::Id, mf::ShownName, mf::Adjective, mf::Flag, mf::AnimatedFlag);
    for (const ModAllegiance& allegiance : nation.allegiances) {
        out.indent(2).startTag(me::Allegiance);
        pieces(out, allegiance, mf::Side);
        putPeriod(out, allegiance.period);
        out.endTag(me::Allegiance).endLine();
    }
    for (const ModUniform& uniform : nation.uniforms) {
        out.indent(2).startTag(me::Uniform);
        pieces(out, uniform, mf::UniformProfile, mf::UniformGame, mf::UniformRanks);
        putPeriod(out, uniform.period);
        out.endTag(me::Uniform).endLine();
    }
    putList(out, 2, me::Ranks, me::Rank, nation.ranks,
            [&](const ModRank& rank) { pieces(out, rank, mf::RankName, mf::RankImage); });
    for (const ModEquipment& list : nation.equipment) {
        writeEquipment(out, list);
    }
    putList(out, 2, me::Surnames, me::Surname, nation.surnames,
            [&](const ModSurname& surname) { pieces(out, surname, mf::SurnameText, mf::Commonness); });
    out.close(1, me::Nationality);
}

} // namespace

std::string modSettingsText(const ModSettings& settings) {
    FileText out;
    out.open(0, me::Mod);
    lines(out, 1, settings, mf::Name, mf::Author, mf::Version, mf::Comment);
    writeYears(out, settings);
    putList(out, 1, me::Credits, me::CreditLine, settings.credits,
            [&](const std::string& line) { out.raw(line); });
    writeColours(out, settings.colours);
    for (const ModNationality& nation : settings.nationalities) {
        writeNationality(out, nation);
    }
    out.close(0, me::Mod);
    return out.take();
}

} // namespace varrocade
