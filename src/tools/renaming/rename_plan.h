#pragma once
// What another name for a weapon, a picture, a sound or a unit changes: its file, and all files that name it.

#include "tools/job.h"
#include "tools/references.h"
#include "tools/renaming/name_edit.h"
#include "tools/renaming/rename_apply.h"
#include "tools/renaming/rename_target.h"

#include <string>
#include <vector>

namespace varrocade {

/// One place that names it, or its file itself.
struct NameChange {
    std::string file;      ///< below the base folder, with backslashes
    std::size_t line = 0;  ///< from 1; 0 where it stands in no line
    std::string path = {}; ///< of the value; empty of the file's own name
    std::string from;
    std::string to;
};

/// All of it, or the reasons against it.
struct RenamePlan {
    std::string base; ///< the folder that is worked on, the mod's where one is in use
    std::vector<NameChange> changes;
    std::vector<FileRewrite> rewrites;
    std::vector<std::string> refusals; ///< none: it can be done
    std::vector<std::string> remarks;  ///< what the user should know besides
    [[nodiscard]] bool isPossible() const { return refusals.empty() && !rewrites.empty(); }
};

/// Goes through all files; writes nothing.
class RenamePlanner : public Job {
public:
    explicit RenamePlanner(RenameRequest request);

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override { return {}; }

    /// Once `step` has returned false.
    [[nodiscard]] RenamePlan take();

private:
    using Edits = std::vector<NameEdit>;

    void begin();
    void readSettings();
    void readSuppressions();
    void read(const GameFile& file, std::string_view content);
    void finish();
    [[nodiscard]] bool isNamed(const Reference& reference);
    void checkWeapon(const WeaponRecord& weapon, const GameFile& file, Edits& edits);
    void checkUnit(const SquadRecord& unit, const GameFile& file);
    /// Notes an edit; a text that grows too long is refused.
    void addEdit(Edits& edits, const std::string& file, std::string path, std::string_view written);
    void noteChanges(const std::string& file, const Edits& edits, const EditedText* text);
    [[nodiscard]] const RenameTarget* targetOf(std::string_view path) const;
    [[nodiscard]] std::string below(const std::string& path) const { return path.substr(plan_.base.size()); }

    RenameRequest request_;
    AssetFiles assets_;
    RenameTargets targets_;
    RenamePlan plan_;
    GameFileWalk walk_;
    bool isBegun_ = false;
    bool isOver_ = false;
    std::vector<std::string> gameUsers_; ///< files of the game that a mod leaves as they are
};

/// Makes the plan at once.
RenamePlan planRenaming(RenameRequest request);

} // namespace varrocade
