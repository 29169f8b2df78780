#pragma once
// The rules of the checker: what each finding is called, how bad it is, and what it means in a sentence.
// docs/checks.md has an entry for each; a test compares the two.

#include "data/finding.h"

#include <optional>
#include <span>
#include <string_view>

namespace varrocade {

namespace check_key {

// Of the file as text.
inline constexpr std::string_view EmptyFile = "empty-file";
inline constexpr std::string_view UnclosedElement = "unclosed-element";
inline constexpr std::string_view StrayClosingTag = "stray-closing-tag";
inline constexpr std::string_view CrossedTags = "crossed-tags";
inline constexpr std::string_view BrokenTag = "broken-tag";
inline constexpr std::string_view StrayText = "stray-text";
inline constexpr std::string_view NestedInItself = "nested-in-itself";
inline constexpr std::string_view LongLine = "long-line";
inline constexpr std::string_view CommentInValue = "comment-in-value";
inline constexpr std::string_view NotAscii = "not-ascii";

// Of elements.
inline constexpr std::string_view WrongPlace = "wrong-place";
inline constexpr std::string_view GivenTwice = "given-twice";
inline constexpr std::string_view OlderSpelling = "older-spelling";
inline constexpr std::string_view MissingElement = "missing-element";
inline constexpr std::string_view WrongCategory = "wrong-category";

// Of single values.
inline constexpr std::string_view EmptyValue = "empty-value";
inline constexpr std::string_view NotANumber = "not-a-number";
inline constexpr std::string_view NumberCut = "number-cut";
inline constexpr std::string_view OutOfRange = "out-of-range";
inline constexpr std::string_view BadFlag = "bad-flag";
inline constexpr std::string_view TextCut = "text-cut";

// Of what values name.
inline constexpr std::string_view WeaponCase = "weapon-case";
inline constexpr std::string_view MissingFlavour = "missing-flavour";
inline constexpr std::string_view PictureCase = "picture-case";
inline constexpr std::string_view SoundCase = "sound-case";
inline constexpr std::string_view MissingFlag = "missing-flag";
inline constexpr std::string_view FileNationality = "file-nationality";

// Of pictures.
inline constexpr std::string_view BadPicture = "bad-picture";
inline constexpr std::string_view PictureSizeKey = "picture-size";
inline constexpr std::string_view WreckSize = "wreck-size";
inline constexpr std::string_view WreckPivot = "wreck-pivot";

// Of weapons, ammunition and crews.
inline constexpr std::string_view WeaponWithoutAmmo = "weapon-without-ammo";
inline constexpr std::string_view NoRounds = "no-rounds";
inline constexpr std::string_view WeaponWithoutMan = "weapon-without-man";
inline constexpr std::string_view GunWithoutGunner = "gun-without-gunner";
inline constexpr std::string_view CrewWithoutJob = "crew-without-job";
inline constexpr std::string_view CrewWithoutSeat = "crew-without-seat";
inline constexpr std::string_view NoDriver = "no-driver";
inline constexpr std::string_view NoCrew = "no-crew";
inline constexpr std::string_view UnarmedPart = "unarmed-part";

// Of sizes, places and armour.
inline constexpr std::string_view NoSize = "no-size";
inline constexpr std::string_view NoHull = "no-hull";
inline constexpr std::string_view OutsideHull = "outside-hull";
inline constexpr std::string_view NoArmour = "no-armour";
inline constexpr std::string_view SpacedWithoutBase = "spaced-without-base";
inline constexpr std::string_view VehicleWeight = "vehicle-weight";
inline constexpr std::string_view VehiclePlate = "vehicle-plate";
inline constexpr std::string_view VehicleSize = "vehicle-size";
inline constexpr std::string_view UnusualValue = "unusual-value";

// Of time, country and name.
inline constexpr std::string_view NoAvailability = "no-availability";
inline constexpr std::string_view AvailabilityOrder = "availability-order";
inline constexpr std::string_view AvailabilityYears = "availability-years";
inline constexpr std::string_view WeaponBeforePeriod = "weapon-before-period";
inline constexpr std::string_view WeaponOfOthers = "weapon-of-others";
inline constexpr std::string_view UnknownPeriod = "unknown-period";
inline constexpr std::string_view UnknownCountry = "unknown-country";
inline constexpr std::string_view SameName = "same-name";

// Of a mod's settings.
inline constexpr std::string_view MissingUnit = "missing-unit";
inline constexpr std::string_view ModYears = "mod-years";

// Of weapon files.
inline constexpr std::string_view FileName = "file-name";
inline constexpr std::string_view NamePrefix = "name-prefix";
inline constexpr std::string_view FlavourOfType = "flavour-of-type";
inline constexpr std::string_view SameFlavour = "same-flavour";
inline constexpr std::string_view NoAmmunition = "no-ammunition";
inline constexpr std::string_view MoreExplosiveThanMass = "more-explosive-than-mass";
inline constexpr std::string_view UselessValue = "useless-value";

// Of suppressions.
inline constexpr std::string_view BadSuppression = "bad-suppression";

} // namespace check_key

struct CheckRule {
    std::string_view key;
    Severity severity;
    std::string_view sentence; ///< what is so where the rule finds something
    std::string_view help;     ///< how to mend it
};

/// All rules, by what they are about.
std::span<const CheckRule> checkRules();

/// The rule of a key, or null.
const CheckRule* findCheckRule(std::string_view key);

std::optional<Severity> severityOfWord(std::string_view word);

} // namespace varrocade
