// The layout of weapon files, top to bottom.

#include "data/field_text.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"

namespace varrocade {

namespace {

namespace we = weapon_element;
namespace wf = weapon_field;
using namespace field_text;

void writeDimensions(FileText& out, const WeaponRecord& weapon) {
    out.open(1, we::Dimensions);
    lines(out, 2, weapon, wf::Calibre, wf::BarrelLength, wf::NumberOfBarrels);
    out.close(1, we::Dimensions).blankLine();
}

/// A group of lines, unless there is none to write.
template <typename... Fields>
void writeGroup(FileText& out, std::string_view name, const WeaponRecord& weapon, const Fields&... fields) {
    if ((fields.isOmitted(weapon) && ...)) {
        return;
    }
    out.open(1, name);
    lines(out, 2, weapon, fields...);
    out.close(1, name).blankLine();
}

void writeAmmoType(FileText& out, const AmmoTypeRecord& ammo, WeaponType weaponType) {
    const Holder flavour = holderOf(ammo.flavour);
    const Holder weapon = holderOf(weaponType);
    const auto writeOne = [&](const auto& field) {
        if (field.isStoredBy(flavour, weapon)) {
            piece(out, field, ammo);
        }
    };
    const auto write = [&](const auto&... fields) { (writeOne(fields), ...); };
    out.indent(2).startTag(we::Type);
    write(wf::Flavour, wf::Speed, wf::Mass, wf::Era, wf::Guided, wf::SmokeTrail, wf::AmmoTracerImage,
          wf::HighExplosive, wf::ExplodeIn, wf::ExplodeSound, wf::AmmoName);
    out.endTag(we::Type).endLine();
}

void writeComments(FileText& out, const WeaponRecord& weapon) {
    if (weapon.comments.empty()) {
        return;
    }
    out.open(1, we::Comments);
    out.indent(1).raw(weapon.comments).endLine();
    out.close(1, we::Comments).blankLine();
}

} // namespace

std::string weaponFileText(const WeaponRecord& weapon) {
    const bool hasBarrel = wf::WithBarrel.has(holderOf(weapon.type));
    FileText out;
    out.open(0, we::Weapon).blankLine();
    lines(out, 1, weapon, wf::Name, wf::Type);
    out.blankLine();
    if (hasBarrel) {
        writeDimensions(out, weapon);
    }
    writeGroup(out, we::Shoot, weapon, wf::ShootSound, wf::TracerImage, wf::Range, wf::RateOfFire,
               wf::MuzzleFlash, wf::Reload);
    if (hasBarrel) {
        writeGroup(out, we::Magazine, weapon, wf::Capacity, wf::SingleShot, wf::ReloadSound,
                   wf::EjectClipSound);
    }
    out.open(1, we::Ammo);
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        writeAmmoType(out, ammo, weapon.type);
    }
    out.close(1, we::Ammo).blankLine();
    writeComments(out, weapon);
    writeGroup(out, we::Usage, weapon, wf::Period, wf::Countries);
    out.close(0, we::Weapon);
    return out.take();
}

SaveOutcome saveWeapon(FileOperations& files, BackupKeeper& backups, const std::string& base,
                       std::string_view fileName, const WeaponRecord& weapon) {
    std::string text = weaponFileText(weapon);
    const std::string path = dataFilePath(base, Category::Weapons, fileName);
    if (auto failure = replaceDataFile(files, backups, base, path, text)) {
        return {.result = SaveResult::Failed, .failure = std::move(*failure)};
    }
    return {.result = SaveResult::Saved, .content = std::move(text)};
}

} // namespace varrocade
