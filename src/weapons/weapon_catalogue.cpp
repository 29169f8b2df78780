#include "weapons/weapon_catalogue.h"

#include "data/category.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "platform/file_operations.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace varrocade {

namespace {

/// Identifiers and words for people compare alike: "NORTH_KOREAN" and "North Korean".
char folded(char c) {
    return c == '_' ? ' ' : lowered(c);
}

bool sameFolded(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return folded(x) == folded(y); });
}

/// Less than 0, 0 or more, as `std::string_view::compare`.
int compareFolded(std::string_view a, std::string_view b) {
    const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char left, char right) { return folded(left) == folded(right); });
    if (x == a.end() || y == b.end()) {
        return static_cast<int>(x != a.end()) - static_cast<int>(y != b.end());
    }
    return static_cast<unsigned char>(folded(*x)) < static_cast<unsigned char>(folded(*y)) ? -1 : 1;
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

std::string_view withoutEnding(std::string_view diskName) {
    return diskName.substr(0, diskName.size() - DataFileEnding.size());
}

bool isFileNamed(std::string_view diskName, std::string_view fileName) {
    return diskName.size() >= DataFileEnding.size() && equalsIgnoringCase(withoutEnding(diskName), fileName);
}

std::string_view nameInFolder(std::string_view path) {
    return path.substr(path.rfind('\\') + 1);
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

/// The forms of nationalities in old files, and the ones that stand for the same nation today.
constexpr auto NationalitySynonyms = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"Armenia", "Armenian"},
    {"Azerbaijan", "Azerbaijani"},
    {"Finland", "Finnish"},
    {"Kuwati", "Kuwaiti"},
});

std::string_view nationOf(std::string_view nationality) {
    if (nationality.starts_with(NationalityPrefix)) {
        nationality.remove_prefix(NationalityPrefix.size());
    }
    for (const auto& [old, present] : NationalitySynonyms) {
        if (sameFolded(nationality, old)) {
            return present;
        }
    }
    return nationality;
}

std::string_view itself(std::string_view word) {
    return word;
}

/// Whether one of the words of a list, separated by commas, is the wanted one. A list without words names
/// all.
bool lists(std::string_view list, std::string_view wanted, std::string_view (*meaning)(std::string_view)) {
    bool isEmpty = true;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        const std::string_view word = trimmed(list.substr(0, comma));
        if (!word.empty()) {
            if (sameFolded(meaning(word), wanted)) {
                return true;
            }
            isEmpty = false;
        }
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return isEmpty;
}

/// A file or folder that the system does not give out, in the system's words.
Finding cannotRead(const std::string& path, std::string reason) {
    return {.key = finding_key::CannotRead,
            .severity = Severity::Error,
            .file = path,
            .message = std::move(reason)};
}

} // namespace

/// What reading one file after the other uses again.
struct WeaponCatalogue::Reading {
    std::string content;
    TagTree tree;
};

void WeaponCatalogue::load(std::string_view programFolder, std::string_view modFolder) {
    folders_.clear();
    entries_.clear();
    problems_.clear();
    if (!modFolder.empty()) {
        folders_.push_back(categoryFolder(modFolder, Category::Weapons));
    }
    folders_.push_back(categoryFolder(programFolder, Category::Weapons));
    Reading reading;
    for (const std::string& folder : folders_) {
        addFolder(folder, reading);
    }
    dropShadowed();
    sortEntries();
}

/// A file without a weapon is of no account where another of its name has one, or none either.
void WeaponCatalogue::dropShadowed() {
    const auto holdsNone = [](const CatalogueEntry& entry) { return !entry.holdsWeapon; };
    if (std::none_of(entries_.begin(), entries_.end(), holdsNone)) {
        return;
    }
    std::unordered_set<std::string> present;
    for (const CatalogueEntry& entry : entries_) {
        if (entry.holdsWeapon) {
            present.insert(loweredText(entry.weapon.fileName));
        }
    }
    std::erase_if(entries_, [&](const CatalogueEntry& entry) {
        return holdsNone(entry) && !present.insert(loweredText(entry.weapon.fileName)).second;
    });
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

/// Appends the files of a folder, but for those whose names have a weapon already.
void WeaponCatalogue::addFolder(const std::string& folder, Reading& reading) {
    std::vector<std::string> diskNames;
    if (!listFiles(folder, DataFileEnding, diskNames)) {
        std::string reason = systemFiles().lastError();
        // Only the last folder, the program's, must be there.
        if (&folder == &folders_.back() || isFolder(folder)) {
            problems_.push_back(cannotRead(folder, std::move(reason)));
        }
        return;
    }
    std::sort(diskNames.begin(), diskNames.end());
    std::unordered_set<std::string> present;
    for (const CatalogueEntry& entry : entries_) {
        if (entry.holdsWeapon) {
            present.insert(loweredText(entry.weapon.fileName));
        }
    }
    entries_.reserve(entries_.size() + diskNames.size());
    for (const std::string& diskName : diskNames) {
        std::string key = loweredText(withoutEnding(diskName));
        if (present.contains(key)) {
            continue;
        }
        addFile(folder, diskName, reading);
        if (entries_.back().holdsWeapon) {
            present.insert(std::move(key));
        }
    }
}

/// Appends the entry of one file.
void WeaponCatalogue::addFile(const std::string& folder, std::string_view diskName, Reading& reading) {
    CatalogueEntry entry{.path = folder + std::string(diskName)};
    const std::string_view fileName = withoutEnding(diskName);
    if (readWholeFile(entry.path, reading.content)) {
        Diagnostics diagnostics;
        entry.weapon = readWeapon(reading.tree, reading.content, fileName, diagnostics);
        for (Finding& finding : diagnostics) {
            finding.file = entry.path;
            problems_.push_back(std::move(finding));
        }
        entry.holdsWeapon = !isUntouched(entry.weapon);
        if (!entry.holdsWeapon) {
            problems_.push_back({.key = finding_key::NoWeapon,
                                 .severity = Severity::Error,
                                 .file = entry.path,
                                 .message = "holds no weapon"});
        }
    } else {
        problems_.push_back(cannotRead(entry.path, systemFiles().lastError()));
        entry.holdsWeapon = false;
        entry.weapon.fileName = fileName;
    }
    entries_.push_back(std::move(entry));
}

void WeaponCatalogue::refresh(std::string_view fileName) {
    std::erase_if(entries_, [fileName](const CatalogueEntry& entry) {
        return equalsIgnoringCase(entry.weapon.fileName, fileName);
    });
    std::erase_if(problems_, [fileName](const Finding& problem) {
        return isFileNamed(nameInFolder(problem.file), fileName);
    });
    std::vector<std::string> diskNames;
    Reading reading;
    bool isFound = false;
    for (const std::string& folder : folders_) {
        listFiles(folder, DataFileEnding, diskNames);
        const auto found =
            std::find_if(diskNames.begin(), diskNames.end(),
                         [fileName](const std::string& diskName) { return isFileNamed(diskName, fileName); });
        if (found != diskNames.end() && !isFound) {
            addFile(folder, *found, reading);
            isFound = entries_.back().holdsWeapon;
        }
    }
    dropShadowed();
    sortEntries();
}

std::vector<const WeaponRecord*> WeaponCatalogue::select(const WeaponFilter& filter) const {
    const std::string_view nation = nationOf(filter.nationality);
    std::vector<const WeaponRecord*> found;
    for (const CatalogueEntry& entry : entries_) {
        const WeaponRecord& weapon = entry.weapon;
        const bool isWanted = entry.holdsWeapon &&
                              (filter.types.empty() || std::find(filter.types.begin(), filter.types.end(),
                                                                 weapon.type) != filter.types.end()) &&
                              (nation.empty() || lists(weapon.countries, nation, nationOf)) &&
                              (filter.period.empty() || lists(weapon.period, filter.period, itself));
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
