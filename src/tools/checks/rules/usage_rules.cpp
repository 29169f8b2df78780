#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"
#include "weapons/weapon_usage.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;

/// The year in which the earliest period of a weapon begins; 0 where none is known.
int firstYearOf(const WeaponRecord& weapon) {
    int first = 0;
    for (const std::string_view word : usageWords(weapon.period)) {
        const WeaponPeriod* period = findPeriod(word);
        if (period == nullptr) {
            return 0;
        }
        first = first == 0 ? period->firstYear : std::min(first, period->firstYear);
    }
    return first;
}

/// The first year in which there are any; 0 without one.
int firstYearOf(const SquadRecord& unit) {
    int first = 0;
    for (const AvailabilityPoint& point : unit.availability) {
        if (point.number > 0 && (first == 0 || point.year < first)) {
            first = point.year;
        }
    }
    return first;
}

class UsageCheck {
public:
    explicit UsageCheck(const CheckedUnit& checked) : checked_(checked), year_(firstYearOf(checked.unit)) {}

    /// `pathOf()` is the path of the value, made only where something is found.
    template <typename Path>
    void check(std::string_view name, Path pathOf) {
        // A squad has many of the same.
        if (!isNew(names_, name)) {
            return;
        }
        const WeaponRecord* weapon = checked_.knowledge.findWeapon(name);
        if (weapon == nullptr || !isNew(weapons_, weapon)) {
            return;
        }
        const int begins = firstYearOf(*weapon);
        if (year_ != 0 && year_ < begins) {
            checked_.out.atValue(pathOf(), {.key = ck::WeaponBeforePeriod,
                                            .message = "the unit is there from " + std::to_string(year_) +
                                                       ", " + quoted(name) + " (" + weapon->period +
                                                       ") from " + std::to_string(begins),
                                            .value = std::string(name),
                                            .expected = "a weapon of " + std::to_string(year_)});
        }
        if (!usesWeapon(checked_.unit.nationality, weapon->countries)) {
            checked_.out.atValue(pathOf(),
                                 {.key = ck::WeaponOfOthers,
                                  .message = quoted(name) + " is " + weapon->countries + ", the unit " +
                                             displayName(checked_.unit.nationality, NationalityPrefix),
                                  .value = std::string(name),
                                  .expected = weapon->countries});
        }
    }

private:
    template <typename Value>
    static bool isNew(std::vector<Value>& seen, Value value) {
        const bool is = std::find(seen.begin(), seen.end(), value) == seen.end();
        if (is) {
            seen.push_back(value);
        }
        return is;
    }

    const CheckedUnit& checked_;
    int year_;
    // One finding a weapon is enough, whatever the letter case of its name.
    std::vector<std::string_view> names_;
    std::vector<const WeaponRecord*> weapons_;
};

} // namespace

void checkUsage(const CheckedUnit& checked) {
    UsageCheck usage(checked);
    forEachArmed(checked.unit, [&](const auto& armed, const RulePath& path) {
        for (std::size_t i = 0; i < armed.weapons.size(); ++i) {
            usage.check(armed.weapons[i].type,
                        [&] { return RulePath(path, element::Weapon, i + 1).to(field::MountedType); });
        }
    });
    const auto ofMen = [&](const std::vector<CrewManRecord>& men, const RulePath& path) {
        for (std::size_t i = 0; i < men.size(); ++i) {
            const RulePath man(path, element::Man, i + 1);
            for (std::size_t k = 0; k < men[i].weapons.size(); ++k) {
                usage.check(men[i].weapons[k], [&] { return RulePath(man, element::Weapon, k + 1).text(); });
            }
            for (std::size_t k = 0; k < men[i].ammo.size(); ++k) {
                usage.check(men[i].ammo[k].weaponType,
                            [&] { return RulePath(man, element::Ammo, k + 1).to(field::AmmoFor); });
            }
        }
    };
    ofMen(checked.unit.infantrymen, RulePath());
    if (checked.unit.vehicle) {
        forEachComponentPath(*checked.unit.vehicle, [&](const ComponentRecord& part, const RulePath& path) {
            ofMen(part.crew, path);
        });
    }
}

} // namespace varrocade
