#pragma once
// Which units carry a weapon.

#include "platform/file_operations.h"

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The weapons that the units of some folders carry. Looking again reads the files that changed and no
/// others.
class WeaponUsers {
public:
    /// The units that carry a weapon, sorted: "Vehicles: German Panzer VI Tiger Ausf E". `names` are those
    /// that the weapon goes by, its own and that of its file. Of a unit that is in several base folders the
    /// first one counts.
    std::vector<std::string> usersOf(std::span<const std::string> bases,
                                     std::span<const std::string_view> names);

    /// How many files have been read so far.
    [[nodiscard]] std::size_t filesRead() const { return filesRead_; }

private:
    struct Unit {
        StampedFile file;
        std::vector<std::string> weapons;
    };

    std::map<std::string, Unit> units_; ///< by path
    std::size_t filesRead_ = 0;
};

} // namespace varrocade
