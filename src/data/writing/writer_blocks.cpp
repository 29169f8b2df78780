#include "data/writing/writer_blocks.h"

#include "data/field_text.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"

namespace varrocade::writer_blocks {

namespace e = element;
using namespace field_text;

void writeAvailability(FileText& out, std::span<const AvailabilityPoint> points) {
    out.open(1, e::Availability);
    for (const AvailabilityPoint& point : points) {
        out.indent(2).startTag(e::Data);
        pieces(out, point, field::Month, field::Year, field::NumberOfUnits);
        out.endTag(e::Data).endLine();
    }
    out.close(1, e::Availability).blankLine();
}

void writeManFlags(FileText& out, int tabs, const CrewManRecord& man) {
    lines(out, tabs, man, field::ManLanguage, field::BodyArmour, field::ManNightVision);
}

void writePersonalWeapons(FileText& out, int tabs, const CrewManRecord& man) {
    for (const Text& weapon : man.weapons) {
        out.indent(tabs).startTag(e::Weapon).element(field::PersonalWeapons.element, weapon);
        out.endTag(e::Weapon).endLine();
    }
}

void writeAmmo(FileText& out, int tabs, const AmmoLoadRecord& ammo, bool withFlavour) {
    out.indent(tabs).startTag(e::Ammo);
    piece(out, field::AmmoFor, ammo);
    if (withFlavour) {
        put(out, field::Flavour, ammo);
    }
    piece(out, field::Rounds, ammo);
    out.endTag(e::Ammo).endLine();
}

} // namespace varrocade::writer_blocks
