#pragma once

#include <string>

namespace varrocade::gui {

/// The mod folder in the user's profile, empty for as long as this lives: what the user has there is put
/// aside and comes back. Where it had no time to come back, the next one brings it back.
class UserMod {
public:
    UserMod();
    UserMod(const UserMod&) = delete;
    UserMod& operator=(const UserMod&) = delete;
    ~UserMod();

    /// "...\Quorlin Games\", which the game shares with others of its maker.
    [[nodiscard]] std::string makerFolder() const { return maker_ + "\\"; }
    /// "...\Quorlin Games\Varrocade\Mod\".
    [[nodiscard]] std::string modFolder() const { return makerFolder() + "Varrocade\\Mod\\"; }
    /// Puts a mod there.
    void create() const;

private:
    std::string maker_;
    std::string aside_;
};

} // namespace varrocade::gui
