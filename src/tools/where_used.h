#pragma once
// Where a name stands in the files of a game: a weapon, a picture, a sound, a uniform, a nationality, a unit.

#include "data/game_files.h"
#include "tools/job.h"
#include "tools/references.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// One place that names something.
struct NameUse {
    ReferenceKind kind = ReferenceKind::Weapon;
    std::optional<GameFile> file = {}; ///< none for the settings of a mod
    std::string below = {};            ///< its path below the base folder
    std::size_t line = 0;              ///< from 1; 0 where the name follows from another value
    std::size_t column = 0;
    std::string path = {};    ///< of the value, as `Reference::path`
    std::string written = {}; ///< as the record has it
};

/// A name as records have it: without the ending of a data file, a picture or a sound.
std::string_view bareName(std::string_view name);

/// Looks for names, letter case aside, through the files that count and the settings of a mod.
class NameSearch : public Job {
public:
    /// Several names are those of one thing, as of a weapon that has another one in its file.
    NameSearch(GameFolders folders, std::vector<std::string> names);

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override;

    /// What has been found so far, in the order of the files.
    [[nodiscard]] const std::vector<NameUse>& uses() const { return uses_; }

private:
    void begin();
    void readSettings(const std::string& base);
    void read(const GameFile& file, std::string_view content);
    void note(const Reference& reference, NameUse use);
    [[nodiscard]] bool isWanted(std::string_view name) const;

    GameFolders folders_;
    std::vector<std::string> names_;
    bool isBegun_ = false;
    GameFileWalk walk_;
    std::vector<FileFailure> failures_;
    std::vector<NameUse> uses_;
};

/// What a kind is called in lists: "weapon", "picture".
std::string_view referenceWord(ReferenceKind kind);

} // namespace varrocade
