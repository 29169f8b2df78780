#include "app/workspace/names/name_list.h"

#include "app/workspace/names/name_filter.h"
#include "data/format/texts.h"

#include <algorithm>
#include <iterator>

namespace varrocade {

namespace {

std::vector<std::string>::const_iterator selectedPlace(const NameList& list) {
    return std::find(list.shown.begin(), list.shown.end(), list.selected);
}

} // namespace

void filterNames(NameList& list, const std::string& otherwise) {
    list.shown.clear();
    std::copy_if(list.all.begin(), list.all.end(), std::back_inserter(list.shown),
                 [&](const std::string& name) { return passesFilter(name, list.filter); });
    const std::string wanted = list.selected.empty() ? otherwise : list.selected;
    selectName(list, wanted);
}

bool isListed(const NameList& list, const std::string& name) {
    return std::any_of(list.all.begin(), list.all.end(),
                       [&](const std::string& listed) { return equalsIgnoringCase(listed, name); });
}

bool isOfGame(const NameList& list, const std::string& name) {
    return std::binary_search(list.ofGame.begin(), list.ofGame.end(), name);
}

bool selectName(NameList& list, const std::string& name) {
    const auto place = std::find_if(list.shown.begin(), list.shown.end(), [&](const std::string& shown) {
        return equalsIgnoringCase(shown, name);
    });
    const bool isShown = !name.empty() && place != list.shown.end();
    list.selected = isShown ? *place : std::string();
    return isShown;
}

std::vector<std::string> neighbourNames(const NameList& list) {
    std::vector<std::string> names;
    const auto place = selectedPlace(list);
    if (place == list.shown.end()) {
        return names;
    }
    if (place != list.shown.begin()) {
        names.push_back(*(place - 1));
    }
    if (place + 1 != list.shown.end()) {
        names.push_back(*(place + 1));
    }
    return names;
}

std::string nameAfterSelected(const NameList& list) {
    const auto place = selectedPlace(list);
    if (place == list.shown.end()) {
        return {};
    }
    if (place + 1 != list.shown.end()) {
        return *(place + 1);
    }
    return place != list.shown.begin() ? *(place - 1) : std::string();
}

} // namespace varrocade
