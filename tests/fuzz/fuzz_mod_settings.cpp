// Any bytes as a Mod.txt: what is read of it is written, read again, and changed in place.

#include "mod/mod_settings.h"
#include "mod/mod_text_edit.h"
#include "mod/starting_points.h"
#include "round_trip.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view source(reinterpret_cast<const char*>(data), size);
    const ModSettings read = readModSettings(source);
    fuzz::require(editedModText(source, read) == source, "an untouched file was changed", "", source);
    ModSettings changed = read;
    changed.name = "Changed";
    changed.credits.emplace_back("one more");
    std::reverse(changed.nationalities.begin(), changed.nationalities.end());
    changed.nationalities.push_back({.id = "NATIONALITY_DUTCH"});
    completeNationality(changed.nationalities.back());
    const ModSettings wanted = readModSettings(modSettingsText(changed));
    const std::string edited = editedModText(source, changed);
    fuzz::require(readModSettings(edited) == wanted, "a change was lost", "", edited);
    return 0;
}
