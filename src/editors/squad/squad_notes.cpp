#include "editors/squad/squad_notes.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "data/unit_fields.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/man_form.h"
#include "editors/squad/members.h"
#include "editors/unit/carried_ammo.h"
#include "editors/unit/sound_choices.h"
#include "editors/unit/weapon_choices.h"
#include "platform/file_operations.h"
#include "weapons/ammo_words.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

using Types = std::vector<std::string>;

bool hasType(const Types& types, std::string_view type) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

void addTypes(Types& types, const Types& more) {
    std::copy_if(more.begin(), more.end(), std::back_inserter(types),
                 [&](const std::string& type) { return !type.empty() && !hasType(types, type); });
}

void addLoads(Types& types, std::span<const AmmoLoadRecord> loads) {
    for (const AmmoLoadRecord& load : loads) {
        if (load.rounds > 0) {
            addTypes(types, {load.weaponType.str()});
        }
    }
}

std::string roundsText(std::int32_t rounds) {
    return grouped(rounds) + (rounds == 1 ? " round" : " rounds");
}

class NoteWriter {
public:
    NoteWriter(const WeaponCatalogue& catalogue, std::span<const std::string> bases)
        : catalogue_(catalogue), bases_(bases) {}

    void add(std::size_t member, std::string text) { notes_.push_back({member, std::move(text)}); }

    /// What these weapons lack; `loaded` are the types that there is ammunition for.
    void checkWeapons(std::size_t member, std::string_view whose, const Types& weapons, const Types& loaded) {
        for (const std::string& type : weapons) {
            const WeaponRecord* weapon = catalogue_.find(type);
            const bool needsNone =
                weapon != nullptr && (weapon->type == WeaponType::Grenade || weapon->ammoTypes.empty());
            if (!type.empty() && !hasType(loaded, type) && !needsNone) {
                add(member, std::string(whose) + "no ammunition for " + weaponWord(type));
            }
        }
    }

    void checkLoads(std::size_t member, std::string_view whose, std::span<const AmmoLoadRecord> loads,
                    const Types& weapons) {
        for (const AmmoLoadRecord& load : loads) {
            const WeaponRecord* weapon = catalogue_.find(load.weaponType);
            const bool isThrown = weapon != nullptr && weapon->type == WeaponType::Grenade;
            if (!hasType(weapons, load.weaponType.view()) && !isThrown) {
                const std::string word = load.weaponType.empty() ? "no weapon" : weaponWord(load.weaponType);
                add(member, std::string(whose) + roundsText(load.rounds) + " for " + word +
                                (load.weaponType.empty() ? "" : ", which nobody carries"));
            }
        }
    }

    void checkPicture(std::size_t member, const FieldInfo& field, std::string_view name) {
        if (name.empty() || isDefaultImage(name)) {
            return;
        }
        for (const ImageSource& source : field.images) {
            for (const std::string& base : bases_) {
                if (systemFiles().exists(base + std::string(source.folder) + std::string(imageNameOf(name)) +
                                         std::string(ImageEnding))) {
                    return;
                }
            }
        }
        add(member, std::string(field.label) + " \"" + std::string(name) + "\" is not there");
    }

    std::vector<SquadNote> take() { return std::move(notes_); }

private:
    const WeaponCatalogue& catalogue_;
    std::span<const std::string> bases_;
    std::vector<SquadNote> notes_;
};

constexpr auto UniformImages = std::to_array<const Field<SquadRecord, Text>*>(
    {&field::UniformProfile, &field::UniformGame, &field::UniformRanks});
constexpr auto NamedUniformImages =
    std::to_array<const Field<SquadRecord, Text>*>({&field::UniformName, &field::UniformRanks});
constexpr auto HeavyImages = std::to_array<const Field<HeavyWeaponRecord, Text>*>(
    {&field::BaseImage, &field::GunImage, &field::HeavyProfileImage});

void noteHeavyWeapon(NoteWriter& notes, const SquadRecord& squad, const Types& carried, const Types& loaded) {
    const HeavyWeaponRecord& heavy = *squad.heavyWeapon;
    const std::size_t place = heavyPlace(squad);
    if (const std::string note = kindNote(heavy.kind, squad.type); !note.empty()) {
        notes.add(place, note);
    }
    if (heavy.weapons.empty()) {
        notes.add(place, "The heavy weapon has no weapon");
    }
    notes.checkWeapons(place, "", weaponTypesOf(heavy.weapons), loaded);
    notes.checkLoads(place, "", heavy.ammo, carried);
    for (const auto* image : HeavyImages) {
        notes.checkPicture(place, *image, image->of(heavy));
    }
}

} // namespace

std::vector<SquadNote> squadNotes(const SquadRecord& squad, const WeaponCatalogue& catalogue,
                                  std::span<const std::string> bases) {
    NoteWriter notes(catalogue, bases);
    Types carried = weaponTypesOf(squad.infantrymen);
    Types loaded;
    for (const CrewManRecord& man : squad.infantrymen) {
        addLoads(loaded, man.ammo);
    }
    if (squad.heavyWeapon) {
        addTypes(carried, weaponTypesOf(squad.heavyWeapon->weapons));
        addLoads(loaded, squad.heavyWeapon->ammo);
    }
    for (std::size_t place = 0; place < memberCount(squad); ++place) {
        const auto index = manAt(squad, place);
        if (!index) {
            noteHeavyWeapon(notes, squad, carried, loaded);
            continue;
        }
        const CrewManRecord& man = squad.infantrymen[*index];
        const std::string who = std::to_string(place + 1) + ". man: ";
        if (man.weapons.empty()) {
            notes.add(place, who + "no weapon");
        }
        notes.checkWeapons(place, who, weaponTypesOf(std::span(&man, 1)), loaded);
        notes.checkLoads(place, who, man.ammo, carried);
    }
    const std::span<const Field<SquadRecord, Text>* const> images =
        squad.namedUniform ? std::span<const Field<SquadRecord, Text>* const>(NamedUniformImages)
                           : UniformImages;
    for (const auto* image : images) {
        notes.checkPicture(SquadNote::Everybody, *image, image->of(squad));
    }
    return notes.take();
}

std::vector<SquadNote> aircraftNotes(const SquadRecord& unit, const WeaponCatalogue& catalogue,
                                     std::span<const std::string> bases) {
    NoteWriter notes(catalogue, bases);
    const AircraftRecord& aircraft = *unit.aircraft;
    const Types carried = weaponTypesOf(aircraft.weapons);
    Types loaded;
    addLoads(loaded, aircraft.ammo);
    notes.checkPicture(SquadNote::Everybody, field::AircraftImage, aircraft.image);
    if (!aircraft.sound.empty() && soundPath(bases, aircraft.sound).empty()) {
        notes.add(SquadNote::Everybody, "Sound \"" + aircraft.sound.str() + "\" is not there");
    }
    if (aircraft.weapons.empty()) {
        notes.add(SquadNote::Everybody, "The aircraft has no weapon");
    }
    notes.checkWeapons(SquadNote::Everybody, "", carried, loaded);
    notes.checkLoads(SquadNote::Everybody, "", aircraft.ammo, carried);
    for (const RotorBladesRecord& rotor : aircraft.rotorBlades) {
        notes.checkPicture(SquadNote::Everybody, field::RotorImage, rotor.image);
    }
    return notes.take();
}

std::string carriedLines(std::span<const std::string> weapons, std::span<const AmmoLoadRecord> ammo) {
    std::string lines;
    const auto add = [&lines](const std::string& line) { lines += (lines.empty() ? "" : "\r\n") + line; };
    for (const std::string& weapon : weapons) {
        add(weaponWord(weapon));
    }
    for (const AmmoLoadRecord& load : ammo) {
        add(roundsText(load.rounds) + " for " + weaponWord(load.weaponType) +
            (load.flavour.empty() ? "" : ", " + flavourWord(load.flavour)));
    }
    return lines.empty() ? "nothing" : lines;
}

std::string noteLines(std::span<const SquadNote> notes) {
    std::string lines;
    for (const SquadNote& note : notes) {
        lines += (lines.empty() ? "" : "\r\n") + note.text;
    }
    return lines;
}

std::vector<std::string> ammoWeaponsOf(const SquadRecord& squad, const CrewManRecord& man,
                                       const WeaponCatalogue& catalogue) {
    Types types = weaponTypesOf(std::span(&man, 1));
    addTypes(types, weaponChoices(catalogue, squad, WeaponBearer::Thrower, false));
    addTypes(types, weaponTypesOf(squad.infantrymen));
    if (squad.heavyWeapon) {
        addTypes(types, weaponTypesOf(squad.heavyWeapon->weapons));
    }
    return types;
}

} // namespace varrocade
