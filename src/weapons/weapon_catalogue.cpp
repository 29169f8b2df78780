#include "weapons/weapon_catalogue.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "platform/file_operations.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_usage.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace varrocade {

namespace {

/// Less than 0, 0 or more, as `std::string_view::compare`.
int compareFolded(std::string_view a, std::string_view b) {
    const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), [](char left, char right) {
        return foldedInName(left) == foldedInName(right);
    });
    if (x == a.end() || y == b.end()) {
        return static_cast<int>(x != a.end()) - static_cast<int>(y != b.end());
    }
    return static_cast<unsigned char>(foldedInName(*x)) < static_cast<unsigned char>(foldedInName(*y)) ? -1
                                                                                                       : 1;
}

bool comesBefore(const CatalogueEntry& a, const CatalogueEntry& b) {
    if (a.holdsWeapon != b.holdsWeapon) {
        return a.holdsWeapon;
    }
    const WeaponRecord& left = a.weapon;
    const WeaponRecord& right = b.weapon;
    if (left.calibre != right.calibre) {
        return left.calibre < right.calibre;
    }
    if (left.barrelLength != right.barrelLength) {
        return left.barrelLength < right.barrelLength;
    }
    if (const int order = compareFolded(left.name, right.name); order != 0) {
        return order < 0;
    }
    // Without the files' names the system's order of listing would show.
    const int order = compareFolded(left.fileName, right.fileName);
    return order != 0 ? order < 0 : left.fileName < right.fileName;
}

/// The name of a data file, or an empty one where the path is that of a folder.
std::string_view nameOfPath(std::string_view path) {
    path.remove_prefix(path.rfind('\\') + 1);
    return path.substr(0, path.size() - std::min(path.size(), DataFileEnding.size()));
}

/// Whether a file set nothing of its record but its name.
bool isUntouched(const WeaponRecord& weapon) {
    if (!weapon.name.empty() || !weapon.ammoTypes.empty()) {
        return false;
    }
    WeaponRecord untouched;
    untouched.fileName = weapon.fileName;
    return weapon == untouched;
}

} // namespace

CatalogueReading readForCatalogue(const GameFile& file, std::string_view content, TagTree& tree) {
    CatalogueReading reading{{.path = file.path}};
    CatalogueEntry& entry = reading.entry;
    entry.weapon = readWeapon(tree, content, file.name, reading.problems);
    for (Finding& finding : reading.problems) {
        finding.file = entry.path;
    }
    entry.holdsWeapon = !isUntouched(entry.weapon);
    if (!entry.holdsWeapon) {
        reading.problems.push_back({.key = finding_key::NoWeapon,
                                    .severity = Severity::Error,
                                    .file = entry.path,
                                    .message = "holds no weapon"});
    }
    return reading;
}

CatalogueReading unreadForCatalogue(const FileFailure& failure) {
    CatalogueReading reading{{.path = failure.path, .holdsWeapon = false}, {cannotRead(failure)}};
    reading.entry.weapon.fileName = nameOfPath(failure.path);
    return reading;
}

void WeaponCatalogue::load(std::string_view programFolder, std::string_view modFolder) {
    folders_ = {.program = std::string(programFolder), .mod = std::string(modFolder)};
    entries_.clear();
    GameFileList list = listGameFiles(folders_, Category::Weapons);
    problems_.clear();
    std::transform(list.failures.begin(), list.failures.end(), std::back_inserter(problems_), cannotRead);
    addFiles(std::move(list));
}

void WeaponCatalogue::refresh(std::string_view fileName) {
    std::erase_if(entries_, [fileName](const CatalogueEntry& entry) {
        return equalsIgnoringCase(entry.weapon.fileName, fileName);
    });
    std::erase_if(problems_, [fileName](const Finding& problem) {
        return equalsIgnoringCase(nameOfPath(problem.file), fileName);
    });
    GameFileList list = listGameFiles(folders_, Category::Weapons);
    const auto isOther = [fileName](const GameFile& file) {
        return !equalsIgnoringCase(file.name, fileName);
    };
    std::erase_if(list.files, isOther);
    std::erase_if(list.hidden, isOther);
    addFiles(std::move(list));
}

void WeaponCatalogue::take(GameFolders folders, std::vector<CatalogueReading> readings,
                           std::vector<GameFile> hidden) {
    folders_ = std::move(folders);
    entries_.clear();
    problems_.clear();
    entries_.reserve(readings.size());
    std::for_each(std::move_iterator(readings.begin()), std::move_iterator(readings.end()),
                  [this](CatalogueReading&& reading) { add(std::move(reading)); });
    addHidden(std::move(hidden));
    sortEntries();
}

/// Reads the files that count, and hidden ones in whose place there is no weapon.
void WeaponCatalogue::addFiles(GameFileList list) {
    TagTree tree;
    entries_.reserve(entries_.size() + list.files.size());
    GameFileWalk counting(std::move(list.files));
    counting.run(
        [&](const GameFile& file, std::string_view content) { add(readForCatalogue(file, content, tree)); });
    for (const FileFailure& failure : counting.failures()) {
        add(unreadForCatalogue(failure));
    }
    addHidden(std::move(list.hidden));
    sortEntries();
}

void WeaponCatalogue::add(CatalogueReading reading) {
    entries_.push_back(std::move(reading.entry));
    std::move(reading.problems.begin(), reading.problems.end(), std::back_inserter(problems_));
}

void WeaponCatalogue::addHidden(std::vector<GameFile> files) {
    std::erase_if(files, [&](const GameFile& file) { return entryToReplace(file) == nullptr; });
    TagTree tree;
    GameFileWalk hidden(std::move(files));
    hidden.run([&](const GameFile& file, std::string_view content) {
        CatalogueEntry* const place = entryToReplace(file);
        if (place == nullptr) {
            return;
        }
        CatalogueReading reading = readForCatalogue(file, content, tree);
        std::move(reading.problems.begin(), reading.problems.end(), std::back_inserter(problems_));
        if (reading.entry.holdsWeapon) {
            *place = std::move(reading.entry);
        }
    });
    std::transform(hidden.failures().begin(), hidden.failures().end(), std::back_inserter(problems_),
                   cannotRead);
}

/// The entry without a weapon that has the name of a file; null where there is none.
CatalogueEntry* WeaponCatalogue::entryToReplace(const GameFile& file) {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const CatalogueEntry& entry) {
        return !entry.holdsWeapon && equalsIgnoringCase(entry.weapon.fileName, file.name);
    });
    return found == entries_.end() ? nullptr : &*found;
}

/// Records are large: their places are sorted, and each record is moved once.
void WeaponCatalogue::sortEntries() {
    std::vector<CatalogueEntry*> order;
    order.reserve(entries_.size());
    for (CatalogueEntry& entry : entries_) {
        order.push_back(&entry);
    }
    std::sort(order.begin(), order.end(),
              [](const CatalogueEntry* a, const CatalogueEntry* b) { return comesBefore(*a, *b); });
    std::vector<CatalogueEntry> sorted;
    sorted.reserve(order.size());
    for (CatalogueEntry* entry : order) {
        sorted.push_back(std::move(*entry));
    }
    entries_ = std::move(sorted);
}

std::vector<const WeaponRecord*> WeaponCatalogue::select(const WeaponFilter& filter) const {
    std::vector<const WeaponRecord*> found;
    for (const CatalogueEntry& entry : entries_) {
        const WeaponRecord& weapon = entry.weapon;
        const bool isWanted =
            entry.holdsWeapon &&
            (filter.types.empty() ||
             std::find(filter.types.begin(), filter.types.end(), weapon.type) != filter.types.end()) &&
            (filter.nationality.empty() || usesWeapon(filter.nationality, weapon.countries)) &&
            (filter.period.empty() || isOfPeriod(filter.period, weapon.period));
        if (isWanted) {
            found.push_back(&weapon);
        }
    }
    return found;
}

const WeaponRecord* WeaponCatalogue::find(std::string_view name) const {
    const WeaponRecord* named = nullptr;
    for (const CatalogueEntry& entry : entries_) {
        if (!entry.holdsWeapon) {
            break;
        }
        if (equalsIgnoringCase(entry.weapon.fileName, name)) {
            return &entry.weapon;
        }
        if (named == nullptr && equalsIgnoringCase(entry.weapon.name, name)) {
            named = &entry.weapon;
        }
    }
    return named;
}

std::vector<Finding> WeaponCatalogue::problemsOf(std::string_view path) const {
    std::vector<Finding> found;
    std::copy_if(problems_.begin(), problems_.end(), std::back_inserter(found),
                 [path](const Finding& problem) { return problem.file == path; });
    return found;
}

} // namespace varrocade
