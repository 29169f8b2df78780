#include "tools/checks/engine/check_rules.h"

#include "data/finding_text.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

namespace ck = check_key;
namespace fk = finding_key;
using enum Severity;

constexpr auto Rules = std::to_array<CheckRule>({
    {fk::CannotRead, Error, "The file cannot be read.", "Look at its permissions and at the disk."},

    {ck::EmptyFile, Error, "The file holds no element at all.",
     "Write the unit or weapon anew, or delete the file."},
    {ck::UnclosedElement, Error, "An element has no closing tag of its name.",
     "Add the closing tag where the element should end."},
    {ck::StrayClosingTag, Error, "A closing tag closes nothing.", "Mend its name, or take it out."},
    {ck::CrossedTags, Error, "Two elements cross: one is closed while a later one in it is still open.",
     "Close the element first that was opened last."},
    {ck::BrokenTag, Error, "A tag is not one: a bracket is missing, or there is more in it than a name.",
     "Write <name> and </name>, with nothing else between the brackets."},
    {ck::StrayText, Error, "Text stands where only elements can stand.",
     "Put it into the element that it belongs to, or make it a comment with //."},
    {ck::NestedInItself, Error,
     "An element stands in one of its own name, and the inner one's end ends both.",
     "Close the outer element first."},
    {ck::LongLine, Warning, "A line is longer than the 510 characters that the game reads at once.",
     "Break the line between two elements."},
    {ck::CommentInValue, Error, "Two slashes in a value begin a comment, and the rest of the line is lost.",
     "Write the value without //."},
    {ck::NotAscii, Warning, "A character is not of ASCII, and the game shows another in its place.",
     "Write it with ASCII letters."},

    {fk::UnknownElement, Error, "The game does not know the element.", "Mend its name, or take it out."},
    {ck::WrongPlace, Error, "The game does not look for the element in this place.",
     "Move it into the element that it belongs to."},
    {ck::GivenTwice, Warning, "A value is given twice, and only one of the two counts.",
     "Leave the one that is right."},
    {ck::OlderSpelling, Note, "The game reads the word, but files have another today.",
     "Write today's, or save the file with the editor."},
    {ck::MissingElement, Warning, "An element is missing that every such file has.", "Add it."},
    {ck::WrongCategory, Error, "The file is not what its folder holds.",
     "Move it into the folder of its kind."},
    {fk::NoRoom, Error, "The game has no room for the element and leaves it out.", "Take some out."},
    {fk::NoWeapon, Error, "The file holds no weapon.", "Write the weapon anew, or delete the file."},

    {ck::EmptyValue, Warning, "An element that should hold a value is empty.",
     "Give the value, or take the element out."},
    {fk::UnknownWord, Error, "The word is none of those that the game knows there.",
     "Write one of the game's words, letter for letter."},
    {ck::NotANumber, Error, "The value is no number, and the game reads it as 0.", "Write a number."},
    {ck::NumberCut, Error, "The game reads only a part of the value, or brings it into its range.",
     "Write the number alone, within its range."},
    {ck::OutOfRange, Error, "The number lies outside of what can be.", "Write a number within the range."},
    {ck::BadFlag, Error, "A flag is neither yes nor no, and the game takes it for not set.",
     "Write yes in small letters, or take the element out."},
    {ck::TextCut, Error, "The text is longer than the game keeps, and the rest is cut.", "Shorten it."},

    {fk::UnknownWeapon, Error, "There is no weapon of this name.",
     "Write the name of a file in Data/Weapons, or add the weapon."},
    {ck::WeaponCase, Warning, "The weapon's name has other letters, capital or small, than its file.",
     "Write the name as the file has it."},
    {ck::MissingFlavour, Error, "The weapon has no ammunition of this flavour.",
     "Use one of the weapon's flavours, or add it to the weapon."},
    {fk::MissingPicture, Error, "There is no picture of this name.",
     "Write the picture's name as its file has it, or add the picture."},
    {ck::PictureCase, Warning, "The picture's name has other letters, capital or small, than its file.",
     "Write the name as the file has it."},
    {finding_key::MissingSound, Error, "There is no sound of this name.",
     "Write the name of a file in Sounds, or add the sound."},
    {ck::SoundCase, Warning, "The sound's name has other letters, capital or small, than its file.",
     "Write the name as the file has it."},
    {ck::MissingFlag, Warning, "The nationality has no flag.", "Add a picture to Images/Flags/Static."},
    {ck::FileNationality, Warning, "The file's name begins with another nationality than the unit has.",
     "Mend the nationality, or rename the file."},

    {ck::BadPicture, Error, "The picture's file is no PNG file.", "Save the picture as PNG."},
    {ck::PictureSizeKey, Warning, "The picture's size is not that of the data: one pixel is one centimetre.",
     "Mend width and length, or the picture."},
    {ck::WreckSize, Warning, "The picture of the wreck has another size than that of the whole part.",
     "Give both the same size and pivot."},
    {ck::WreckPivot, Warning, "The wreck is drawn in another place of its picture than the whole part.",
     "Move it in its picture to where the whole part lies in its own."},

    {fk::AmmoWithoutWeapon, Warning, "Ammunition is for no weapon beside it.",
     "Mend the weapon's name, or take the ammunition out."},
    {ck::WeaponWithoutAmmo, Warning, "A weapon has no ammunition.", "Add ammunition for it."},
    {ck::NoRounds, Warning, "Ammunition has no rounds.", "Give the number, or take the entry out."},
    {ck::WeaponWithoutMan, Warning, "Nobody is there to use the weapon.", "Add a man, or take it out."},
    {ck::GunWithoutGunner, Warning, "A gun has a crew, but none of it can aim it.",
     "Give one man the job of gunner or commander."},
    {ck::CrewWithoutJob, Warning, "A man of the crew has no job, or one that crews do not have.",
     "Give him a job of his vehicle."},
    {ck::CrewWithoutSeat, Warning, "A man has no place in the drawing of the part he sits in.",
     "Move him to a part that men sit in."},
    {ck::NoDriver, Warning, "Nobody drives the vehicle.", "Give one man the job of driver."},
    {ck::NoCrew, Warning, "The unit has no men.", "Add its men."},
    {ck::UnarmedPart, Note, "A fixed weapon or heavy weapon has no weapon.", "Add its weapon."},

    {fk::TraverseLimit, Error, "A limit of traverse is not between 0 and 360 degrees.", "Mend the limit."},
    {fk::TraverseSum, Error, "Both limits of traverse come to more than a full circle.",
     "Lessen one of them."},
    {fk::OffsetAngle, Error, "The offset angle is more than half a circle.", "Bring it into -180 to 180."},
    {fk::OffsetHeight, Error, "A fixed weapon is not above the ground.", "Give offsetZ in centimetres."},
    {fk::NoRotateTime, Error, "A part that turns needs time for that.",
     "Give the seconds for a full circle."},
    {fk::RevolutionLimit, Error, "The limit of revolutions is below the idle ones.", "Mend one of them."},
    {ck::NoSize, Warning, "A size is 0 or less.", "Measure it."},
    {ck::NoHull, Error, "The vehicle has no hull, or several.", "Leave one."},
    {ck::OutsideHull, Warning, "A part stands outside of the hull, or of the part that carries it.",
     "Mend its offset."},
    {ck::NoArmour, Warning, "A plate has no thickness although the others have one.", "Give it."},
    {ck::SpacedWithoutBase, Warning, "There is spaced armour in front of no plate.",
     "Give the plate, or take the spaced armour out."},
    {ck::VehicleWeight, Note, "The weight is far from what size, armour and power come to.",
     "Compare with a source."},
    {ck::VehiclePlate, Warning, "A plate is out of proportion to the others and to the weight.",
     "Compare with a source."},
    {ck::VehicleSize, Warning, "A size is one that no vehicle has, or does not fit the hull.",
     "Compare with a source: sizes are centimetres."},
    {ck::UnusualValue, Note, "The value is unlike those of all comparable units or weapons.",
     "Compare with a source."},

    {ck::NoAvailability, Warning, "The unit is available at no time.", "Add when there were how many."},
    {ck::AvailabilityOrder, Warning, "The points of availability are not in the order of their dates.",
     "Sort them."},
    {ck::AvailabilityYears, Warning, "The unit is not available in the years of the mod.",
     "Mend the years of the unit or of the mod."},
    {ck::WeaponBeforePeriod, Warning, "The weapon is used before its period.",
     "Mend the unit's weapon or dates, or the weapon's period."},
    {ck::WeaponOfOthers, Note, "The weapon is not one of the unit's country.",
     "Mend the unit's weapon, or name the country in the weapon's countries."},
    {ck::UnknownPeriod, Warning, "The period is none of those that lists offer.",
     "Write WW1, WW2, Cold War or Modern."},
    {ck::UnknownCountry, Warning, "The country is none that the game has.",
     "Write the nationality as its lists show it."},
    {ck::SameName, Warning, "Two units have the same name.", "Give one of them another."},

    {ck::FileName, Warning, "The weapon does not call itself as its file does, and units name the file.",
     "Use one name for both."},
    {ck::NamePrefix, Warning, "The weapon's name begins as those of another type do.",
     "Mend its type, or its name."},
    {ck::FlavourOfType, Warning, "Weapons of this type do not fire ammunition of this flavour.",
     "Mend the flavour, or the weapon's type."},
    {ck::SameFlavour, Note, "The weapon has two kinds of ammunition of one flavour, and units cannot choose.",
     "Leave one of them."},
    {ck::NoAmmunition, Warning, "The weapon has no ammunition.", "Add what it fires."},
    {ck::MoreExplosiveThanMass, Error, "The projectile holds more explosive than it weighs.",
     "Mend the mass, or the explosive: both are kilograms."},
    {ck::UselessValue, Note, "The value has no use in a file of this kind, and saving drops it.",
     "Take it out."},

    {ck::MissingUnit, Error, "An equipment list of the mod names a unit that is not there.",
     "Write the name of a file of that kind, or take the entry out."},
    {ck::ModYears, Warning, "The war of the mod ends before it begins.", "Mend the years, or the months."},

    {ck::BadSuppression, Warning, "A suppression names no rule, gives no reason or suppresses nothing.",
     "Name the rule's key and give the reason, or take it out."},
});

} // namespace

std::span<const CheckRule> checkRules() {
    return Rules;
}

const CheckRule* findCheckRule(std::string_view key) {
    const auto rule =
        std::find_if(Rules.begin(), Rules.end(), [key](const CheckRule& row) { return row.key == key; });
    return rule == Rules.end() ? nullptr : &*rule;
}

std::optional<Severity> severityOfWord(std::string_view word) {
    for (const Severity severity : {Note, Warning, Error}) {
        if (severityWord(severity) == word) {
            return severity;
        }
    }
    return std::nullopt;
}

} // namespace varrocade
