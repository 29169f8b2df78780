#pragma once
// The forms of the "Edit Mod" dialogs, without any window.

#include "editors/form/list_model.h"
#include "mod/mod_record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

const FormShape<ModSettings>& modShape();
const ListShape<ModNationality>& nationalityShape();
const ListShape<ModAllegiance>& allegianceShape();
const ListShape<ModSurname>& surnameShape();
const ListShape<ModUniform>& modUniformShape();
const ListShape<ModRank>& rankShape();
const ListShape<ModEquipment>& equipmentShape();

/// A nationality that no entry has yet, with what is known of it.
ModNationality nextNationality(const std::vector<ModNationality>& nations);

/// Fills in anew an entry that was made another nation and otherwise is what was filled in for `untouched`.
void followNationality(ModNationality& nation, ModNationality& untouched);

/// Years and nationalities of another war; its description too, unless the mod has one of its own.
void startAnew(ModSettings& settings, ModSettings start);

/// The lines of the credits in one edit, and back; empty lines at the end are none.
std::string creditsText(const std::vector<std::string>& lines);
std::vector<std::string> creditLines(std::string_view text);
/// Why a line cannot stand in the file, or nothing.
std::optional<FormError> refusalOfCredits(const std::vector<std::string>& lines);

/// Pasted surnames, one a line, a number behind a tab being how common the name is. Those that no file can
/// hold are left out, and told in `leftOut`.
std::vector<ModSurname> surnamesOfText(std::string_view text, std::vector<std::string>* leftOut = nullptr);

/// The most common first, equal ones by name, without regard to the case of letters.
void sortSurnames(std::vector<ModSurname>& surnames);
/// By name alone.
void sortSurnamesByName(std::vector<ModSurname>& surnames);
/// Leaves the first of each name, letter case aside, as common as the most common of them.
void dropDoubles(std::vector<ModSurname>& surnames);

/// What a nationality is called in the mod.
std::string shownNationality(const ModNationality& nation);

/// How many nationalities there are, and the first of them by name.
std::string nationalitySummary(const std::vector<ModNationality>& nations);

/// The colours by name, in the order of the file.
struct NamedColour {
    std::string_view label;
    Rgb ModColours::*member;
};
const std::vector<NamedColour>& namedColours();

} // namespace varrocade
