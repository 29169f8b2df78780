#include "tools/asset_files.h"

#include "data/format/texts.h"

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

void addFiles(std::vector<KeyedFile>& files, const std::string& base, bool isOfMod, std::string_view folder,
              std::string_view ending) {
    std::vector<std::string> names;
    // A folder that is not there holds nothing: few mods have them all.
    listFiles(base + std::string(folder), ending, names);
    files.reserve(files.size() + names.size());
    for (std::string& name : names) {
        std::string key = loweredText(name);
        files.push_back({std::move(key), std::move(name), isOfMod});
    }
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

const AssetFiles::Listing& AssetFiles::listing(std::string_view folder, std::string_view ending) {
    std::string key = loweredText(folder);
    key += loweredText(ending);
    const auto [place, isNew] = listings_.try_emplace(std::move(key));
    Listing& result = place->second;
    if (isNew) {
        result.folder = folder;
        std::vector<KeyedFile> files;
        if (!bases_.mod.empty()) {
            addFiles(files, bases_.mod, true, folder, ending);
        }
        addFiles(files, bases_.program, false, folder, ending);
        std::sort(files.begin(), files.end(), countsBefore);
        std::vector<AssetFile> hidden;
        result.files.reserve(files.size());
        result.keys.reserve(files.size());
        for (KeyedFile& file : files) {
            const bool counts = result.keys.empty() || result.keys.back() != file.key;
            const std::string& base = file.isOfMod ? bases_.mod : bases_.program;
            (counts ? result.files : hidden)
                .push_back({base, result.folder, std::move(file.name), file.isOfMod});
            if (counts) {
                result.keys.push_back(std::move(file.key));
            }
        }
        result.files.insert(result.files.end(), std::move_iterator(hidden.begin()),
                            std::move_iterator(hidden.end()));
    }
    return result;
}

const std::vector<AssetFile>& AssetFiles::list(std::string_view folder, std::string_view ending) {
    return listing(folder, ending).files;
}

const AssetFile* AssetFiles::find(std::string_view folder, std::string_view name, std::string_view ending) {
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
    std::string key = loweredText(name);
    key += ending;
    const auto place = std::lower_bound(candidates.keys.begin(), candidates.keys.end(), key);
    return place == candidates.keys.end() || *place != key
               ? nullptr
               : &candidates.files[static_cast<std::size_t>(place - candidates.keys.begin())];
}

const AssetFile* AssetFiles::find(const Reference& reference) {
    for (const ImageSource& source : reference.folders) {
        if (const AssetFile* file = find(source.folder, reference.name, reference.ending)) {
            return file;
        }
    }
    if (reference.kind == ReferenceKind::Weapon) {
        const auto file = weaponFiles_.find(loweredText(reference.name));
        if (file != weaponFiles_.end()) {
            return find(reference.folders.front().folder, file->second, reference.ending);
        }
    }
    return nullptr;
}

void AssetFiles::nameWeapon(std::string_view name, std::string_view fileName) {
    weaponFiles_.try_emplace(loweredText(name), fileName);
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
