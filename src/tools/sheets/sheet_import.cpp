#include "tools/sheets/sheet_import.h"

#include "data/finding_text.h"
#include "data/losses/loss_list.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "data/unit/unit_consistency.h"
#include "tools/sheets/cell_input.h"
#include "tools/sheets/sheet_checks.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

#include <utility>

namespace varrocade {

namespace {

/// What is inconsistent in a record after a change and was not before.
std::vector<Finding> newFindings(const SquadRecord& before, const SquadRecord& after) {
    std::vector<Finding> findings;
    if (before.vehicle && after.vehicle) {
        const std::vector<Finding> former = vehicleFindings(*before.vehicle);
        for (Finding& finding : vehicleFindings(*after.vehicle)) {
            if (std::none_of(former.begin(), former.end(), [&](const Finding& old) {
                    return old.key == finding.key && old.field == finding.field;
                })) {
                findings.push_back(std::move(finding));
            }
        }
    }
    return findings;
}

std::vector<Finding> newFindings(const WeaponRecord&, const WeaponRecord&) {
    return {};
}

std::vector<Finding> lossesOf(Category category, const std::string& content) {
    return category == Category::Weapons ? weaponSaveLosses(content)
                                         : unitSaveLosses(category, content).value_or(std::vector<Finding>());
}

/// A discharger with a direction has one of its own.
void settleFlags(SquadRecord& unit) {
    if (unit.vehicle) {
        for (ComponentRecord& component : unit.vehicle->components) {
            for (SmokeDischargerRecord& discharger : component.smokeDischargers) {
                discharger.directional =
                    discharger.directional || discharger.angleGiven || discharger.elevationGiven;
            }
        }
    }
}

void settleFlags(WeaponRecord&) {}

} // namespace

SheetImport::SheetImport(std::string_view sheet, std::string name, GameFolders folders)
    : name_(std::move(name)), folders_(std::move(folders)), table_(readTable(sheet)), assets_(folders_) {
    begin();
}

void SheetImport::tell(Severity severity, std::size_t line, std::string message, std::string_view field,
                       std::string_view value) {
    Finding finding{.key = finding_key::BadInput, .severity = severity, .file = name_, .line = line};
    finding.message = std::move(message);
    finding.field = field;
    finding.value = value;
    findings_.push_back(std::move(finding));
}

/// Finds out what the sheet is of, and lists the files that it may be about.
void SheetImport::begin() {
    for (std::size_t column = 0; column < table_.headings.size(); ++column) {
        const std::string_view heading = table_.headings[column];
        if (!heading.empty() && !columns_.try_emplace(std::string(heading), column).second) {
            table_.problem = "two columns are called \"" + std::string(heading) + "\"";
        }
        for (const Category category : AllCategories) {
            if (heading == categoryName(category) && !category_) {
                category_ = category;
                nameColumn_ = column;
            }
        }
    }
    if (table_.problem.empty() && !category_) {
        table_.problem = "no column has the names of the files: it is called \"Vehicles\", \"AT Guns\", "
                         "\"Infantry\", \"Aircraft\" or \"Weapons\"";
    }
    if (!table_.problem.empty()) {
        tell(Severity::Error, 0, table_.problem);
        table_.rows.clear();
        return;
    }
    GameFileList list = listGameFiles(folders_, *category_);
    failures_ = std::move(list.failures);
    for (GameFile& file : list.files) {
        if (file.isOfMod != folders_.mod.empty()) {
            files_.emplace(loweredText(file.name), listed_.size());
            listed_.push_back(std::move(file));
        }
    }
}

bool SheetImport::step() {
    if (nextRow_ < table_.rows.size()) {
        readRow(table_.rows[nextRow_++]);
    }
    return nextRow_ < table_.rows.size();
}

JobProgress SheetImport::progress() const {
    JobProgress progress{.done = nextRow_, .total = table_.rows.size()};
    if (nextRow_ < table_.rows.size() && nameColumn_ < table_.rows[nextRow_].cells.size()) {
        progress.name = table_.rows[nextRow_].cells[nameColumn_];
    }
    return progress;
}

bool SheetImport::isRefused() const {
    return !failures_.empty() || std::any_of(findings_.begin(), findings_.end(), [](const Finding& finding) {
        return finding.severity == Severity::Error;
    });
}

/// The file that a row is about, or null after telling why there is none.
const GameFile* SheetImport::fileOf(const TableRow& row) {
    const std::string_view raw =
        nameColumn_ < row.cells.size() ? std::string_view(row.cells[nameColumn_]) : std::string_view();
    const std::string name = textOf({raw, table_.isUtf8}).value_or(std::string(raw));
    auto known = files_.find(loweredText(name));
    if (known == files_.end()) {
        known = files_.find(loweredText(raw));
    }
    if (known == files_.end()) {
        tell(Severity::Error, row.line,
             name.empty() ? "the row names no file" : "there is no file " + quoted(name));
        return nullptr;
    }
    if (!seenFiles_.insert(known->second).second) {
        tell(Severity::Error, row.line, quoted(name) + " has a row already");
        return nullptr;
    }
    return &listed_[known->second];
}

void SheetImport::readRow(const TableRow& tableRow) {
    const GameFile* file = fileOf(tableRow);
    if (file == nullptr) {
        return;
    }
    std::string content;
    if (!systemFiles().read(file->path, content)) {
        failures_.push_back({file->path, systemFiles().lastError()});
        return;
    }
    Row row{.row = &tableRow,
            .file = file,
            .isRead = std::vector<bool>(std::max(table_.headings.size(), tableRow.cells.size())),
            .changed = {}};
    row.isRead[nameColumn_] = true;
    Diagnostics diagnostics;
    if (*category_ == Category::Weapons) {
        compare(row, readWeapon(content, file->name, diagnostics), content);
    } else {
        compare(row, readUnit(content, file->name, diagnostics), content);
    }
    noteUnread(row);
}

template <typename Record>
void SheetImport::compare(Row& row, const Record& record, const std::string& content) {
    Record changed = record;
    if (applyCells(row, changed) && !row.changed.empty()) {
        settleFlags(changed);
        keepChanges(row, record, changed, content);
    }
}

/// Sets what the row's cells change; false where one of them is refused.
template <typename Record>
bool SheetImport::applyCells(Row& row, Record& record) {
    bool isTaken = true;
    const auto given = givenValues(record);
    forEachCell(record, [&](const CellPlace& cell, auto& value) {
        const std::string heading = headingOf(cell);
        const auto column = columns_.find(heading);
        if (column == columns_.end()) {
            return;
        }
        row.isRead[column->second] = true;
        const bool isThere = column->second < row.row->cells.size();
        const CellText text{isThere ? std::string_view(row.row->cells[column->second]) : std::string_view(),
                            table_.isUtf8};
        if (saysTheSame(cell, value, text)) {
            return;
        }
        const std::string before = plainText(cell, value);
        Refusal refusal = isThere ? takeCell(cell, value, text, heading)
                                  : Refusal("the row ends before the column \"" + heading + "\"");
        if (refusal) {
            tell(Severity::Error, row.row->line, row.file->name + ": " + *refusal, cell.place.path.text(),
                 text.raw);
            isTaken = false;
            return;
        }
        for (const auto& flag : given) {
            if (flag.value == &value) {
                *flag.isGiven = true;
            }
        }
        const std::string after = plainText({cell.place, cell.field, false}, value);
        row.changed.emplace_back(cell.place.path.text(), after);
        changes_.push_back({row.row->line, row.file->name, heading, before, after});
    });
    return isTaken;
}

/// Keeps the file's new text, unless the values do not fit each other or the file.
template <typename Record>
void SheetImport::keepChanges(Row& row, const Record& before, const Record& after,
                              const std::string& content) {
    const std::size_t line = row.row->line;
    const std::string& name = row.file->name;
    std::optional<std::string> text = fileTextOf(*category_, after);
    if (!text) {
        tell(Severity::Error, line, name + ": the file holds nothing of its category");
        return;
    }
    if (const CellValue* lost = lostValue(*category_, before, after, row.changed)) {
        // The changes of this row are the last ones.
        const auto place = static_cast<std::size_t>(lost - row.changed.data());
        const std::string& heading = changes_[changes_.size() - row.changed.size() + place].heading;
        const bool hasLines = lost->second.find_first_of("\r\n") != std::string::npos;
        tell(Severity::Error, line,
             name + ": \"" + heading + "\": the file would not keep " +
                 (hasLines ? "the line ends in " : "") + quoted(lost->second),
             lost->first, lost->second);
    }
    for (const Finding& finding : newFindings(before, after)) {
        tell(Severity::Error, line, name + ": " + finding.message, finding.field, finding.value);
    }
    const auto isChanged = [&](const FieldPath& path) {
        return std::any_of(row.changed.begin(), row.changed.end(),
                           [&](const CellValue& value) { return path == value.first; });
    };
    forEachReference(after, [&](const Reference& reference) {
        if (reference.kind == ReferenceKind::Nationality || reference.kind == ReferenceKind::Flag ||
            !isChanged(reference.path) || assets_.find(reference) != nullptr) {
            return;
        }
        if (reference.kind == ReferenceKind::Weapon) {
            if (!catalogue_) {
                catalogue_.emplace().load(folders_.program, folders_.mod);
            }
            if (catalogue_->find(reference.name) != nullptr) {
                return;
            }
        }
        noteMissing(row, reference.path.text(), reference.name);
    });
    for (const Finding& loss : lossesOf(*category_, content)) {
        tell(Severity::Warning, line, name + ": line " + lossText(loss), loss.field, loss.value);
    }
    changedFiles_.push_back({row.file->path, content, std::move(*text)});
}

void SheetImport::noteMissing(const Row& row, std::string_view path, std::string_view what) {
    tell(Severity::Warning, row.row->line,
         row.file->name + ": neither the game nor the mod has " + quoted(what), path, what);
}

/// Cells that no value of the record belongs to: of a turret that it does not have, or a user's own column.
void SheetImport::noteUnread(const Row& row) {
    for (std::size_t column = 0; column < row.row->cells.size(); ++column) {
        const std::string& cell = row.row->cells[column];
        if (row.isRead[column] || cell.empty()) {
            continue;
        }
        const bool hasHeading = column < table_.headings.size() && !table_.headings[column].empty();
        const std::string heading = hasHeading ? table_.headings[column] : std::string();
        if (hasHeading && isFieldHeading(heading)) {
            tell(Severity::Error, row.row->line, row.file->name + " has no \"" + heading + "\" to set",
                 heading, cell);
        } else if (unknownColumns_.insert(column).second) {
            tell(Severity::Note, row.row->line,
                 hasHeading ? "the column " + quoted(heading) + " is none of the fields and not read"
                            : "a cell without a heading is not read",
                 heading, cell);
        }
    }
}

std::string SheetImport::backupFolder() const {
    return base() + std::string(BackupFolder) + categoryFolder({}, category_.value_or(Category::Vehicles));
}

std::string SheetImport::writtenText() const {
    const auto counted = [](std::size_t count, std::string_view word) {
        return std::to_string(count) + " " + std::string(word) + (count == 1 ? "" : "s");
    };
    return counted(changes_.size(), "value") + " of " + counted(changedFiles_.size(), "file") +
           (changes_.size() == 1 ? " was changed." : " were changed.");
}

std::optional<FileFailure> SheetImport::write(FileOperations& files, BackupKeeper& backups) const {
    return replaceTogether(files, backups, base(), changedFiles_);
}

} // namespace varrocade
