#include "app/commands/edit_weapon.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "app/workspace/edits.h"
#include "app/workspace/record_files.h"
#include "editors/weapon/weapon_dialog.h"
#include "platform/messages.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace varrocade {

namespace {

std::optional<std::vector<std::string>> usersOfOpenWeapon() {
    const WeaponRecord* weapon = openWeapon(theWorkspace());
    if (weapon == nullptr) {
        return std::nullopt;
    }
    const std::array<std::string_view, 2> names = {weapon->name, weapon->fileName};
    return application().weaponUsers.usersOf(names);
}

/// Looks through all units that are not known yet, while the user waits.
std::vector<std::string> allUsersOfOpenWeapon() {
    WeaponUsers& users = application().weaponUsers;
    users.start(gameFolders(theWorkspace()));
    while (users.step()) {
    }
    return usersOfOpenWeapon().value_or(std::vector<std::string>());
}

} // namespace

void openUser(std::string_view unit) {
    constexpr std::string_view separator = ": ";
    const std::size_t end = unit.find(separator);
    const auto category = std::find_if(AllCategories.begin(), AllCategories.end(), [&](Category candidate) {
        return categoryName(candidate) == unit.substr(0, end);
    });
    if (category != AllCategories.end() && end != std::string_view::npos) {
        showFile(theWorkspace(), *category, std::string(unit.substr(end + separator.size())));
    }
}

bool isWeaponOpen() {
    return openWeapon(theWorkspace()) != nullptr;
}

void editOpenWeapon(const WeaponTarget& target) {
    Workspace& workspace = theWorkspace();
    auto* weapon = std::get_if<WeaponRecord>(&workspace.open.present.record);
    if (weapon == nullptr) {
        return;
    }
    WeaponEdit edit{.record = *weapon,
                    .catalogue = workspace.catalogue,
                    .drawing = application().drawing,
                    .pictures = application().pictures,
                    .bases = imageBases(workspace),
                    .users = usersOfOpenWeapon,
                    .changed = [](std::string_view change) { recordChanged(theWorkspace(), change); },
                    .firstAmmo = target.ammo,
                    .focus = target.field};
    if (editWeaponData(application().window, edit)) {
        saveOpenRecord(workspace);
        workspace.listener->recordChanged();
    }
    if (!edit.unitToOpen.empty()) {
        openUser(edit.unitToOpen);
    }
}

bool mayTakeWeaponAway(std::string_view action) {
    if (!isWeaponOpen()) {
        return true;
    }
    const std::vector<std::string> users = allUsersOfOpenWeapon();
    if (users.empty()) {
        return true;
    }
    constexpr std::size_t mostLines = 12;
    std::string lines;
    for (std::size_t i = 0; i < std::min(users.size(), mostLines); ++i) {
        lines += "    " + users[i] + "\n";
    }
    if (users.size() > mostLines) {
        lines += "    and " + std::to_string(users.size() - mostLines) + " more\n";
    }
    const Answer answer =
        showMessage({.text = std::string(action) +
                             " this weapon's file may take the weapon from the units that use it:\n\n" +
                             lines + "\nGo on?",
                     .caption = "Weapon in use",
                     .buttons = MessageButtons::OkCancel,
                     .icon = MessageIcon::Warning});
    return answer == Answer::Ok;
}

} // namespace varrocade
