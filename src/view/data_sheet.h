#pragma once
// The data sheet of the open unit, as blocks of text and tables, without any device.

#include "data/category.h"
#include "data/unit_record.h"
#include "weapons/weapon_record.h"

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

struct SheetPair {
    std::string label;
    std::string value;
};

/// Running text, broken where it must.
struct SheetNote {
    std::string text;
};

/// A table; the first row holds the column heads. Columns that look like numbers are aligned right.
struct SheetTable {
    std::vector<std::vector<std::string>> rows;
};

/// One section: a timeline, figures in pairs (two columns of them), tables and notes, in this order.
struct SheetSection {
    SheetHeading heading;
    std::vector<SheetPair> pairs = {};
    std::vector<SheetTable> tables = {};
    std::vector<SheetNote> notes = {};
    std::vector<AvailabilityPoint> timeline = {}; ///< shown as steps over the years
};

struct DataSheet {
    SheetTitle title;
    std::string comment;
    std::vector<SheetSection> sections;
};

/// The sheet of a unit of any category that has a `SquadRecord`. `missingPictures` are listed at its end.
DataSheet unitSheet(const SquadRecord& record, const std::vector<std::string>& missingPictures);

/// The sheet of a weapon.
DataSheet weaponSheet(const WeaponRecord& weapon);

/// The sections that only infantry and heavy weapons, and only aircraft, have.
void addSquadSections(DataSheet& sheet, const SquadRecord& record);
void addAircraftSections(DataSheet& sheet, const AircraftRecord& aircraft);

/// A component's place in the vehicle (from 1) and its kind: "2. Turret".
std::string componentTitle(std::size_t place, ComponentKind kind);

/// The line that names a component in lists: its place in the vehicle (from 1), its kind and its crew.
std::string componentLine(std::size_t place, const ComponentRecord& component);

} // namespace varrocade
