#pragma once
// What a value of a record is: its element, what people call it, its unit, its range, what it refers to, and
// when the files have it. Each field is described once, as a constant; readers, writers, forms, sheets,
// losses and whatever loops over a record take it from there. Where a value stands in a file is the business
// of rules and writers.

#include "data/unit/image_folders.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace varrocade {

/// What the text of an element stands for, and what it refers to.
enum class FieldKind : std::uint8_t {
    Number,      ///< whole, within `range`
    Real,        ///< with decimals
    Flag,        ///< "yes" or "no"
    Prose,       ///< words for people
    Word,        ///< one of `words`, or what a file has in its place
    Choice,      ///< one of `words` and nothing else: a value of an enumeration
    Nationality, ///< one of `words`
    Plate,       ///< a thickness, and an angle behind "@"
    Language,    ///< two letters
    Engine,      ///< an engine's name, of the engine table or any other
    Image,       ///< a picture below `images`, without ".png" in records
    Uniform,     ///< a picture below `images`, its name as it stands
    Sound,       ///< a file below "Sounds\"
    Weapon,      ///< the type name of a weapon, which is the name of its file
    Flavour,     ///< of ammunition
    Colour       ///< red, green and blue, 0 to 255
};

/// The whole numbers that a field takes from people; files may hold others.
struct NumberRange {
    std::int32_t least = INT32_MIN;
    std::int32_t greatest = INT32_MAX;
    bool zeroForOtherTexts = false;
};

inline constexpr NumberRange NotNegative = {.least = 0};

/// Which values a writer leaves out. The reader's default is what a new record holds.
enum class Omission : std::uint8_t {
    Never,
    Default,    ///< the default
    UpToDefault ///< the default and whatever is less: a capacity of 1, a thickness that is not given
};

/// What holds a record, or is its kind: which of a record's fields a file stores depends on it.
enum class Holder : std::uint8_t {
    Hull,
    Superstructure,
    Turret,
    FixedWeapon,
    CrewMan,
    Infantryman,
    Mortar,
    Hmg,
    AtGun,
    RecoillessRifle,
    VehicleFile,
    SquadFile,
    AircraftFile,
    Grenade, ///< a weapon that is thrown
    Bomb,    ///< a weapon that is dropped
    Gun,     ///< any other weapon
    ShapedCharge,
    PlainSmoke, ///< smoke that has no explosive in the files
    OtherAmmunition
};

/// A set of holders.
class Holders {
public:
    template <typename... Some>
    static constexpr Holders of(Some... some) {
        return Holders((std::uint32_t{0} | ... | bitOf(some)));
    }
    template <typename... Some>
    static constexpr Holders allBut(Some... some) {
        return Holders(~(std::uint32_t{0} | ... | bitOf(some)));
    }

    [[nodiscard]] constexpr bool has(Holder holder) const { return (bits_ & bitOf(holder)) != 0; }

private:
    constexpr explicit Holders(std::uint32_t bits) : bits_(bits) {}
    static constexpr std::uint32_t bitOf(Holder holder) {
        return std::uint32_t{1} << static_cast<unsigned>(holder);
    }

    std::uint32_t bits_;
};

inline constexpr Holders AnyHolder = Holders::allBut();

/// The words of an enumeration, as files have them.
using Words = std::span<const std::string_view> (*)();

/// What rows say besides element, member and label. A row names what differs from here.
struct FieldTraits {
    std::string_view unit = {}; ///< behind the number, such as "mm"
    NumberRange range = {};
    Omission omitted = Omission::Never;
    /// Whose files store it; a value of any other record is lost with saving.
    Holders stored = AnyHolder;
    /// The same of what the holder stands in: the weapon that ammunition belongs to.
    Holders storedWithin = AnyHolder;
    /// The places after the point of a real number; below 0 the shortest form, as "%g" prints it.
    int decimals = -1;
};

/// A field without its record: what all who loop over fields can do with it. Fields are told apart by their
/// addresses.
struct FieldInfo {
    std::string_view element;
    std::string_view label; ///< what people call it
    FieldKind kind = FieldKind::Number;
    FieldTraits traits = {};
    Words words = nullptr;
    std::span<const ImageSource> images = {};
    /// What the record can hold: numbers beyond are brought to the nearest that it can.
    NumberRange held = {};
    /// The most characters of a text that the record can hold; 0 for any number.
    std::size_t capacity = 0;

    [[nodiscard]] constexpr bool isStoredBy(Holder holder) const { return traits.stored.has(holder); }
    [[nodiscard]] constexpr bool isStoredBy(Holder holder, Holder around) const {
        return traits.stored.has(holder) && traits.storedWithin.has(around);
    }
};

using FieldId = const FieldInfo*;

/// A field of a record. `Value` is what the record holds it in.
template <typename Record, typename Value>
struct Field : FieldInfo {
    Value Record::*member;

    constexpr Field(const FieldInfo& info, Value Record::*valueMember)
        : FieldInfo(info), member(valueMember) {}

    /// What a record holds that no file has set.
    [[nodiscard]] const Value& standard() const { return freshRecord().*member; }

    [[nodiscard]] const Value& of(const Record& record) const { return record.*member; }
    [[nodiscard]] Value& of(Record& record) const { return record.*member; }

    /// Whether a writer leaves this value out.
    [[nodiscard]] bool isOmitted(const Record& record) const {
        if (traits.omitted == Omission::Never) {
            return false;
        }
        const Record& fresh = freshRecord();
        if constexpr (std::is_arithmetic_v<Value>) {
            if (traits.omitted == Omission::UpToDefault) {
                return !(record.*member > fresh.*member);
            }
        }
        return record.*member == fresh.*member;
    }

private:
    static const Record& freshRecord() {
        static const Record fresh{};
        return fresh;
    }
};

/// The record and the value of a field's type.
template <typename>
struct FieldParts;
template <typename R, typename V>
struct FieldParts<Field<R, V>> {
    using Record = R;
    using Value = V;
};
template <const auto& F>
using RecordOf = typename FieldParts<std::remove_cvref_t<decltype(F)>>::Record;
template <const auto& F>
using ValueOf = typename FieldParts<std::remove_cvref_t<decltype(F)>>::Value;

/// The fields of a record, in the order of its members. `fieldsOf<ComponentRecord>` is a tuple of references.
template <typename Record>
inline constexpr auto fieldsOf = std::tuple<>();

/// The rows of the tables of fields.
namespace field_row {

/// What a type of whole numbers holds, as far as it is narrower than 32 bits.
template <typename V>
constexpr NumberRange heldBy() {
    if constexpr (std::is_integral_v<V> && !std::is_same_v<V, bool> && sizeof(V) < sizeof(std::int32_t)) {
        return {.least = std::numeric_limits<V>::min(), .greatest = std::numeric_limits<V>::max()};
    } else {
        return {};
    }
}

/// How many characters a type of texts of fixed capacity holds.
template <typename V>
constexpr std::size_t capacityOf() {
    if constexpr (requires { V::MaxLength; }) {
        return V::MaxLength;
    } else {
        return 0;
    }
}

template <typename R, typename V>
constexpr Field<R, V> make(FieldKind kind, V R::*member, std::string_view element, std::string_view label,
                           const FieldTraits& traits, Words words = nullptr,
                           std::span<const ImageSource> images = {}) {
    return {{element, label, kind, traits, words, images, heldBy<V>(), capacityOf<V>()}, member};
}

template <typename R, typename V>
constexpr auto number(V R::*member, std::string_view element, std::string_view label,
                      const FieldTraits& traits = {}) {
    return make(FieldKind::Number, member, element, label, traits);
}

template <typename R, typename V>
constexpr auto real(V R::*member, std::string_view element, std::string_view label,
                    const FieldTraits& traits = {}) {
    return make(FieldKind::Real, member, element, label, traits);
}

/// Flags are written only where they are not what a new record says.
template <typename R>
constexpr auto flag(bool R::*member, std::string_view element, std::string_view label,
                    Holders stored = AnyHolder) {
    return make(FieldKind::Flag, member, element, label, {.omitted = Omission::Default, .stored = stored});
}

template <typename R, typename V>
constexpr auto text(V R::*member, std::string_view element, std::string_view label,
                    const FieldTraits& traits = {}) {
    return make(FieldKind::Prose, member, element, label, traits);
}

template <typename R, typename V>
constexpr auto word(V R::*member, std::string_view element, std::string_view label, Words words,
                    const FieldTraits& traits = {}) {
    return make(FieldKind::Word, member, element, label, traits, words);
}

template <typename R, typename V>
constexpr auto choice(V R::*member, std::string_view element, std::string_view label, Words words,
                      const FieldTraits& traits = {}) {
    return make(FieldKind::Choice, member, element, label, traits, words);
}

template <typename R, typename V>
constexpr auto image(V R::*member, std::string_view element, std::string_view label,
                     std::span<const ImageSource> images, const FieldTraits& traits = {}) {
    return make(FieldKind::Image, member, element, label, traits, nullptr, images);
}

/// Colours are written only where they are not what a new record says.
template <typename R, typename V>
constexpr auto colour(V R::*member, std::string_view element, std::string_view label) {
    return make(FieldKind::Colour, member, element, label, {.omitted = Omission::Default});
}

/// A field of one of the kinds that need no more than their name.
template <typename R, typename V>
constexpr auto reference(FieldKind kind, V R::*member, std::string_view element, std::string_view label,
                         const FieldTraits& traits = {}) {
    return make(kind, member, element, label, traits);
}

} // namespace field_row

} // namespace varrocade
