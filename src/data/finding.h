#pragma once
// What is wrong with a file or a record, or unusual about it: one shape for what a reader cannot take, for
// files without a weapon, for what saving would lose and for what a form refuses. `finding_text.h` puts it
// into words.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

enum class Severity : std::uint8_t {
    Note,    ///< unusual
    Warning, ///< likely a mistake, or lost with the next saving
    Error    ///< the game drops or misreads it, or a form refuses it
};

struct Finding {
    /// One of `finding_key`: what kind of finding this is, the same in all versions.
    std::string_view key = {};
    Severity severity = Severity::Warning;
    /// As whoever reads it calls it: a path, or the name of a record. Empty for a record without a file.
    std::string file = {};
    std::size_t line = 0;   ///< from 1; 0: no line of the file in particular
    std::size_t column = 0; ///< in bytes, from 1; 0: the whole line
    /// The value that it is about, by element names from the record on that was looked at, such as
    /// "rotate_left" of a component and "vehicle.turret[2].rotate_left" of a unit.
    std::string field = {};
    /// What is so, never empty; no stop at its end, and no capital at its start but where a box shows it
    /// alone.
    std::string message = {};
    std::string value = {};    ///< the text found, where there is one
    std::string expected = {}; ///< what should be there, such as "0 to 360"
    std::string hint = {};     ///< how to mend it, as a message is written
    /// What the record calls itself at that place; empty before it has a name.
    std::string subject = {};
    /// What to write for `value`, where one text is the right answer.
    std::string replacement = {};

    bool operator==(const Finding&) const = default;
};

/// What a reader finds in a file that its record cannot take, in file order.
using Diagnostics = std::vector<Finding>;

namespace finding_key {

// Of readers.
inline constexpr std::string_view NoRoom = "no-room";
inline constexpr std::string_view UnknownElement = "unknown-element";
inline constexpr std::string_view UnknownWeaponType = "unknown-weapon-type";

// Of files as a whole.
inline constexpr std::string_view CannotRead = "cannot-read";
inline constexpr std::string_view NoWeapon = "no-weapon";

// Of saving a file anew. These are also the words that reports of losses use.
inline constexpr std::string_view Dropped = "dropped"; ///< is not in the saved file
inline constexpr std::string_view Changed = "changed"; ///< is in it with another meaning
inline constexpr std::string_view Respelt = "respelt"; ///< means the same, spelt or placed otherwise

// Of values that do not go together.
inline constexpr std::string_view TraverseLimit = "traverse-limit";
inline constexpr std::string_view TraverseSum = "traverse-sum";
inline constexpr std::string_view OffsetAngle = "offset-angle";
inline constexpr std::string_view OffsetHeight = "offset-height";
inline constexpr std::string_view NoRotateTime = "no-rotate-time";
inline constexpr std::string_view RevolutionLimit = "revolution-limit";
inline constexpr std::string_view AmmoWithoutWeapon = "ammo-without-weapon";

// Of units that are not finished.
inline constexpr std::string_view Incomplete = "incomplete";

// Of values that name what is not there.
inline constexpr std::string_view UnknownWord = "unknown-word";
inline constexpr std::string_view UnknownWeapon = "unknown-weapon";
inline constexpr std::string_view MissingPicture = "missing-picture";
inline constexpr std::string_view MissingSound = "missing-sound";

// Of what people typed.
inline constexpr std::string_view BadInput = "bad-input";

} // namespace finding_key

} // namespace varrocade
