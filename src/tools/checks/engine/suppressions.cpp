#include "tools/checks/engine/suppressions.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::string_view CommentSign = "//";
constexpr std::string_view Mark = "ok:";

struct Suppression {
    std::size_t line = 0; ///< of the comment
    std::size_t from = 0; ///< the lines that it is about; 0: all
    std::string key;
    bool isUsed = false;
};

Finding badSuppression(const std::string& file, std::size_t line, std::string message,
                       std::string hint = {}) {
    return {.key = check_key::BadSuppression,
            .severity = findCheckRule(check_key::BadSuppression)->severity,
            .file = file,
            .line = line,
            .column = 1,
            .message = std::move(message),
            .hint = std::move(hint)};
}

std::string_view takeWord(std::string_view& text) {
    text = trimmed(text);
    const std::size_t end = std::min(text.find_first_of(Blanks), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(end);
    text = trimmed(text);
    return word;
}

/// Calls `visit(line, number)` with each line.
template <typename Visit>
void forEachNumberedLine(std::string_view content, Visit visit) {
    std::size_t number = 1;
    for (std::size_t begin = 0; begin < content.size(); ++number) {
        const std::size_t end = std::min(content.find_first_of("\r\n", begin), content.size());
        visit(content.substr(begin, end - begin), number);
        begin = end + (content.substr(end).starts_with("\r\n") ? 2 : 1);
    }
}

std::string nearestKey(std::string_view key) {
    NearestName nearest(key);
    for (const CheckRule& rule : checkRules()) {
        nearest.offer(rule.key);
    }
    return nearest.hint();
}

class Comments {
public:
    Comments(const std::string& file, std::vector<Finding>& problems) : file_(file), problems_(problems) {}

    void read(std::string_view content) {
        bool isBehindElement = false;
        forEachNumberedLine(content, [&](std::string_view line, std::size_t number) {
            const std::size_t sign = line.find(CommentSign);
            const std::string_view code = trimmed(line.substr(0, sign));
            if (sign != std::string_view::npos) {
                const std::string_view comment = trimmed(line.substr(sign + CommentSign.size()));
                if (comment.starts_with(Mark)) {
                    const std::size_t about = !code.empty() ? number : isBehindElement ? number + 1 : 0;
                    add(comment.substr(Mark.size()), number, about);
                }
            }
            isBehindElement = isBehindElement || !code.empty();
        });
    }

    [[nodiscard]] bool covers(const Finding& finding) {
        bool isCovered = false;
        for (Suppression& one : found_) {
            if (one.key == finding.key && (one.from == 0 || one.from == finding.line)) {
                one.isUsed = true;
                isCovered = true;
            }
        }
        return isCovered;
    }

    void tellUnused() {
        for (const Suppression& one : found_) {
            if (!one.isUsed) {
                problems_.push_back(
                    badSuppression(file_, one.line, "there is no " + one.key + " to suppress"));
            }
        }
    }

private:
    void add(std::string_view text, std::size_t line, std::size_t about) {
        std::string_view keys = takeWord(text);
        while (keys.ends_with(',')) {
            // "// ok: a, b reason"
            const std::string_view next = takeWord(text);
            if (next.empty()) {
                break;
            }
            keys = std::string_view(keys.data(),
                                    static_cast<std::size_t>(next.data() + next.size() - keys.data()));
        }
        if (text.empty()) {
            problems_.push_back(badSuppression(file_, line, "a suppression without a reason"));
        }
        while (!keys.empty()) {
            const std::size_t comma = std::min(keys.find(','), keys.size());
            const std::string_view key = trimmed(keys.substr(0, comma));
            keys.remove_prefix(std::min(comma + 1, keys.size()));
            if (findCheckRule(key) != nullptr) {
                found_.push_back({line, about, std::string(key)});
            } else {
                problems_.push_back(
                    badSuppression(file_, line, "there is no rule " + quoted(key), nearestKey(key)));
            }
        }
    }

    const std::string& file_;
    std::vector<Finding>& problems_;
    std::vector<Suppression> found_;
};

constexpr char Separator = '\t';

void appendPart(std::string& text, std::string_view part) {
    for (const char c : part) {
        text += c == Separator || c == '\r' || c == '\n' ? ' ' : c;
    }
}

std::string identityOf(const Finding& finding) {
    std::string text(finding.key);
    for (const std::string_view part :
         {std::string_view(finding.file), std::string_view(finding.field), std::string_view(finding.value)}) {
        text += Separator;
        appendPart(text, part);
    }
    return text;
}

/// Whether the mark stands anywhere. Of its letters the colon is rare in files.
bool holdsMark(std::string_view content) {
    for (std::size_t at = content.find(Mark.back()); at != std::string_view::npos;
         at = content.find(Mark.back(), at + 1)) {
        if (content.substr(0, at + 1).ends_with(Mark)) {
            return true;
        }
    }
    return false;
}

} // namespace

void applyComments(std::string_view content, const std::string& file, std::vector<Finding>& findings) {
    if (!holdsMark(content)) {
        return;
    }
    std::vector<Finding> problems;
    Comments comments(file, problems);
    comments.read(content);
    std::erase_if(findings, [&](const Finding& finding) { return comments.covers(finding); });
    comments.tellUnused();
    findings.insert(findings.end(), problems.begin(), problems.end());
}

namespace {

/// A line of a list, as parts of it. Without a colon all of it is the file.
struct ListLine {
    std::string_view key = {}; ///< empty on a line that says nothing
    std::string_view file = {};
    std::string_view reason = {};
};

ListLine listLine(std::string_view line) {
    line = trimmed(line.substr(0, line.starts_with(CommentSign) ? 0 : line.size()));
    if (line.empty()) {
        return {};
    }
    const std::string_view key = takeWord(line);
    const std::size_t colon = std::min(line.find(':'), line.size());
    return {key, trimmed(line.substr(0, colon)), trimmed(line.substr(std::min(colon + 1, line.size())))};
}

} // namespace

SuppressionList::SuppressionList(std::string_view content, std::vector<Finding>& problems) {
    const std::string file(SuppressionListName);
    forEachNumberedLine(content, [&](std::string_view text, std::size_t number) {
        const ListLine line = listLine(text);
        if (line.key.empty()) {
            return;
        }
        if (findCheckRule(line.key) == nullptr) {
            problems.push_back(
                badSuppression(file, number, "there is no rule " + quoted(line.key), nearestKey(line.key)));
        } else if (line.reason.empty()) {
            problems.push_back(
                badSuppression(file, number, "a suppression without a reason", "write KEY FILE: reason"));
        } else {
            rows_.push_back({std::string(line.key), std::string(line.file)});
        }
    });
}

RenamedInList renamedInList(std::string_view content, std::string_view from, std::string_view to) {
    RenamedInList renamed;
    const char* done = content.data();
    forEachNumberedLine(content, [&](std::string_view text, std::size_t number) {
        const ListLine line = listLine(text);
        if (equalsIgnoringCase(line.file, from)) {
            renamed.text.append(done, line.file.data()).append(to);
            done = line.file.data() + line.file.size();
            renamed.lines.push_back(number);
        }
    });
    renamed.text.append(done, content.data() + content.size());
    return renamed;
}

bool SuppressionList::covers(const Finding& finding) const {
    return std::any_of(rows_.begin(), rows_.end(), [&](const Row& row) {
        return row.key == finding.key && matchesPattern(finding.file, row.pattern);
    });
}

bool matchesPattern(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t retry = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            retry = n;
        } else if (p < pattern.size() && lowered(pattern[p]) == lowered(name[n])) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

Baseline::Baseline(std::string_view content) {
    forEachNumberedLine(content, [&](std::string_view line, std::size_t) {
        if (!line.empty()) {
            ++counts_[std::string(line)];
        }
    });
}

std::string Baseline::text(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        text += identityOf(finding) + "\n";
    }
    return text;
}

void Baseline::apply(std::vector<Finding>& findings) const {
    auto left = counts_;
    std::erase_if(findings, [&left](const Finding& finding) {
        const auto known = left.find(identityOf(finding));
        return known != left.end() && known->second > 0 && known->second-- > 0;
    });
}

} // namespace varrocade
