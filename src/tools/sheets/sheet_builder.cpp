#include "tools/sheets/sheet_builder.h"

#include "tools/sheets/sheet_cells.h"
#include "tools/sheets/sheet_table.h"

namespace varrocade {

namespace {

constexpr std::string_view RowEnd = "\r\n";

template <typename Value>
void appendValueCell(std::string& out, const CellPlace& cell, const Value& value) {
    if constexpr (IsText<Value>) {
        appendTextCell(out, std::string_view(value));
    } else if constexpr (std::integral<Value> && !std::same_as<Value, bool>) {
        if (!cell.isLeftOpen) {
            appendInteger(out, std::int32_t{value});
        }
    } else {
        out += plainText(cell, value);
    }
}

/// A cell with the place of its column in the table.
struct PlacedCell {
    std::size_t position;
    std::string_view text;
};

/// What lies between the cells is one run of tabs.
void appendRow(std::string& table, std::vector<PlacedCell>& row, std::size_t columns) {
    const auto isBefore = [](const PlacedCell& a, const PlacedCell& b) { return a.position < b.position; };
    if (!std::is_sorted(row.begin(), row.end(), isBefore)) {
        std::sort(row.begin(), row.end(), isBefore);
    }
    std::size_t position = 0;
    for (const PlacedCell& cell : row) {
        table.append(cell.position - position, '\t');
        table += cell.text;
        position = cell.position;
    }
    table.append(columns - 1 - position, '\t');
    table += RowEnd;
}

} // namespace

SheetBuilder::SheetBuilder(std::string_view firstHeading) {
    columns_.push_back({.heading = std::string(firstHeading)});
    places_.push_back({});
    columnsByHeading_.emplace(firstHeading, 0);
}

std::size_t SheetBuilder::placeOf(const CellPlace& cell, std::size_t before) {
    const std::size_t expected = places_[before].following;
    if (expected != None && places_[expected].field == &cell.field &&
        places_[expected].path.isKnown(cell.place.path)) {
        return expected;
    }
    const auto known = placesByKey_.find({cell.place.path.text(), &cell.field});
    const std::size_t place = known == placesByKey_.end() ? newPlace(cell, before) : known->second;
    places_[before].following = place;
    return place;
}

std::size_t SheetBuilder::newPlace(const CellPlace& cell, std::size_t before) {
    std::string path = cell.place.path.text();
    const std::size_t column =
        columnOf(headingOf(cell), places_[before].column, path.starts_with(element::Availability));
    placesByKey_.emplace(std::pair(std::move(path), &cell.field), places_.size());
    places_.push_back({KeptPath(cell.place.path), &cell.field, column});
    return places_.size() - 1;
}

/// A column that no row had before comes behind the one that stands before it in this row.
std::size_t SheetBuilder::columnOf(const std::string& heading, std::size_t left, bool isOfTime) {
    const auto [known, isNew] = columnsByHeading_.try_emplace(heading, columns_.size());
    if (isNew) {
        columns_.push_back({heading, left, isOfTime, columns_[left].next});
        columns_[left].next = columns_.size() - 1;
    }
    return known->second;
}

template <typename Record>
void SheetBuilder::addRow(std::string_view fileName, const Record& record) {
    std::size_t begin = texts_.size();
    appendTextCell(texts_, fileName);
    endCell(0, begin);
    std::size_t place = 0;
    forEachCell(record, [&](const CellPlace& cell, const auto& value) {
        place = placeOf(cell, place);
        begin = texts_.size();
        appendValueCell(texts_, cell, value);
        endCell(places_[place].column, begin);
    });
}

void SheetBuilder::add(std::string_view fileName, const SquadRecord& unit) {
    addRow(fileName, unit);
}

void SheetBuilder::add(std::string_view fileName, const WeaponRecord& weapon) {
    addRow(fileName, weapon);
}

/// Its columns come here in the order in which its rows brought them, each behind the same one as there: so
/// they stand where the rows themselves would have put them.
void SheetBuilder::join(const SheetBuilder& other) {
    std::vector<std::size_t> columns;
    columns.reserve(other.columns_.size());
    for (const Column& column : other.columns_) {
        const std::size_t left = columns.empty() ? 0 : columns[column.left];
        columns.push_back(columnOf(column.heading, left, column.isOfTime));
    }
    cells_.reserve(cells_.size() + other.cells_.size());
    for (const Cell& cell : other.cells_) {
        cells_.push_back({static_cast<std::uint32_t>(columns[cell.column]), cell.length});
    }
    texts_ += other.texts_;
}

std::vector<std::size_t> SheetBuilder::sheetOrder() const {
    std::vector<std::size_t> order;
    for (std::size_t column = 0; column != None; column = columns_[column].next) {
        order.push_back(column);
    }
    std::stable_partition(order.begin(), order.end(),
                          [this](std::size_t column) { return !columns_[column].isOfTime; });
    return order;
}

std::string SheetBuilder::file() const {
    std::string table;
    const std::vector<std::size_t> order = sheetOrder();
    const auto rows =
        std::count_if(cells_.begin(), cells_.end(), [](const Cell& cell) { return cell.column == 0; });
    table.reserve(texts_.size() + (static_cast<std::size_t>(rows) + 1) * (order.size() + 2));
    for (const std::size_t column : order) {
        table += column != 0 ? "\t" : "";
        appendPlainCell(table, columns_[column].heading);
    }
    table += RowEnd;
    std::vector<std::size_t> positions(columns_.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        positions[order[i]] = i;
    }
    appendRows(table, positions);
    return sheetFile(std::move(table));
}

/// A row has few of the columns, most of them in their order.
void SheetBuilder::appendRows(std::string& table, const std::vector<std::size_t>& positions) const {
    std::vector<PlacedCell> row;
    std::vector<PlacedCell> times;
    const std::string_view texts = texts_;
    std::size_t begin = 0;
    for (auto cell = cells_.begin(); cell != cells_.end();) {
        const auto rowEnd = std::find_if(cell + 1, cells_.end(), [](const Cell& c) { return c.column == 0; });
        row.resize(static_cast<std::size_t>(rowEnd - cell));
        times.clear();
        auto placed = row.begin();
        for (; cell != rowEnd; ++cell) {
            *placed = {positions[cell->column], texts.substr(begin, cell->length)};
            begin += cell->length;
            if (columns_[cell->column].isOfTime) {
                times.push_back(*placed);
            } else {
                ++placed;
            }
        }
        std::copy(times.begin(), times.end(), placed);
        appendRow(table, row, columns_.size());
    }
}

} // namespace varrocade
