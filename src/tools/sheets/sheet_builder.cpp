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

} // namespace

SheetBuilder::SheetBuilder(std::string_view firstHeading) {
    columns_.push_back({.heading = std::string(firstHeading)});
    places_.push_back({});
    columnsByHeading_.emplace(firstHeading, 0);
}

std::size_t SheetBuilder::placeOf(const CellPlace& cell, std::size_t before) {
    const std::size_t expected = places_[before].following;
    if (expected != None && places_[expected].field == &cell.field &&
        cell.place.path == places_[expected].path) {
        return expected;
    }
    const auto known = placesByKey_.find({cell.place.path.text(), &cell.field});
    const std::size_t place = known == placesByKey_.end() ? newPlace(cell, before) : known->second;
    places_[before].following = place;
    return place;
}

/// A column that no row had before comes behind the one that stands before it in this row.
std::size_t SheetBuilder::newPlace(const CellPlace& cell, std::size_t before) {
    const std::string heading = headingOf(cell);
    const auto [known, isNew] = columnsByHeading_.try_emplace(heading, columns_.size());
    std::string path = cell.place.path.text();
    if (isNew) {
        const std::size_t left = places_[before].column;
        columns_.push_back({heading, columns_[left].next, path.starts_with(element::Availability)});
        columns_[left].next = columns_.size() - 1;
    }
    placesByKey_.emplace(std::pair(path, &cell.field), places_.size());
    places_.push_back({std::move(path), &cell.field, known->second});
    return places_.size() - 1;
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

/// A row has few of the columns, most of them in their order: what lies between is one run of tabs.
void SheetBuilder::appendRows(std::string& table, const std::vector<std::size_t>& positions) const {
    using Placed = std::pair<std::size_t, std::string_view>;
    const auto isBefore = [](const Placed& a, const Placed& b) { return a.first < b.first; };
    std::vector<Placed> row;
    std::vector<Placed> times;
    const std::string_view texts = texts_;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < cells_.size();) {
        row.clear();
        times.clear();
        do {
            const Cell& cell = cells_[i];
            if (cell.length > 0) {
                (columns_[cell.column].isOfTime ? times : row)
                    .emplace_back(positions[cell.column], texts.substr(begin, cell.length));
            }
            begin += cell.length;
        } while (++i < cells_.size() && cells_[i].column != 0);
        row.insert(row.end(), times.begin(), times.end());
        if (!std::is_sorted(row.begin(), row.end(), isBefore)) {
            std::sort(row.begin(), row.end(), isBefore);
        }
        std::size_t position = 0;
        for (const auto& [wanted, text] : row) {
            table.append(wanted - position, '\t');
            table += text;
            position = wanted;
        }
        table.append(columns_.size() - 1 - position, '\t');
        table += RowEnd;
    }
}

} // namespace varrocade
