#include "app/workspace/problems/problem_book.h"

#include "data/format/texts.h"

#include <algorithm>

namespace varrocade {

void ProblemBook::take(std::unique_ptr<FolderCheck> check) {
    files_.clear();
    check_ = std::move(check);
    check_->forEachFile([this](const GameFile& file, const std::vector<Finding>& findings) {
        set(file.category, file.name, findings);
    });
    if (!check_->ofFolder().empty()) {
        set(Category::Weapons, {}, check_->ofFolder());
    }
}

void ProblemBook::clear() {
    check_.reset();
    files_.clear();
}

bool ProblemBook::set(Category category, const std::string& name, std::vector<Finding> findings) {
    const auto [known, isNew] = files_.try_emplace({category, loweredText(name)});
    if (!isNew && known->second.findings == findings) {
        return false;
    }
    known->second = {category, name, std::move(findings)};
    return true;
}

const FileProblems* ProblemBook::of(Category category, std::string_view name) const {
    const auto found = files_.find({category, loweredText(name)});
    return found == files_.end() ? nullptr : &found->second;
}

std::vector<const FileProblems*> ProblemBook::files() const {
    std::vector<const FileProblems*> all;
    for (const auto& [key, file] : files_) {
        all.push_back(&file);
    }
    return all;
}

std::optional<Severity> severityToMark(const std::vector<Finding>& findings) {
    Severity worst = Severity::Note;
    for (const Finding& finding : findings) {
        worst = std::max(worst, finding.severity);
    }
    return worst == Severity::Note ? std::nullopt : std::optional(worst);
}

std::optional<Severity> severityToMark(const ProblemBook& book, Category category, std::string_view name) {
    const FileProblems* file = book.of(category, name);
    return file == nullptr ? std::nullopt : severityToMark(file->findings);
}

std::string textOf(const OpenRecord& record) {
    if (!record.isModified()) {
        return record.content;
    }
    return fileTextOf(record.category, record.present.record).value_or(record.content);
}

bool checkRecordAgain(ProblemBook& book, const Workspace& workspace, const OpenRecord& record) {
    if (book.check() == nullptr || !record.isOpen() || record.base != baseFolder(workspace)) {
        return false;
    }
    const std::string name = fileNameOf(record.present.record);
    return book.set(record.category, name, book.check()->checkAgain(record.category, name, textOf(record)));
}

bool checkFileAgain(ProblemBook& book, const Workspace& workspace, Category category,
                    const std::string& name) {
    std::string content;
    if (book.check() == nullptr ||
        !readWholeFile(dataFilePath(baseFolder(workspace), category, name), content)) {
        return false;
    }
    return book.set(category, name, book.check()->checkAgain(category, name, content));
}

} // namespace varrocade
