#pragma once
// What is known to be wrong with the files of the game or mod in use: from a check of the whole folder, kept
// up to date file by file while records are edited.

#include "app/workspace/workspace.h"
#include "tools/checks/engine/folder_check.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varrocade {

/// A file and the findings about it, by their places.
struct FileProblems {
    Category category = Category::Vehicles;
    std::string name; ///< without ".txt"; empty: of the folder itself, such as its list of suppressions
    std::vector<Finding> findings;
};

class ProblemBook {
public:
    /// Takes the findings of a check of all files in the place of all that was known.
    void take(std::unique_ptr<FolderCheck> check);
    /// Forgets everything: another folder is in use.
    void clear();
    /// The last check of all files, with what it knows of the game; null before there was one.
    [[nodiscard]] const FolderCheck* check() const { return check_.get(); }

    /// Takes what is known of one file; false where that was known.
    bool set(Category category, const std::string& name, std::vector<Finding> findings);
    /// What is known of a file, letter case of the name aside; null where nobody looked at it.
    [[nodiscard]] const FileProblems* of(Category category, std::string_view name) const;
    /// All files that were looked at, by category and name.
    [[nodiscard]] std::vector<const FileProblems*> files() const;

private:
    using Key = std::pair<Category, std::string>; ///< with the name in small letters

    std::unique_ptr<FolderCheck> check_;
    std::map<Key, FileProblems> files_;
};

/// How bad the worst is that is wrong with a file: an error or a warning; nothing else is marked.
std::optional<Severity> severityToMark(const ProblemBook& book, Category category, std::string_view name);
std::optional<Severity> severityToMark(const std::vector<Finding>& findings);

/// The text of a record: its file's while it is unchanged, otherwise what saving would write.
std::string textOf(const OpenRecord& record);

/// Checks a record in memory anew as it is now, with what the last check of all files knows; false where
/// there is no such check, the record is of another folder, or nothing came of it.
bool checkRecordAgain(ProblemBook& book, const Workspace& workspace, const OpenRecord& record);

/// The same with a file as it is on the disk.
bool checkFileAgain(ProblemBook& book, const Workspace& workspace, Category category,
                    const std::string& name);

} // namespace varrocade
