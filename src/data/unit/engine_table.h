#pragma once
// The engines that older unit files name by identifier instead of by name and horsepower.

#include <span>
#include <string_view>

namespace varrocade {

/// One engine: the identifier in the file, such as "ENGINE_MAYBACH_HL230_P30", the name to show, and its
/// power in horsepower (a twin or coupled set counts as one engine, with the power of the set).
/// docs/engines.md tells which vehicles it drove and which figures are estimates.
struct EngineRow {
    std::string_view identifier;
    std::string_view name;
    int horsepower;
};

/// All rows, in the order in which they are looked up.
std::span<const EngineRow> engineTable();

/// The first row with exactly this identifier (case counts), or nullptr.
const EngineRow* findEngine(std::string_view identifier);

} // namespace varrocade
