#pragma once
// Checking all files of a game or mod: weapons first, which units name, each file as soon as it is read, and
// those that stand out among all of them once more.

#include "data/finding.h"
#include "data/game_files.h"
#include "tools/checks/engine/check_file.h"
#include "tools/checks/engine/knowledge.h"
#include "tools/checks/engine/suppressions.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

/// What findings call a data file: "Data/Vehicles/Name.txt".
std::string shownPath(Category category, std::string_view name);

/// Checks a game, or a mod's files within their game, in steps between which a window can answer.
class FolderCheck {
public:
    /// Lists the files. With a mod, only its files are checked; the game's are what they name and are
    /// compared with. Pictures are taken apart only where that is asked for: it takes seconds for a hundred
    /// vehicles.
    explicit FolderCheck(const GameFolders& folders, bool looksIntoPictures = false);
    FolderCheck(const FolderCheck&) = delete;
    FolderCheck& operator=(const FolderCheck&) = delete;

    /// Looks at one file. False when there is nothing more to do.
    bool step();
    /// Does all that is left, in so many threads; 0: in as many as the machine has cores.
    void run(unsigned threads = 0);

    [[nodiscard]] WalkProgress progress() const;
    [[nodiscard]] bool isDone() const { return stage_ == Stage::Done; }

    /// What was found so far, in the order of the files and their lines.
    [[nodiscard]] std::vector<Finding> findings() const;
    /// Why the folders could not be listed; nothing where there are data files at all.
    [[nodiscard]] const std::optional<FileFailure>& failure() const { return failure_; }
    [[nodiscard]] const CheckKnowledge& knowledge() const { return knowledge_; }
    /// The bytes of a file by what findings call it, for excerpts; empty for others.
    [[nodiscard]] std::string_view contentOf(std::string_view shown) const;

    /// Calls `visit` with each file that was checked and what was found about it.
    template <typename Visit>
    void forEachFile(Visit visit) const {
        for (const CheckedFile& entry : files_) {
            if (entry.isChecked) {
                visit(entry.file, entry.found);
            }
        }
    }
    /// Findings of the list of suppressions and of the mod's settings, which belong to no data file.
    [[nodiscard]] const std::vector<Finding>& ofFolder() const { return ofFolder_; }
    /// What is found about a file that was changed since, or is changed in memory only.
    [[nodiscard]] std::vector<Finding> checkAgain(Category category, std::string_view name,
                                                  std::string_view content) const;

private:
    struct CheckedFile {
        GameFile file;
        std::string shown;
        std::string content = {}; ///< of a file with findings
        bool isChecked = true;    ///< otherwise it is only compared with
        std::vector<Finding> found = {};
    };
    /// What a thread uses again for one file after the other.
    struct Desk {
        std::string content;
        ReadUnitFile unit; ///< of a weapon's file, only the tree
    };
    enum class Stage : std::uint8_t { Weapons, Units, Outstanding, Done };

    void list(const GameFolders& folders);
    [[nodiscard]] std::size_t count() const; ///< of what the stage looks at
    [[nodiscard]] std::size_t placeOf(std::size_t i) const;
    void look(std::size_t i, Desk& desk, UnitSurvey& survey);
    void endStage();
    void finishWeapons();
    void finishUnits();

    bool read(CheckedFile& file, std::string& content) const;
    void lookAtWeapon(CheckedFile& file, Desk& desk, CatalogueReading& weapon) const;
    void lookAtUnit(CheckedFile& file, Desk& desk, std::uint32_t number, UnitSurvey& survey) const;
    void lookAgain(CheckedFile& file, Desk& desk) const;
    [[nodiscard]] FileToCheck toCheck(const CheckedFile& file, const Desk& desk) const;
    void checkUnit(CheckedFile& file, const Desk& desk) const;
    void checkWeapon(CheckedFile& file, const Desk& desk, const CatalogueReading& reading) const;
    void keep(CheckedFile& file, const Desk& desk, std::vector<Finding> found) const;

    bool looksIntoPictures_;
    CheckKnowledge knowledge_;
    SuppressionList suppressions_;
    std::vector<CheckedFile> files_; ///< units before weapons
    std::size_t firstWeapon_ = 0;
    std::vector<Finding> ofFolder_; ///< of the list of suppressions and of the mod's settings
    std::string modContent_;
    std::vector<CatalogueReading> weapons_; ///< until all are known
    std::vector<GameFile> hiddenWeapons_;
    UnitSurvey survey_{knowledge_};
    /// The files that may have more findings by what is usual among all of them.
    std::vector<std::uint32_t> outstanding_;
    Stage stage_ = Stage::Weapons;
    std::size_t at_ = 0;   ///< how far the stage has come
    std::size_t done_ = 0; ///< what the former ones looked at
    Desk desk_;
    std::optional<FileFailure> failure_;
};

} // namespace varrocade
