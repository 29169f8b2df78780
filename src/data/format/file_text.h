#pragma once
// The lines that the writers print: tabs for indentation, CR LF at the end, `<name>value</name>`.

#include "data/format/numbers.h"
#include "data/unit/image_names.h"

#include <string>
#include <string_view>

namespace varrocade {

/// Builds a data file in memory. Values are as long as they are: nothing is cut.
class FileText {
public:
    /// A line of its own that opens or closes an element.
    FileText& open(int tabs, std::string_view name) {
        indent(tabs);
        startTag(name);
        return endLine();
    }
    FileText& close(int tabs, std::string_view name) {
        indent(tabs);
        endTag(name);
        return endLine();
    }
    FileText& blankLine() { return endLine(); }

    /// A line with one element and its value.
    FileText& line(int tabs, std::string_view name, std::string_view value) {
        indent(tabs);
        element(name, value);
        return endLine();
    }
    FileText& line(int tabs, std::string_view name, std::int32_t value) {
        indent(tabs);
        element(name, value);
        return endLine();
    }
    FileText& lineIfGiven(int tabs, std::string_view name, std::string_view value) {
        return value.empty() ? *this : line(tabs, name, value);
    }
    /// Flags are written only when they are set.
    FileText& flag(int tabs, std::string_view name, bool isSet) {
        return isSet ? line(tabs, name, "yes") : *this;
    }
    FileText& image(int tabs, std::string_view name, std::string_view imageName) {
        indent(tabs);
        imageElement(name, imageName);
        return endLine();
    }
    FileText& imageIfGiven(int tabs, std::string_view name, std::string_view imageName) {
        return imageName.empty() ? *this : image(tabs, name, imageName);
    }

    // The pieces of a line.
    FileText& indent(int tabs) {
        text_.append(static_cast<std::size_t>(tabs), '\t');
        return *this;
    }
    FileText& startTag(std::string_view name) {
        text_ += '<';
        text_ += name;
        text_ += '>';
        return *this;
    }
    FileText& endTag(std::string_view name) {
        text_ += "</";
        text_ += name;
        text_ += '>';
        return *this;
    }
    FileText& raw(std::string_view text) {
        text_ += text;
        return *this;
    }
    FileText& element(std::string_view name, std::string_view value) {
        startTag(name);
        text_ += value;
        return endTag(name);
    }
    FileText& element(std::string_view name, std::int32_t value) {
        startTag(name);
        appendInteger(text_, value);
        return endTag(name);
    }
    /// A real number as "%g" prints it.
    FileText& realElement(std::string_view name, float value) {
        startTag(name);
        appendShortest(text_, value);
        return endTag(name);
    }
    FileText& elementUnless(std::int32_t omitted, std::string_view name, std::int32_t value) {
        return value == omitted ? *this : element(name, value);
    }
    FileText& elementIfGiven(std::string_view name, std::string_view value) {
        return value.empty() ? *this : element(name, value);
    }
    FileText& imageElement(std::string_view name, std::string_view imageName) {
        startTag(name);
        text_ += imageName;
        text_ += ImageEnding;
        return endTag(name);
    }
    FileText& endLine() {
        text_ += "\r\n";
        return *this;
    }

    /// What has been printed so far, to append a value to.
    [[nodiscard]] std::string& text() { return text_; }

    [[nodiscard]] std::string take() { return std::move(text_); }

private:
    std::string text_;
};

} // namespace varrocade
