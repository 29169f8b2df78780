#include "data/unit/writer_blocks.h"

#include "data/unit/elements.h"

namespace varrocade::writer_blocks {

namespace e = element;

void writeAvailability(FileText& out, std::span<const AvailabilityPoint> points) {
    out.open(1, e::Availability);
    for (const AvailabilityPoint& point : points) {
        out.indent(2).startTag(e::Data);
        out.element(e::Month, point.month).element(e::Year, point.year).element(e::Number, point.number);
        out.endTag(e::Data).endLine();
    }
    out.close(1, e::Availability).blankLine();
}

void writeManFlags(FileText& out, int tabs, const CrewManRecord& man) {
    out.lineIfGiven(tabs, e::Language, man.language);
    out.flag(tabs, e::BodyArmour, man.bodyArmour);
    out.flag(tabs, e::NightVision, man.nightVision);
}

void writePersonalWeapons(FileText& out, int tabs, const CrewManRecord& man) {
    for (const Text& weapon : man.weapons) {
        out.indent(tabs).startTag(e::Weapon).element(e::Type, weapon).endTag(e::Weapon).endLine();
    }
}

void writeAmmo(FileText& out, int tabs, const AmmoLoadRecord& ammo, bool withFlavour) {
    out.indent(tabs).startTag(e::Ammo).element(e::For, ammo.weaponType);
    if (withFlavour) {
        out.element(e::Flavour, ammo.flavour);
    }
    out.element(e::Rounds, ammo.rounds).endTag(e::Ammo).endLine();
}

} // namespace varrocade::writer_blocks
