#pragma once
// A sheet back into the files: what its changed cells change, row by row, and all of it written, or nothing.

#include "data/category.h"
#include "data/finding.h"
#include "data/game_files.h"
#include "tools/asset_files.h"
#include "tools/file_replacement.h"
#include "tools/job.h"
#include "tools/sheets/sheet_table.h"
#include "weapons/weapon_catalogue.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace varrocade {

/// A value that a sheet changes.
struct SheetChange {
    std::size_t line = 0;  ///< of the sheet
    std::string unit = {}; ///< the name of its file
    std::string heading = {};
    std::string before = {};
    std::string after = {};
};

/// Reads a sheet beside the files that it is about, a row a step. It sets values of what is there; it adds
/// and removes neither units nor weapons or men of them.
class SheetImport : public Job {
public:
    /// `sheet` is the file's content, `name` what findings call it. The files are those of the mod where one
    /// is in use, otherwise those of the game.
    SheetImport(std::string_view sheet, std::string name, GameFolders folders);

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override { return failures_; }

    [[nodiscard]] const std::vector<SheetChange>& changes() const { return changes_; }
    /// Errors are refusals, for which nothing is written; the others tell what else comes of writing.
    [[nodiscard]] const std::vector<Finding>& findings() const { return findings_; }
    [[nodiscard]] bool isRefused() const;
    /// What the sheet is of, where it tells.
    [[nodiscard]] std::optional<Category> category() const { return category_; }
    /// The files that it changes, all of them below the base folder.
    [[nodiscard]] const std::vector<FileReplacement>& files() const { return changedFiles_; }
    [[nodiscard]] const std::string& base() const {
        return folders_.mod.empty() ? folders_.program : folders_.mod;
    }

    /// Where a write keeps what the files held.
    [[nodiscard]] std::string backupFolder() const;
    /// What was written, as a sentence: "3 values of 2 files were changed."
    [[nodiscard]] std::string writtenText() const;

    /// Writes the changed files, with what they held kept among the backups. After a failure all are as they
    /// were. Refused where a file has changed since it was read.
    std::optional<FileFailure> write(FileOperations& files, BackupKeeper& backups) const;

private:
    /// What the row at hand is about.
    struct Row {
        const TableRow* row;
        const GameFile* file;
        std::vector<bool> isRead;                                 ///< by column
        std::vector<std::pair<std::string, std::string>> changed; ///< path and new text of each changed value
    };

    void begin();
    void readRow(const TableRow& row);
    const GameFile* fileOf(const TableRow& row);
    template <typename Record>
    void compare(Row& row, const Record& record, const std::string& content);
    template <typename Record>
    bool applyCells(Row& row, Record& record);
    template <typename Record>
    void keepChanges(Row& row, const Record& before, const Record& after, const std::string& content);
    void noteUnread(const Row& row);
    void noteMissing(const Row& row, std::string_view path, std::string_view what);
    void tell(Severity severity, std::size_t line, std::string message, std::string_view field = {},
              std::string_view value = {});

    std::string name_;
    GameFolders folders_;
    Spreadsheet table_;
    AssetFiles assets_;
    std::optional<Category> category_;
    std::size_t nameColumn_ = 0;
    std::map<std::string, std::size_t, std::less<>> columns_;       ///< by heading
    std::map<std::string, std::vector<GameFile>::size_type> files_; ///< by name in small letters
    std::vector<GameFile> listed_;
    std::set<std::size_t> seenFiles_;
    std::set<std::size_t> unknownColumns_;
    std::optional<WeaponCatalogue> catalogue_; ///< loaded for the first weapon that is changed
    std::size_t nextRow_ = 0;
    std::vector<SheetChange> changes_;
    std::vector<Finding> findings_;
    std::vector<FileFailure> failures_;
    std::vector<FileReplacement> changedFiles_;
};

} // namespace varrocade
