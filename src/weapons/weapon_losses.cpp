#include "weapons/weapon_losses.h"

#include "data/losses/loss_finder.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_rules.h"

#include <string>

namespace varrocade {

namespace {

WeaponRecord readTraced(TracedFile& file) {
    return weapon_rules::readTree(file.tree, {}, nullptr, &file.trace);
}

bool goesWithoutSaying(const FieldHistory&, const TracedValue&) {
    return false;
}

} // namespace

std::vector<Finding> weaponSaveLosses(std::string_view fileContent) {
    TracedFile file(fileContent);
    const std::string text = weaponFileText(readTraced(file));
    TracedFile saved(text);
    const std::string again = weaponFileText(readTraced(saved));
    std::vector<Finding> losses = findLosses(
        file, saved,
        {.isElement = weapon_rules::isElement, .keys = {}, .goesWithoutSaying = goesWithoutSaying});
    addReadBack(fileContent, text, again, losses);
    return losses;
}

} // namespace varrocade
