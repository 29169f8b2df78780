#pragma once
// Looping over the values of what a mod says of its nationalities, with the path to each, as `each_field.h`
// does over those of units.

#include "data/each_field.h"
#include "mod/mod_elements.h"
#include "mod/mod_fields.h"

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace varrocade {

/// `visit` is called with a `FieldPlace` and a reference to the value, which it may change where the settings
/// are not constant. The path is good until it returns: "nationality[2].equipment[1].unit[4].file".
template <typename Settings, typename Visit>
requires std::same_as<std::remove_const_t<Settings>, ModSettings>
void forEachField(Settings& settings, Visit&& visit) {
    // Settings are no unit's file, and nothing in them depends on what holds it.
    constexpr Holder holder = Holder::VehicleFile;
    each_field::Walk<Visit> fields(visit);
    const auto each = [&](auto& entries, const std::string& path) {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            fields.entry(entries[i], path, i + 1, holder, holder);
        }
    };
    each(settings.nationalities, std::string(mod_element::Nationality));
    for (std::size_t i = 0; i < settings.nationalities.size(); ++i) {
        auto& nationality = settings.nationalities[i];
        const std::string path = std::string(mod_element::Nationality) + "[" + std::to_string(i + 1) + "].";
        each(nationality.uniforms, path + std::string(mod_element::Uniform));
        each(nationality.ranks, path + std::string(mod_element::Rank));
        each(nationality.equipment, path + std::string(mod_element::Equipment));
        for (std::size_t j = 0; j < nationality.equipment.size(); ++j) {
            each(nationality.equipment[j].units, path + std::string(mod_element::Equipment) + "[" +
                                                     std::to_string(j + 1) + "]." +
                                                     std::string(mod_element::Unit));
        }
    }
}

/// Visits the units of all equipment lists, each with the path to its file's name.
template <typename Visit>
void forEachListedUnit(const ModSettings& settings, Visit&& visit) {
    for (std::size_t i = 0; i < settings.nationalities.size(); ++i) {
        const std::vector<ModEquipment>& lists = settings.nationalities[i].equipment;
        for (std::size_t j = 0; j < lists.size(); ++j) {
            for (std::size_t k = 0; k < lists[j].units.size(); ++k) {
                const auto step = [](std::string_view name, std::size_t index) {
                    return std::string(name) + "[" + std::to_string(index + 1) + "].";
                };
                visit(step(mod_element::Nationality, i) + step(mod_element::Equipment, j) +
                          step(mod_element::Unit, k) + std::string(mod_field::UnitFile.element),
                      lists[j].units[k]);
            }
        }
    }
}

} // namespace varrocade
