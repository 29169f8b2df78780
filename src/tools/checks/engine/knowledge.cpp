#include "tools/checks/engine/knowledge.h"

#include "analysis/performance/outliers.h"
#include "analysis/performance/vehicle_figures.h"
#include "data/format/texts.h"
#include "data/unit_fields.h"
#include "mod/mod_settings.h"
#include "pictures/png_codec.h"
#include "platform/file_operations.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <utility>

namespace varrocade {

const WeaponRecord* CheckKnowledge::findWeapon(std::string_view name) const {
    const auto found = weapons.find(name);
    return found == weapons.end() ? nullptr : found->second;
}

std::optional<PictureSize> CheckKnowledge::sizeOf(const AssetFile& picture) const {
    {
        const std::shared_lock guard(guard_);
        if (const auto known = sizes_.find(&picture); known != sizes_.end()) {
            return known->second;
        }
    }
    // Nobody waits while a file is read; at worst two read the same one.
    const std::optional<PictureSize> size = readPngSize(picture.path());
    const std::scoped_lock guard(guard_);
    return sizes_.try_emplace(&picture, size).first->second;
}

namespace {

std::optional<Silhouette> silhouetteOfFile(const AssetFile& file) {
    std::string bytes;
    if (!readWholeFile(file.path(), bytes)) {
        return std::nullopt;
    }
    const PngReading reading = readPng(bytes);
    return reading.failure.empty() ? std::optional(silhouetteOf(reading.picture)) : std::nullopt;
}

} // namespace

PictureShift CheckKnowledge::shiftOf(const AssetFile& whole, const AssetFile& part) const {
    const std::pair key(&whole, &part);
    {
        const std::shared_lock guard(guard_);
        if (const auto known = shifts_.find(key); known != shifts_.end()) {
            return known->second;
        }
    }
    const std::optional<Silhouette> around = silhouetteOfFile(whole);
    const std::optional<Silhouette> inside = silhouetteOfFile(part);
    const PictureShift shift = around && inside ? shiftInto(*around, *inside) : PictureShift{};
    const std::scoped_lock guard(guard_);
    return shifts_.try_emplace(key, shift).first->second;
}

void learnWeapons(CheckKnowledge& knowledge, const WeaponCatalogue& catalogue) {
    knowledge.catalogue = &catalogue;
    knowledge.weapons.clear();
    const auto& entries = catalogue.entries();
    for (const CatalogueEntry& entry : entries) {
        if (entry.holdsWeapon) {
            knowledge.weapons.try_emplace(entry.weapon.fileName, &entry.weapon);
        }
    }
    for (const CatalogueEntry& entry : entries) {
        if (entry.holdsWeapon) {
            knowledge.weapons.try_emplace(entry.weapon.name, &entry.weapon);
        }
    }
    knowledge.knowsWeapons = !knowledge.weapons.empty();
}

void learnFolders(CheckKnowledge& knowledge, const GameFolders& folders) {
    knowledge.files.setBases(folders);
    const std::string& modFolder = folders.mod.empty() ? folders.program : folders.mod;
    if (systemFiles().exists(modFolder + std::string(ModFileName))) {
        knowledge.mod = loadModSettings(modFolder);
    }
}

std::vector<const CatalogueEntry*> learnOwnWeapons(CheckKnowledge& knowledge) {
    learnWeapons(knowledge, knowledge.ownCatalogue);
    knowledge.masses.emplace(knowledge.ownCatalogue);
    const std::vector<CatalogueEntry>& entries = knowledge.ownCatalogue.entries();
    ValueSamples samples;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].holdsWeapon) {
            addSamples(samples, entries[i].weapon, static_cast<std::uint32_t>(i));
        }
    }
    knowledge.usual.learn(samples);
    std::vector<const CatalogueEntry*> outstanding;
    for (const std::uint32_t owner : knowledge.usual.ownersOfUnusual(samples)) {
        outstanding.push_back(&entries[owner]);
    }
    return outstanding;
}

void UnitSurvey::addLoads(const SquadRecord& unit) {
    const auto add = [this](const std::vector<AmmoLoadRecord>& loads) {
        for (std::size_t i = 0; i < loads.size(); ++i) {
            const std::string_view weapon = loads[i].weaponType;
            auto known = loads_.find(weapon);
            if (known == loads_.end()) {
                known = loads_.emplace(weapon, Loads{}).first;
            }
            const bool isFirst = std::none_of(
                loads.begin(), loads.begin() + static_cast<std::ptrdiff_t>(i),
                [weapon](const AmmoLoadRecord& other) { return other.weaponType.view() == weapon; });
            known->second.carriers += isFirst ? 1 : 0;
            known->second.rounds[loads[i].flavour.str()].push_back(loads[i].rounds);
        }
    };
    const auto addMen = [&](const std::vector<CrewManRecord>& men) {
        std::for_each(men.begin(), men.end(), [&](const CrewManRecord& man) { add(man.ammo); });
    };
    if (unit.vehicle) {
        for (const ComponentRecord& component : unit.vehicle->components) {
            add(component.ammo);
            addMen(component.crew);
        }
    }
    if (unit.heavyWeapon) {
        add(unit.heavyWeapon->ammo);
    }
    if (unit.aircraft) {
        add(unit.aircraft->ammo);
    }
    addMen(unit.infantrymen);
}

void UnitSurvey::add(std::uint32_t number, Category category, std::string_view file,
                     const SquadRecord& unit) {
    addSamples(samples_, unit, number);
    addLoads(unit);
    if (unit.vehicle && knowledge_.masses) {
        vehicles_.push_back({number, vehicleFigures(unit, *knowledge_.masses)});
    }
    if (!unit.longName.empty()) {
        units_.push_back({number, category, std::string(file), unit.longName.str(), unit.nationality.str()});
    }
}

void UnitSurvey::join(UnitSurvey other) {
    for (auto& [key, values] : other.samples_) {
        std::vector<ValueSample>& ours = samples_[key];
        ours.insert(ours.end(), values.begin(), values.end());
    }
    std::move(other.vehicles_.begin(), other.vehicles_.end(), std::back_inserter(vehicles_));
    std::move(other.units_.begin(), other.units_.end(), std::back_inserter(units_));
    for (const auto& [weapon, loads] : other.loads_) {
        Loads& ours = loads_[weapon];
        ours.carriers += loads.carriers;
        for (const auto& [flavour, rounds] : loads.rounds) {
            std::vector<std::int32_t>& all = ours.rounds[flavour];
            all.insert(all.end(), rounds.begin(), rounds.end());
        }
    }
}

namespace {

std::int32_t middleOf(std::vector<std::int32_t> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

template <typename Surveyed>
void sortByNumber(std::vector<Surveyed>& entries) {
    std::sort(entries.begin(), entries.end(),
              [](const Surveyed& a, const Surveyed& b) { return a.number < b.number; });
}

} // namespace

void UnitSurvey::finishLoads(CheckKnowledge& knowledge) const {
    knowledge.usualLoads.clear();
    for (const auto& [weapon, loads] : loads_) {
        std::vector<UsualLoad>& usual = knowledge.usualLoads[weapon];
        for (const auto& [flavour, rounds] : loads.rounds) {
            const std::int32_t number = middleOf(rounds);
            if (2 * rounds.size() > loads.carriers && number > 0) {
                usual.push_back({flavour, number});
            }
        }
    }
}

/// Learns the weights of all vehicles, and tells which are far from them.
void UnitSurvey::finishWeights(CheckKnowledge& knowledge, std::vector<std::uint32_t>& outstanding) {
    sortByNumber(vehicles_);
    std::vector<VehicleFigures> figures;
    figures.reserve(vehicles_.size());
    for (SurveyedVehicle& vehicle : vehicles_) {
        figures.push_back(std::move(vehicle.figures));
    }
    knowledge.weights = calibrateWeight(figures);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        if (weightOutlier(figures[i], *knowledge.weights)) {
            outstanding.push_back(vehicles_[i].number);
        }
    }
}

/// Learns the names of all units, and tells which share one within their nation.
void UnitSurvey::finishNames(CheckKnowledge& knowledge, std::vector<std::uint32_t>& outstanding) {
    sortByNumber(units_);
    knowledge.unitsByName.clear();
    knowledge.unitsByName.reserve(units_.size());
    for (KnownUnit& unit : units_) {
        knowledge.unitsByName[unit.longName].push_back(std::move(unit));
    }
    for (const auto& [name, units] : knowledge.unitsByName) {
        for (const KnownUnit& unit : units) {
            if (std::any_of(units.begin(), units.end(), [&unit](const KnownUnit& other) {
                    return &other != &unit && other.nationality == unit.nationality;
                })) {
                outstanding.push_back(unit.number);
            }
        }
    }
}

std::vector<std::uint32_t> UnitSurvey::finish(CheckKnowledge& knowledge) {
    knowledge.usual.learn(samples_);
    std::vector<std::uint32_t> outstanding = knowledge.usual.ownersOfUnusual(samples_);
    finishWeights(knowledge, outstanding);
    finishNames(knowledge, outstanding);
    finishLoads(knowledge);
    return outstanding;
}

} // namespace varrocade
