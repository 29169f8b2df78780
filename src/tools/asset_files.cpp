#include "tools/asset_files.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace varrocade {

namespace {

/// A file with the name that it is told apart by.
struct KeyedFile {
    std::string key;
    std::string name;
    bool isOfMod;
};

/// False where the folder is not there: few mods have them all.
bool addFiles(std::vector<KeyedFile>& files, const std::string& base, bool isOfMod, std::string_view folder,
              std::string_view ending) {
    std::vector<std::string> names;
    if (base.empty() || !listFiles(base + std::string(folder), ending, names)) {
        return false;
    }
    files.reserve(files.size() + names.size());
    for (std::string& name : names) {
        std::string key = loweredText(name);
        files.push_back({std::move(key), std::move(name), isOfMod});
    }
    return true;
}

/// Of a name the mod's file first. A folder of a system that minds letter case may hold two files of one
/// name.
bool countsBefore(const KeyedFile& a, const KeyedFile& b) {
    if (const int order = a.key.compare(b.key); order != 0) {
        return order < 0;
    }
    return a.isOfMod != b.isOfMod ? a.isOfMod : a.name < b.name;
}

} // namespace

void AssetFiles::setBases(GameFolders folders) {
    newest_ = nullptr;
    listings_.clear();
    weaponFiles_.clear();
    bases_ = std::move(folders);
}

void AssetFiles::fill(Listing& listing) const {
    std::vector<KeyedFile> files;
    const bool isInMod = addFiles(files, bases_.mod, true, listing.folder, listing.ending);
    const bool isInGame = addFiles(files, bases_.program, false, listing.folder, listing.ending);
    listing.isThere = isInMod || isInGame;
    std::sort(files.begin(), files.end(), countsBefore);
    std::vector<AssetFile> hidden;
    listing.files.reserve(files.size());
    const std::string* former = nullptr;
    for (KeyedFile& file : files) {
        const bool counts = former == nullptr || *former != file.key;
        const std::string& base = file.isOfMod ? bases_.mod : bases_.program;
        (counts ? listing.files : hidden)
            .push_back({base, listing.folder, std::move(file.name), file.isOfMod});
        former = &file.key;
    }
    listing.counting = listing.files.size();
    listing.files.insert(listing.files.end(), std::move_iterator(hidden.begin()),
                         std::move_iterator(hidden.end()));
    listing.places.reserve(listing.counting);
    for (std::size_t i = 0; i < listing.counting; ++i) {
        listing.places.emplace(listing.files[i].stem(), i);
    }
}

const AssetFiles::Listing* AssetFiles::known(std::string_view folder, std::string_view ending) const {
    constexpr CaselessEqual isSame;
    const Listing* one = newest_.load(std::memory_order_acquire);
    while (one != nullptr && !(isSame(one->folder, folder) && isSame(one->ending, ending))) {
        one = one->older;
    }
    return one;
}

const AssetFiles::Listing& AssetFiles::listing(std::string_view folder, std::string_view ending) const {
    if (const Listing* one = known(folder, ending)) {
        return *one;
    }
    const std::scoped_lock guard(guard_);
    // Another thread may have listed it while this one waited.
    if (const Listing* one = known(folder, ending)) {
        return *one;
    }
    Listing& made = listings_.emplace_back();
    made.folder = folder;
    made.ending = ending;
    made.older = newest_.load(std::memory_order_relaxed);
    fill(made);
    newest_.store(&made, std::memory_order_release);
    return made;
}

const std::vector<AssetFile>& AssetFiles::list(std::string_view folder, std::string_view ending) const {
    return listing(folder, ending).files;
}

std::vector<std::string_view> AssetFiles::stems(std::string_view folder, std::string_view ending) const {
    const Listing& all = listing(folder, ending);
    std::vector<std::string_view> names(all.counting);
    std::transform(all.files.begin(), all.files.begin() + static_cast<std::ptrdiff_t>(all.counting),
                   names.begin(), [](const AssetFile& file) { return file.stem(); });
    return names;
}

bool AssetFiles::hasFolder(std::string_view folder, std::string_view ending) const {
    return listing(folder, ending).isThere;
}

const AssetFile* AssetFiles::find(std::string_view folder, std::string_view name,
                                  std::string_view ending) const {
    const std::size_t separator = name.find_last_of("\\/");
    std::string deeper;
    if (separator != std::string_view::npos) {
        deeper = folder;
        deeper += name.substr(0, separator + 1);
        std::replace(deeper.begin(), deeper.end(), '/', '\\');
        folder = deeper;
        name.remove_prefix(separator + 1);
    }
    const Listing& candidates = listing(folder, ending);
    const auto place = candidates.places.find(name);
    return place == candidates.places.end() ? nullptr : &candidates.files[place->second];
}

const AssetFile* AssetFiles::find(const Reference& reference) const {
    for (const ImageSource& source : reference.folders) {
        if (const AssetFile* file = find(source.folder, reference.name, reference.ending)) {
            return file;
        }
    }
    if (reference.kind == ReferenceKind::Weapon) {
        const auto file = weaponFiles_.find(std::string_view(reference.name));
        if (file != weaponFiles_.end()) {
            return find(reference.folders.front().folder, file->second, reference.ending);
        }
    }
    return nullptr;
}

void AssetFiles::nameWeapon(std::string_view name, std::string_view fileName) {
    weaponFiles_.try_emplace(std::string(name), fileName);
}

std::vector<GameFile> listAllFiles(const GameFolders& folders, std::vector<FileFailure>& failures) {
    std::vector<GameFile> files;
    for (const Category category : AllCategories) {
        GameFileList list = listGameFiles(folders, category);
        files.insert(files.end(), std::move_iterator(list.files.begin()),
                     std::move_iterator(list.files.end()));
        failures.insert(failures.end(), list.failures.begin(), list.failures.end());
    }
    return files;
}

std::vector<GameFile> listOwnFiles(const GameFolders& folders, std::vector<FileFailure>& failures) {
    std::vector<GameFile> files = listAllFiles(folders, failures);
    std::erase_if(files, [&](const GameFile& file) { return file.isOfMod == folders.mod.empty(); });
    return files;
}

} // namespace varrocade
