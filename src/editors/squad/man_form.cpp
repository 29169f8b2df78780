#include "editors/squad/man_form.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "editors/squad/members.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

using Man = CrewManRecord;

constexpr std::string_view OrdinaryMan = "(ordinary soldier)";

std::span<const std::string_view> offeredSquadJobs() {
    static const std::vector<std::string_view> jobs = [] {
        std::vector<std::string_view> all = {OrdinaryMan};
        all.insert(all.end(), squadJobNames().begin(), squadJobNames().end());
        return all;
    }();
    return jobs;
}

/// A man without a job in the file has the one that a new record holds.
struct SquadJob : Codec<Text> {
    static std::string textOf(const Text& job, const CodecTerms& terms) {
        return job == field::Job.standard() ? std::string(OrdinaryMan) : Codec::textOf(job, terms);
    }
    static Refusal take(std::string_view text, const CodecTerms& terms, Text& job) {
        if (trimmed(text).empty() || text == OrdinaryMan) {
            job = field::Job.standard();
            return std::nullopt;
        }
        return Codec::take(text, terms, job);
    }
};

constexpr auto ManRows = std::to_array<FormRow<Man>>({
    {IDC_JOB, field::Job, {.words = offeredSquadJobs}, SquadJob()},
    {IDC_MAN_LANGUAGE, field::ManLanguage},
    {IDC_BODY_ARMOUR, field::BodyArmour},
    {IDC_MAN_NIGHT_VISION, field::ManNightVision},
});

constexpr FormShape<Man> ManShape = {.rows = ManRows};

// ---- several men

constexpr auto ChangedArmour =
    field_row::reference(FieldKind::Choice, &MenChange::bodyArmour, "body_armour", "Body armour");
constexpr auto ChangedVision =
    field_row::reference(FieldKind::Choice, &MenChange::nightVision, "night_vision", "Night vision");
constexpr auto ChangedArms = field_row::reference(FieldKind::Choice, &MenChange::arms, "weapon", "Weapons");
constexpr auto ChangedWeapon = field_row::reference(FieldKind::Weapon, &MenChange::weapon, "type", "Weapon");
constexpr auto FormerWeapon =
    field_row::reference(FieldKind::Weapon, &MenChange::formerArms, "type", "In place of");
constexpr auto ChangedAmmo =
    field_row::reference(FieldKind::Choice, &MenChange::ammunition, "ammo", "Ammunition");

struct OfLoad {
    static auto& in(auto& change) { return change.load; }
};

template <typename Enum>
Enum shownChange(FormPort& port, int control) {
    Enum value{};
    Codec<Enum>::take(port.text(control), {}, value);
    return value;
}

bool changesArms(FormPort& port, const MenChange&) {
    return shownChange<ArmsChange>(port, IDC_ARMS_CHANGE) != ArmsChange::Keep;
}
bool exchangesArms(FormPort& port, const MenChange&) {
    return shownChange<ArmsChange>(port, IDC_ARMS_CHANGE) == ArmsChange::Exchange;
}
bool changesAmmo(FormPort& port, const MenChange&) {
    return shownChange<AmmoChange>(port, IDC_AMMO_CHANGE) != AmmoChange::Keep;
}
bool givesAmmo(FormPort& port, const MenChange&) {
    return shownChange<AmmoChange>(port, IDC_AMMO_CHANGE) == AmmoChange::Give;
}

constexpr auto MenChangeRows = std::to_array<FormRow<MenChange>>({
    {IDC_ARMOUR_CHANGE, ChangedArmour},
    {IDC_VISION_CHANGE, ChangedVision},
    {IDC_ARMS_CHANGE, ChangedArms},
    {IDC_WEAPON_TYPE, ChangedWeapon, {.enabledWhen = changesArms}},
    {IDC_FORMER_ARMS, FormerWeapon, {.enabledWhen = exchangesArms}},
    {IDC_AMMO_CHANGE, ChangedAmmo},
    {IDC_AMMO_FOR, OfLoad(), field::AmmoFor, {.enabledWhen = changesAmmo}},
    {IDC_FLAVOUR, OfLoad(), field::Flavour, {.enabledWhen = givesAmmo}},
    {IDC_ROUNDS, OfLoad(), field::Rounds, {.enabledWhen = givesAmmo}},
});

std::optional<FormError> checkMenChange(const MenChange&, MenChange& change) {
    if (change.arms != ArmsChange::Keep && change.weapon.empty()) {
        return FormError{refusedInput(ChangedWeapon, "Choose a weapon"), IDC_WEAPON_TYPE};
    }
    if (change.arms == ArmsChange::Exchange && change.formerArms.empty()) {
        return FormError{refusedInput(FormerWeapon, "Choose the weapon that it takes the place of"),
                         IDC_FORMER_ARMS};
    }
    if (change.ammunition != AmmoChange::Keep && change.load.weaponType.empty()) {
        return FormError{refusedInput(field::AmmoFor, "Choose the weapon that the ammunition is for"),
                         IDC_AMMO_FOR};
    }
    return std::nullopt;
}

constexpr FormShape<MenChange> MenChangeShape = {.rows = MenChangeRows, .check = checkMenChange};

void changeFlag(bool& flag, FlagChange change) {
    flag = change == FlagChange::Keep ? flag : change == FlagChange::Set;
}

void takeAmmo(Man& man, const Text& weaponType) {
    std::erase_if(man.ammo, [&](const AmmoLoadRecord& load) { return load.weaponType == weaponType; });
}

void changeArms(Man& man, const MenChange& change) {
    const auto carried = [&](const Text& type) {
        return std::find(man.weapons.begin(), man.weapons.end(), type) != man.weapons.end();
    };
    if (change.arms == ArmsChange::Give && !carried(change.weapon)) {
        man.weapons.push_back(change.weapon);
    } else if (change.arms == ArmsChange::Take) {
        std::erase(man.weapons, change.weapon);
        takeAmmo(man, change.weapon);
    } else if (change.arms == ArmsChange::Exchange && carried(change.formerArms)) {
        std::replace(man.weapons.begin(), man.weapons.end(), change.formerArms, change.weapon);
        for (AmmoLoadRecord& load : man.ammo) {
            load.weaponType = load.weaponType == change.formerArms ? change.weapon : load.weaponType;
        }
    }
}

void changeAmmo(Man& man, const MenChange& change) {
    if (change.ammunition == AmmoChange::Take) {
        takeAmmo(man, change.load.weaponType);
    } else if (change.ammunition == AmmoChange::Give) {
        const auto same = std::find_if(man.ammo.begin(), man.ammo.end(), [&](const AmmoLoadRecord& load) {
            return load.weaponType == change.load.weaponType && load.flavour == change.load.flavour;
        });
        if (same == man.ammo.end()) {
            man.ammo.push_back(change.load);
        } else {
            *same = change.load;
        }
    }
}

} // namespace

std::span<const FormWord<FlagChange>> FormWords<FlagChange>::words() {
    static constexpr auto rows = std::to_array<FormWord<FlagChange>>(
        {{FlagChange::Keep, "as it is"}, {FlagChange::Set, "yes"}, {FlagChange::Clear, "no"}});
    return rows;
}

std::span<const FormWord<ArmsChange>> FormWords<ArmsChange>::words() {
    static constexpr auto rows = std::to_array<FormWord<ArmsChange>>({{ArmsChange::Keep, "as they are"},
                                                                      {ArmsChange::Give, "also carry"},
                                                                      {ArmsChange::Exchange, "carry instead"},
                                                                      {ArmsChange::Take, "no longer carry"}});
    return rows;
}

std::span<const FormWord<AmmoChange>> FormWords<AmmoChange>::words() {
    static constexpr auto rows = std::to_array<FormWord<AmmoChange>>(
        {{AmmoChange::Keep, "as it is"}, {AmmoChange::Give, "carry"}, {AmmoChange::Take, "no longer carry"}});
    return rows;
}

const FormShape<CrewManRecord>& manShape() {
    return ManShape;
}

const FormShape<MenChange>& menChangeShape() {
    return MenChangeShape;
}

void changeMan(CrewManRecord& man, const MenChange& change) {
    changeFlag(man.bodyArmour, change.bodyArmour);
    changeFlag(man.nightVision, change.nightVision);
    changeArms(man, change);
    changeAmmo(man, change);
}

std::vector<std::string> weaponTypesOf(std::span<const CrewManRecord> men) {
    std::vector<std::string> types;
    for (const CrewManRecord& man : men) {
        for (const Text& type : man.weapons) {
            if (std::find(types.begin(), types.end(), type.view()) == types.end()) {
                types.push_back(type.str());
            }
        }
    }
    return types;
}

} // namespace varrocade
