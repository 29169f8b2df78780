// The layout of weapon files, top to bottom.

#include "data/format/file_text.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

namespace varrocade {

namespace {

namespace we = weapon_element;

void writeDimensions(FileText& out, const WeaponRecord& weapon) {
    out.open(1, we::Dimensions);
    if (weapon.calibre > 0) {
        out.indent(2).realElement(we::Calibre, weapon.calibre).endLine();
    }
    if (weapon.barrelLength > 0) {
        out.line(2, we::BarrelLength, weapon.barrelLength);
    }
    if (weapon.numberOfBarrels > 1) {
        out.line(2, we::NumberBarrels, weapon.numberOfBarrels);
    }
    out.close(1, we::Dimensions).blankLine();
}

void writeIfNotZero(FileText& out, std::string_view name, std::int32_t value) {
    if (value != 0) {
        out.line(2, name, value);
    }
}

void writeShoot(FileText& out, const WeaponRecord& weapon) {
    const bool isDefault = weapon.shootSound.empty() && weapon.tracerImage.empty() && weapon.range == 0 &&
                           weapon.rateOfFire == 0 && weapon.muzzleFlash && weapon.reload == ReloadMode::None;
    if (isDefault) {
        return;
    }
    out.open(1, we::Shoot);
    out.lineIfGiven(2, we::SoundShoot, weapon.shootSound);
    out.imageIfGiven(2, we::TracerImage, weapon.tracerImage);
    writeIfNotZero(out, we::Range, weapon.range);
    writeIfNotZero(out, we::Rof, weapon.rateOfFire);
    if (!weapon.muzzleFlash) {
        out.line(2, we::MuzzleFlash, "no");
    }
    if (weapon.reload != ReloadMode::None) {
        out.line(2, we::Reload, nameOf(weapon.reload));
    }
    out.close(1, we::Shoot).blankLine();
}

void writeMagazine(FileText& out, const WeaponRecord& weapon) {
    const bool isDefault = weapon.magazineCapacity < 2 && !weapon.singleShot && weapon.reloadSound.empty() &&
                           weapon.ejectClipSound.empty();
    if (isDefault) {
        return;
    }
    out.open(1, we::Magazine);
    if (weapon.magazineCapacity > 1) {
        out.line(2, we::Capacity, weapon.magazineCapacity);
    }
    out.flag(2, we::SingleShot, weapon.singleShot);
    out.lineIfGiven(2, we::SoundReload, weapon.reloadSound);
    out.lineIfGiven(2, we::SoundEjectClip, weapon.ejectClipSound);
    out.close(1, we::Magazine).blankLine();
}

/// These three smoke flavours have no explosive in the files. The smoke of guns and of artillery has: the
/// game's files rely on it.
bool hasNoExplosive(AmmoFlavour flavour) {
    return flavour == AmmoFlavour::GrenadeSmoke || flavour == AmmoFlavour::RpgSmoke ||
           flavour == AmmoFlavour::MortarSmoke;
}

void writeAmmoType(FileText& out, const AmmoTypeRecord& ammo, WeaponType weaponType) {
    out.indent(2).startTag(we::Type).element(we::Flavour, nameOf(ammo.flavour));
    if (weaponType != WeaponType::Grenade) {
        out.realElement(we::Speed, ammo.speed);
    }
    out.realElement(we::Mass, ammo.mass);
    if (isHeat(ammo.flavour) && ammo.era != HeatEra::Early) {
        out.element(we::Era, nameOf(ammo.era));
    }
    if (ammo.guided != GuidanceMode::Unguided) {
        out.element(we::Guided, nameOf(ammo.guided));
    }
    out.elementIfGiven(we::SmokeTrail, ammo.smokeTrail ? "yes" : "");
    if (!ammo.tracerImage.empty()) {
        out.imageElement(we::TracerImage, ammo.tracerImage);
    }
    if (ammo.highExplosive > 0 && !hasNoExplosive(ammo.flavour)) {
        out.realElement(we::HE, ammo.highExplosive);
    }
    if (ammo.explodeIn > 0) {
        out.realElement(we::ExplodeIn, ammo.explodeIn);
    }
    out.elementIfGiven(we::ExplodeSound, ammo.explodeSound);
    out.element(we::Name, ammo.name).endTag(we::Type).endLine();
}

void writeComments(FileText& out, const WeaponRecord& weapon) {
    if (weapon.comments.empty()) {
        return;
    }
    out.open(1, we::Comments);
    out.indent(1).raw(weapon.comments).endLine();
    out.close(1, we::Comments).blankLine();
}

void writeUsage(FileText& out, const WeaponRecord& weapon) {
    if (weapon.period.empty() && weapon.countries.empty()) {
        return;
    }
    out.open(1, we::Usage);
    out.lineIfGiven(2, we::Period, weapon.period);
    out.lineIfGiven(2, we::Countries, weapon.countries);
    out.close(1, we::Usage).blankLine();
}

} // namespace

std::string weaponFileText(const WeaponRecord& weapon) {
    const bool isThrownOrDropped = weapon.type == WeaponType::Grenade || weapon.type == WeaponType::Bomb;
    FileText out;
    out.open(0, we::Weapon).blankLine();
    out.line(1, we::Name, weapon.name);
    out.line(1, we::Type, nameOf(weapon.type)).blankLine();
    if (!isThrownOrDropped) {
        writeDimensions(out, weapon);
    }
    writeShoot(out, weapon);
    if (!isThrownOrDropped) {
        writeMagazine(out, weapon);
    }
    out.open(1, we::Ammo);
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        writeAmmoType(out, ammo, weapon.type);
    }
    out.close(1, we::Ammo).blankLine();
    writeComments(out, weapon);
    writeUsage(out, weapon);
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
