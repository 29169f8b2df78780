#pragma once
// Which file of a game and its mod answers a name, as the game's system finds it: the mod's before the
// game's, letter case aside.

#include "data/format/caseless.h"
#include "data/game_files.h"
#include "tools/references.h"

#include <atomic>
#include <list>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// A file of the game or the mod, below one of its folders.
struct AssetFile {
    std::string_view base;   ///< the folder of the game or the mod
    std::string_view folder; ///< below the base, such as "Images\Uniforms\"
    std::string name;        ///< with its ending, in the letter case that it has on the disk
    bool isOfMod = false;
    [[nodiscard]] std::string below() const { return std::string(folder) + name; }
    [[nodiscard]] std::string path() const { return std::string(base) + below(); }
    /// The name without its ending.
    [[nodiscard]] std::string_view stem() const { return std::string_view(name).substr(0, name.rfind('.')); }
};

/// The files below the bases. A folder is listed once, when it is asked for first; pointers to files stay
/// good as long as the object lives, and what they name of it. What is constant may be called from several
/// threads at once.
class AssetFiles {
public:
    /// Without bases there are no files.
    AssetFiles() = default;
    explicit AssetFiles(GameFolders folders) : bases_(std::move(folders)) {}
    AssetFiles(const AssetFiles&) = delete;
    AssetFiles& operator=(const AssetFiles&) = delete;
    ~AssetFiles() = default;

    /// The files of a folder whose names end in `ending`: those that count first, sorted by name, then the
    /// game's that the mod hides.
    [[nodiscard]] const std::vector<AssetFile>& list(std::string_view folder, std::string_view ending) const;

    /// The names of those that count, without their endings, sorted.
    [[nodiscard]] std::vector<std::string_view> stems(std::string_view folder, std::string_view ending) const;

    /// Whether the game or the mod has the folder.
    [[nodiscard]] bool hasFolder(std::string_view folder, std::string_view ending) const;

    /// The file of that name, or null; `name` is without its ending, with folders below `folder` where it
    /// names some.
    [[nodiscard]] const AssetFile* find(std::string_view folder, std::string_view name,
                                        std::string_view ending) const;

    /// The file that answers a reference, or null where nothing does. A weapon is known by the name of its
    /// file, then by the one that it has in it.
    [[nodiscard]] const AssetFile* find(const Reference& reference) const;

    /// Tells the name that a weapon's file has in it. The first file of a name counts.
    void nameWeapon(std::string_view name, std::string_view fileName);

    [[nodiscard]] const GameFolders& bases() const { return bases_; }
    /// Forgets all files, and is about other folders.
    void setBases(GameFolders folders);

private:
    struct Listing {
        std::string folder;
        std::string ending;
        std::vector<AssetFile> files;
        std::size_t counting = 0; ///< how many of the files count
        std::unordered_map<std::string_view, std::size_t, CaselessHash, CaselessEqual> places; ///< by stem
        bool isThere = false; ///< the folder, in one of the bases
        const Listing* older = nullptr;
    };

    [[nodiscard]] const Listing* known(std::string_view folder, std::string_view ending) const;
    [[nodiscard]] const Listing& listing(std::string_view folder, std::string_view ending) const;
    void fill(Listing& listing) const;

    GameFolders bases_;
    /// There are a few dozen folders. Threads ask for them at every name, so nobody waits for one that is
    /// listed: a listing does not change any more once it is the newest.
    mutable std::atomic<const Listing*> newest_ = nullptr;
    mutable std::mutex guard_; ///< of what follows
    mutable std::list<Listing> listings_;
    /// By the names in the files.
    std::unordered_map<std::string, std::string, CaselessHash, CaselessEqual> weaponFiles_;
};

/// The data files of all categories that count, and the folders that could not be listed.
std::vector<GameFile> listAllFiles(const GameFolders& folders, std::vector<FileFailure>& failures);

/// Those among them that belong to the mod where one is in use: what reports are about.
std::vector<GameFile> listOwnFiles(const GameFolders& folders, std::vector<FileFailure>& failures);

} // namespace varrocade
