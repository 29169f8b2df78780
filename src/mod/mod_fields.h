#pragma once
// The fields of a mod's settings, each described once.

#include "data/field.h"
#include "data/unit/enumerations.h"
#include "mod/mod_record.h"
#include "mod/mod_words.h"

#include <array>
#include <tuple>

namespace varrocade {

namespace mod_field {

namespace row = field_row;

inline constexpr FieldTraits Omittable = {.omitted = Omission::Default};
inline constexpr FieldTraits Month = {.range = {.least = 1, .greatest = 12}, .omitted = Omission::Default};
inline constexpr NumberRange WarYears = {.least = 1900, .greatest = 2100};
inline constexpr FieldTraits OpenYear = {.range = {.least = 0, .greatest = 2100},
                                         .omitted = Omission::Default};
// Room for the counts of a census.
inline constexpr FieldTraits Share = {.range = {.least = 1, .greatest = 10'000'000},
                                      .omitted = Omission::Default};

inline constexpr auto StaticFlagImages = std::to_array<ImageSource>({{image_folder::StaticFlags}});
inline constexpr auto AnimatedFlagImages = std::to_array<ImageSource>({{image_folder::AnimatedFlags}});
inline constexpr auto GameImages = std::to_array<ImageSource>({{image_folder::Uniforms, "uniform_"}});
inline constexpr auto RanksImages = std::to_array<ImageSource>({{image_folder::Uniforms, "uniform_ranks_"}});

inline constexpr auto Name = row::text(&ModSettings::name, "name", "Name");
inline constexpr auto Author = row::text(&ModSettings::author, "author", "Author", Omittable);
inline constexpr auto Version = row::text(&ModSettings::version, "version", "Version", Omittable);
inline constexpr auto Comment = row::text(&ModSettings::comment, "comment", "Description", Omittable);
inline constexpr auto FirstYear =
    row::number(&ModSettings::firstYear, "first", "First year", {.range = WarYears});
inline constexpr auto FirstMonth = row::number(&ModSettings::firstMonth, "first_month", "First month", Month);
inline constexpr auto LastYear =
    row::number(&ModSettings::lastYear, "last", "Last year", {.range = WarYears});
inline constexpr auto LastMonth = row::number(&ModSettings::lastMonth, "last_month", "Last month", Month);

inline constexpr auto Background = row::colour(&ModColours::background, "background", "Background");
inline constexpr auto Panel = row::colour(&ModColours::panel, "panel", "Panels");
inline constexpr auto Text = row::colour(&ModColours::text, "text", "Text");
inline constexpr auto Heading = row::colour(&ModColours::heading, "heading", "Headings");
inline constexpr auto Button = row::colour(&ModColours::button, "button", "Buttons");
inline constexpr auto ButtonText = row::colour(&ModColours::buttonText, "button_text", "Text of buttons");
inline constexpr auto Selection = row::colour(&ModColours::selection, "selection", "Selection");
inline constexpr auto Friendly = row::colour(&ModColours::friendly, "friendly", "Own units");
inline constexpr auto Enemy = row::colour(&ModColours::enemy, "enemy", "Enemy units");
inline constexpr auto Neutral = row::colour(&ModColours::neutral, "neutral", "Neutral units");

inline constexpr auto PeriodFirstYear = row::number(&ModPeriod::firstYear, "first", "From year", OpenYear);
inline constexpr auto PeriodFirstMonth =
    row::number(&ModPeriod::firstMonth, "first_month", "From month", Month);
inline constexpr auto PeriodLastYear = row::number(&ModPeriod::lastYear, "last", "To year", OpenYear);
inline constexpr auto PeriodLastMonth = row::number(&ModPeriod::lastMonth, "last_month", "To month", Month);

inline constexpr auto Side = row::word(&ModAllegiance::side, "side", "Side", sideNames);

inline constexpr auto SurnameText = row::text(&ModSurname::name, "name", "Surname");
inline constexpr auto Commonness = row::number(&ModSurname::commonness, "commonness", "How common", Share);

inline constexpr auto UniformProfile =
    row::image(&ModUniform::profileImage, "profile", "Profile image", GameImages, Omittable);
inline constexpr auto UniformGame =
    row::image(&ModUniform::gameImage, "game", "Game image", GameImages, Omittable);
inline constexpr auto UniformRanks =
    row::image(&ModUniform::ranksImage, "ranks_image", "Ranks image", RanksImages, Omittable);

inline constexpr auto RankName = row::text(&ModRank::name, "name", "Rank");
inline constexpr auto RankImage = row::image(&ModRank::image, "image", "Image", RanksImages, Omittable);

inline constexpr auto UnitFile = row::text(&ModListedUnit::fileName, "file", "File");
inline constexpr auto UnitCategory =
    row::word(&ModListedUnit::category, "category", "Kind", unitCategoryWords, Omittable);
inline constexpr auto UnitShare = row::number(&ModListedUnit::share, "share", "Share", Share);
inline constexpr auto UnitCost =
    row::number(&ModListedUnit::cost, "cost", "Cost",
                {.unit = "points", .range = {.least = 0, .greatest = 100000}, .omitted = Omission::Default});

inline constexpr auto EquipmentName = row::text(&ModEquipment::name, "name", "List", Omittable);

inline constexpr auto Id =
    row::make(FieldKind::Nationality, &ModNationality::id, "id", "Nationality", {}, nationalityNames);
inline constexpr auto ShownName = row::text(&ModNationality::name, "name", "Name as shown", Omittable);
inline constexpr auto Adjective = row::text(&ModNationality::adjective, "adjective", "Adjective", Omittable);
inline constexpr auto Flag = row::image(&ModNationality::flag, "flag", "Flag", StaticFlagImages, Omittable);
inline constexpr auto AnimatedFlag = row::image(&ModNationality::animatedFlag, "animated_flag",
                                                "Animated flag", AnimatedFlagImages, Omittable);

} // namespace mod_field

template <>
inline constexpr auto fieldsOf<ModSettings> = std::tie(mod_field::Name, mod_field::Author, mod_field::Version,
                                                       mod_field::Comment, mod_field::FirstYear,
                                                       mod_field::FirstMonth, mod_field::LastYear,
                                                       mod_field::LastMonth);
template <>
inline constexpr auto fieldsOf<ModColours> = std::tie(mod_field::Background, mod_field::Panel,
                                                      mod_field::Text, mod_field::Heading, mod_field::Button,
                                                      mod_field::ButtonText, mod_field::Selection,
                                                      mod_field::Friendly, mod_field::Enemy,
                                                      mod_field::Neutral);
template <>
inline constexpr auto fieldsOf<ModPeriod> = std::tie(mod_field::PeriodFirstYear, mod_field::PeriodFirstMonth,
                                                     mod_field::PeriodLastYear, mod_field::PeriodLastMonth);
template <>
inline constexpr auto fieldsOf<ModAllegiance> = std::tie(mod_field::Side);
template <>
inline constexpr auto fieldsOf<ModSurname> = std::tie(mod_field::SurnameText, mod_field::Commonness);
template <>
inline constexpr auto fieldsOf<ModUniform> = std::tie(mod_field::UniformProfile, mod_field::UniformGame,
                                                      mod_field::UniformRanks);
template <>
inline constexpr auto fieldsOf<ModRank> = std::tie(mod_field::RankName, mod_field::RankImage);
template <>
inline constexpr auto fieldsOf<ModListedUnit> = std::tie(mod_field::UnitFile, mod_field::UnitCategory,
                                                         mod_field::UnitShare, mod_field::UnitCost);
template <>
inline constexpr auto fieldsOf<ModEquipment> = std::tie(mod_field::EquipmentName);
template <>
inline constexpr auto fieldsOf<ModNationality> = std::tie(mod_field::Id, mod_field::ShownName,
                                                          mod_field::Adjective, mod_field::Flag,
                                                          mod_field::AnimatedFlag);

} // namespace varrocade
