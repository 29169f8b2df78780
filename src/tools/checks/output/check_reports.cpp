#include "tools/checks/output/check_reports.h"

#include "data/finding_text.h"
#include "data/format/source_map.h"
#include "data/format/words.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/output/json_text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace varrocade {

namespace {

std::string countsText(const std::vector<Finding>& findings) {
    return severityCounts(findings, std::identity(), true);
}

/// `"name": value` with a comma before it where it is not the first.
class JsonObject {
public:
    explicit JsonObject(std::string& out) : out_(out) { out_ += '{'; }
    ~JsonObject() { out_ += '}'; }
    JsonObject(const JsonObject&) = delete;
    JsonObject& operator=(const JsonObject&) = delete;

    void text(std::string_view name, std::string_view value) {
        begin(name);
        out_ += jsonString(value);
    }
    void number(std::string_view name, std::size_t value) {
        begin(name);
        out_ += std::to_string(value);
    }
    /// Whose value the caller writes.
    void begin(std::string_view name) {
        out_ += isFirst_ ? "" : ", ";
        isFirst_ = false;
        out_ += jsonString(name) + ": ";
    }
    void message(std::string_view name, std::string_view value) {
        begin(name);
        JsonObject(out_).text("text", value);
    }

private:
    std::string& out_;
    bool isFirst_ = true;
};

std::string levelOf(Severity severity) {
    return std::string(severityWord(severity));
}

std::string withHint(const Finding& finding) {
    std::string text = finding.message;
    if (!finding.expected.empty()) {
        text += "; expected " + finding.expected;
    }
    if (!finding.hint.empty()) {
        text += "; " + finding.hint;
    }
    return text;
}

/// A relative URI: what may not stand in one as `%20`.
std::string uriOf(std::string_view path) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri;
    for (const char c : asUtf8(path)) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri += '%';
            uri += digits[byte >> 4U];
            uri += digits[byte & 0xFU];
        }
    }
    return uri;
}

void appendSarifRule(std::string& out, const CheckRule& rule) {
    JsonObject object(out);
    object.text("id", rule.key);
    object.message("shortDescription", rule.sentence);
    object.message("fullDescription", std::string(rule.sentence) + " " + std::string(rule.help));
    object.message("help", rule.help);
    object.begin("defaultConfiguration");
    JsonObject(out).text("level", levelOf(rule.severity));
}

void appendSarifResult(std::string& out, const Finding& finding) {
    JsonObject result(out);
    result.text("ruleId", finding.key);
    const CheckRule* rule = findCheckRule(finding.key);
    if (rule != nullptr) {
        result.number("ruleIndex", static_cast<std::size_t>(rule - checkRules().data()));
    }
    result.text("level", levelOf(finding.severity));
    result.message("message", withHint(finding));
    result.begin("locations");
    out += '[';
    {
        JsonObject location(out);
        location.begin("physicalLocation");
        JsonObject physical(out);
        physical.begin("artifactLocation");
        JsonObject(out).text("uri", uriOf(finding.file));
        physical.begin("region");
        JsonObject region(out);
        region.number("startLine", std::max<std::size_t>(1, finding.line));
        region.number("startColumn", std::max<std::size_t>(1, finding.column));
    }
    out += ']';
    if (!finding.field.empty()) {
        result.begin("properties");
        JsonObject(out).text("field", finding.field);
    }
}

/// What workflow commands need written otherwise.
std::string escapedForGitHub(std::string_view text, bool isProperty) {
    std::string result;
    for (const char c : asUtf8(text)) {
        if (c == '%') {
            result += "%25";
        } else if (c == '\r') {
            result += "%0D";
        } else if (c == '\n') {
            result += "%0A";
        } else if (isProperty && c == ':') {
            result += "%3A";
        } else if (isProperty && c == ',') {
            result += "%2C";
        } else {
            result += c;
        }
    }
    return result;
}

} // namespace

std::string checkReportText(const std::vector<Finding>& findings, const ContentOf& contentOf) {
    std::string text;
    std::string_view file;
    std::optional<LineIndex> lines;
    for (const Finding& finding : findings) {
        text += asUtf8(reportLine(finding)) + "\n";
        if (!lines || finding.file != file) {
            file = finding.file;
            lines.emplace(contentOf(file));
        }
        text += asUtf8(sourceExcerpt(finding, *lines));
        if (!finding.expected.empty()) {
            text += "    expected: " + asUtf8(finding.expected) + "\n";
        }
        const CheckRule* rule = findCheckRule(finding.key);
        if (!finding.hint.empty() || rule != nullptr) {
            text +=
                "    hint: " + (finding.hint.empty() ? std::string(rule->help) : asUtf8(finding.hint)) + "\n";
        }
    }
    return text + countsText(findings) + "\n";
}

std::string checkReportJson(const std::vector<Finding>& findings) {
    std::string out = "[";
    bool isFirst = true;
    for (const Finding& finding : findings) {
        out += isFirst ? "\n  " : ",\n  ";
        isFirst = false;
        JsonObject object(out);
        object.text("file", finding.file);
        object.number("line", finding.line);
        object.number("column", finding.column);
        object.text("severity", severityWord(finding.severity));
        object.text("key", finding.key);
        object.text("field", finding.field);
        object.text("message", finding.message);
        object.text("hint", finding.hint);
        object.text("value", finding.value);
        object.text("expected", finding.expected);
    }
    return out + (isFirst ? "]\n" : "\n]\n");
}

std::string checkReportSarif(const std::vector<Finding>& findings) {
    std::string out = "{\"$schema\": "
                      "\"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                      "sarif-schema-2.1.0.json\", \"version\": \"2.1.0\", \"runs\": [{\"tool\": {\"driver\": "
                      "{\"name\": \"varrocade-data check\", \"rules\": [";
    bool isFirst = true;
    for (const CheckRule& rule : checkRules()) {
        out += isFirst ? "\n" : ",\n";
        isFirst = false;
        appendSarifRule(out, rule);
    }
    out += "\n]}}, \"columnKind\": \"utf16CodeUnits\", \"results\": [";
    isFirst = true;
    for (const Finding& finding : findings) {
        out += isFirst ? "\n" : ",\n";
        isFirst = false;
        appendSarifResult(out, finding);
    }
    return out + "\n]}]}\n";
}

std::string checkReportGitHub(const std::vector<Finding>& findings) {
    constexpr std::array<std::string_view, 3> commands = {"notice", "warning", "error"};
    std::string out;
    for (const Finding& finding : findings) {
        out += "::" + std::string(commands[static_cast<std::size_t>(finding.severity)]);
        out += " file=" + escapedForGitHub(finding.file, true);
        out += ",line=" + std::to_string(std::max<std::size_t>(1, finding.line));
        out += ",col=" + std::to_string(std::max<std::size_t>(1, finding.column));
        out += ",title=" + escapedForGitHub(finding.key, true);
        out += "::" + escapedForGitHub(withHint(finding), false) + "\n";
    }
    return out;
}

} // namespace varrocade
