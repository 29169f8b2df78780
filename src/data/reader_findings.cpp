#include "data/reader_findings.h"

#include <string>
#include <utility>

namespace varrocade {

const SourceMap& ReaderFindings::places() {
    if (!places_) {
        places_.emplace(tree_, fileContent_);
    }
    return *places_;
}

void ReaderFindings::add(SourcePlace place, Finding finding) {
    finding.file = file_;
    finding.line = place.line;
    finding.column = place.column;
    found_.push_back(std::move(finding));
}

void ReaderFindings::addAtElement(const TagNode& element, Finding finding) {
    if (!isFull()) {
        add(places().placeOf(element), std::move(finding));
    }
}

void ReaderFindings::addAtText(const TagNode& element, Finding finding) {
    if (!isFull()) {
        finding.value = element.text;
        add(places().placeOfText(element), std::move(finding));
    }
}

void ReaderFindings::addLeftOut(const TagNode& element, std::string_view what) {
    addAtElement(element, {.key = finding_key::NoRoom,
                           .severity = Severity::Error,
                           .field = std::string(element.name),
                           .message = std::string(what) + ": left out"});
}

} // namespace varrocade
