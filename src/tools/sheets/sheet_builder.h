#pragma once
// Builds a sheet row by row. Its columns are those that any row has: a vehicle with three turrets brings
// those of the third.

#include "data/each_field.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace varrocade {

struct CellPlace;

class SheetBuilder {
public:
    /// The heading of the first column, which has the files' names: that of the category, so that a sheet
    /// tells what it is of.
    explicit SheetBuilder(std::string_view firstHeading);

    void add(std::string_view fileName, const SquadRecord& unit);
    void add(std::string_view fileName, const WeaponRecord& weapon);

    /// Puts the rows of another builder behind these. The table is the same as if all had been added here.
    void join(const SheetBuilder& other);

    /// The bytes of the sheet's file.
    [[nodiscard]] std::string file() const;

private:
    static constexpr std::size_t None = SIZE_MAX;

    struct Column {
        std::string heading;
        std::size_t left = 0;    ///< the one that it was put behind
        bool isOfTime = false;   ///< of availability, which has many columns and stands last
        std::size_t next = None; ///< in the order of the rows
    };
    /// A place where values stood, with its column and the place that came after it the last time: units
    /// have mostly the same values in the same order.
    struct Place {
        KeptPath path;
        FieldId field = nullptr; ///< of a plate that of its thickness or angle
        std::size_t column = 0;
        std::size_t following = None;
    };
    struct Cell {
        std::uint32_t column;
        std::uint32_t length; ///< of its part of `texts_`, where the cells stand one behind the other
    };

    template <typename Record>
    void addRow(std::string_view fileName, const Record& record);
    std::size_t placeOf(const CellPlace& cell, std::size_t before);
    std::size_t newPlace(const CellPlace& cell, std::size_t before);
    /// The column of that heading, put behind another where there was none.
    std::size_t columnOf(const std::string& heading, std::size_t left, bool isOfTime);
    /// Keeps what was put behind `begin` of the texts as a cell. An empty one is needed only where it begins
    /// a row.
    void endCell(std::size_t column, std::size_t begin) {
        if (column == 0 || texts_.size() > begin) {
            cells_.push_back(
                {static_cast<std::uint32_t>(column), static_cast<std::uint32_t>(texts_.size() - begin)});
        }
    }
    [[nodiscard]] std::vector<std::size_t> sheetOrder() const;
    void appendRows(std::string& table, const std::vector<std::size_t>& positions) const;

    std::vector<Column> columns_;
    std::vector<Place> places_;
    std::map<std::pair<std::string, FieldId>, std::size_t> placesByKey_; ///< by path and field
    std::unordered_map<std::string, std::size_t> columnsByHeading_;
    std::vector<Cell> cells_; ///< of all rows, few of them empty; each row begins with one of column 0
    std::string texts_;
};

} // namespace varrocade
