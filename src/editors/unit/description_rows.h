#pragma once
// The rows of what every unit's file says of it, for the tables of the forms of all kinds of unit.

#include "data/unit/image_names.h"
#include "data/unit/unit_record.h"
#include "data/unit_fields.h"
#include "editors/form/form_row.h"
#include "resources/resource.h"

#include <array>
#include <cstddef>
#include <utility>

namespace varrocade::description_rows {

using SquadRow = FormRow<SquadRecord>;

/// No element: the images that a file has say it.
inline constexpr auto NamedUniform = field_row::flag(&SquadRecord::namedUniform, "", "Use old method");

inline bool isNewMethod(FormPort& port, const SquadRecord&) {
    return port.isChecked(IDC_UNIFORM_NEW_METHOD);
}

inline bool isOldMethod(FormPort& port, const SquadRecord&) {
    return !port.isChecked(IDC_UNIFORM_NEW_METHOD);
}

/// A language is two characters; everything else, "Default" among it, is none.
struct TwoCharacters : Codec<LanguageCode> {
    static Refusal take(std::string_view text, const CodecTerms& terms, LanguageCode& language) {
        return Codec::take(text.size() == LanguageCode::MaxLength ? text : std::string_view(), terms,
                           language);
    }
};

inline constexpr RowTerms<SquadRecord> WithDefault = {.emptyAs = DefaultImageName};

/// What the unit is and what it is called.
inline constexpr auto Names = std::to_array<SquadRow>({
    {IDC_NATIONALITY, field::Nationality},
    {IDC_TYPE, field::Type},
    {IDC_LANGUAGE, field::VoiceLanguage, WithDefault, TwoCharacters()},
    {IDC_LONG_NAME, field::LongName},
    {IDC_SHORT_NAME, field::ShortName},
    {IDC_DESCRIPTION, field::Comment},
});

/// Both ways to say what its people wear.
inline constexpr auto Uniforms = std::to_array<SquadRow>({
    {IDC_UNIFORM_OLD_METHOD, NamedUniform, {.otherwise = IDC_UNIFORM_NEW_METHOD}},
    {IDC_UNIFORM_PROFILE, field::UniformProfile, {.enabledWhen = isNewMethod, .emptyAs = DefaultImageName}},
    {IDC_UNIFORM_GAME, field::UniformGame, {.enabledWhen = isNewMethod, .emptyAs = DefaultImageName}},
    {IDC_UNIFORM_RANKS, field::UniformRanks, WithDefault},
    {IDC_UNIFORM_NAME, field::UniformName, {.enabledWhen = isOldMethod, .emptyAs = DefaultImageName}},
});

/// One table behind another.
template <std::size_t First, std::size_t Second>
constexpr std::array<SquadRow, First + Second> joined(const std::array<SquadRow, First>& first,
                                                      const std::array<SquadRow, Second>& second) {
    return [&]<std::size_t... I, std::size_t... J>(std::index_sequence<I...>, std::index_sequence<J...>) {
        return std::array<SquadRow, First + Second>{first[I]..., second[J]...};
    }
    (std::make_index_sequence<First>(), std::make_index_sequence<Second>());
}

} // namespace varrocade::description_rows
