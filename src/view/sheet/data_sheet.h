#pragma once
// The data sheet of the open unit, as blocks of text and tables, without any device.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "view/drawing/armour_sketch.h"
#include "view/drawing/unit_part.h"
#include "view/sheet/field_pair.h"
#include "view/sheet/unit_problems.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// A title line with the flag of the nationality beside it.
struct SheetTitle {
    std::string text;
    std::string subtitle;
    std::string nationality; ///< "NATIONALITY_..." for the flag
};

struct SheetHeading {
    std::string text;
};

/// Running text, broken where it must.
struct SheetNote {
    std::string text;
    bool isLink = false; ///< a click on it opens what it names: "Vehicles: German Tiger"
};

struct SheetRow {
    std::vector<std::string> cells;
    UnitPart part = {};
    std::string detail = {}; ///< a line of its own below the cells
};

/// A table; the first row holds the column heads.
struct SheetTable {
    std::vector<SheetRow> rows;
};

/// A picture of the game, by its path below the folders that pictures are looked for in.
struct SheetPicture {
    std::string path;
    std::string caption;
};

/// The plates of one component.
struct SheetArmour {
    std::string caption;
    UnitPart part;
    ArmourSketch side;
    ArmourSketch cross;
};

/// One section: a timeline, figures in pairs (two columns of them), tables, armour, pictures and notes, in
/// this order.
struct SheetSection {
    SheetHeading heading;
    UnitPart part = {};
    std::vector<SheetPair> pairs = {};
    std::vector<SheetTable> tables = {};
    std::vector<SheetArmour> armour = {};
    std::vector<SheetPicture> pictures = {};
    std::vector<SheetNote> notes = {};
    std::vector<AvailabilityPoint> timeline = {}; ///< shown as steps over the years
    bool holdsProblems = false;                   ///< what the bar cannot point at is found here
};

/// A line of the bar below the title.
struct SheetWarning {
    std::string text;
    UnitPart part = {};     ///< what a click on it leads to; without one, the section that holds the problems
    std::string field = {}; ///< what is to be edited to mend it, by its path
};

struct DataSheet {
    SheetTitle title;
    std::string comment;
    std::vector<SheetSection> sections;
    std::vector<SheetWarning> warnings = {};
};

/// The sheet of a unit of any category that has a `SquadRecord`. `missingPictures` are listed at its end; the
/// figures of its weapons come from the catalogue.
DataSheet unitSheet(const SquadRecord& record, std::span<const std::string> missingPictures,
                    const WeaponCatalogue& catalogue);

/// Puts what is wrong with a unit on its sheet: into the bar, and in full into a section at its end.
void addProblems(DataSheet& sheet, std::span<const SheetProblem> problems);

/// The sheet of a weapon, what is wrong with its file, and the units that use it, as far as these are known
/// yet.
DataSheet weaponSheet(const WeaponRecord& weapon, std::span<const SheetProblem> problems,
                      const std::optional<std::vector<std::string>>& users);

/// The sections that only infantry and heavy weapons, and only aircraft, have.
void addSquadSections(DataSheet& sheet, const SquadRecord& record, const WeaponCatalogue& catalogue);
void addAircraftSections(DataSheet& sheet, const AircraftRecord& aircraft, const WeaponCatalogue& catalogue);

/// The men of a squad or of a crew, a row each below the heads; `place` tells them apart or says where they
/// sit. Ammunition is told with what it is for: some of it is for nothing that the man carries, as grenades.
SheetTable tableOfMen();
SheetRow rowOfMan(const CrewManRecord& man, std::string place, const UnitPart& part);

/// A weapon's own figures in one line: "88 mm, barrel 4.93 m, 600 to 930 m/s, 3,500 m, 8 rounds/min"; empty
/// when the catalogue does not have it.
std::string weaponFigures(const WeaponCatalogue& catalogue, std::string_view weaponType);
} // namespace varrocade
