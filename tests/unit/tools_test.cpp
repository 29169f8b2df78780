// The tools that go over all files of a game.

#include "test_support.h"
#include "tools/penetration_matrix.h"
#include "tools/weapon_users.h"

#include <array>
#include <filesystem>
#include <system_error>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

TEST(WeaponUsers, KnowsWhoCarriesAWeaponAndReadsNoFileTwice) {
    const TemporaryFolder folder;
    constexpr std::string_view tank =
        "<squad><vehicle><turret><weapon><type>WEAPON_A</type></weapon>"
        "<man><weapon><type>WEAPON_B</type></weapon></man></turret></vehicle></squad>";
    folder.write("Game\\Data\\Vehicles\\German Tank.txt", tank);
    folder.write("Game\\Data\\Infantry\\German Squad.txt",
                 "<squad><man><ammo><for>WEAPON_B</for><rounds>2</rounds></ammo></man></squad>");
    folder.write("Mod\\Data\\Vehicles\\german tank.TXT", "<squad><vehicle></vehicle></squad>");
    WeaponUsers users;
    const std::string game = folder.path() + "Game\\";
    const auto usersOf = [&](std::string_view weapon, const GameFolders& folders) {
        users.start(folders);
        const auto before = users.usersOf(std::array{weapon});
        // In small steps: one file at most for each.
        for (std::size_t read = users.filesRead(); users.step(); read = users.filesRead()) {
            EXPECT_LE(users.filesRead(), read + 1);
            EXPECT_EQ(users.usersOf(std::array{weapon}), before) << "half of the answer";
        }
        return users.usersOf(std::array{weapon}).value();
    };
    using Names = std::vector<std::string>;
    EXPECT_FALSE(users.usersOf(std::array<std::string_view, 1>{"WEAPON_A"})) << "nobody has looked yet";
    EXPECT_EQ(usersOf("WEAPON_A", {game}), Names{"Vehicles: German Tank"});
    EXPECT_EQ(usersOf("WEAPON_B", {game}), (Names{"Infantry: German Squad", "Vehicles: German Tank"}));
    EXPECT_EQ(usersOf("WEAPON_C", {game}), Names{});
    EXPECT_EQ(users.filesRead(), 2U);
    EXPECT_EQ(usersOf("WEAPON_A", {game, folder.path() + "Mod\\"}), Names{})
        << "the mod's tank has none, whatever the case of its letters";
    EXPECT_EQ(users.filesRead(), 3U);
    folder.write("Game\\Data\\Vehicles\\German Tank.txt", std::string(tank) + "\n");
    EXPECT_EQ(usersOf("WEAPON_A", {game}), Names{"Vehicles: German Tank"});
    EXPECT_EQ(users.filesRead(), 4U) << "the changed one only";
    EXPECT_FALSE(users.step());
    EXPECT_EQ(users.usersOf(std::array<std::string_view, 1>{"WEAPON_A"}), Names{"Vehicles: German Tank"});
    EXPECT_EQ(usersOf("WEAPON_A", {folder.path() + "None\\"}), Names{});
}

std::string gunText(std::string_view calibre) {
    return "<weapon><name>GUN</name><dimensions><calibre>" + std::string(calibre) +
           "</calibre></dimensions><ammo><type><flavour>FLAVOUR_HEAT</flavour></type></ammo></weapon>";
}

std::string tankText(std::string_view armour) {
    return "<squad><vehicle><hull><armour><upper_front>" + std::string(armour) +
           "@0</upper_front></armour></hull></vehicle></squad>";
}

/// The rows below the heading, or what kept them from being.
std::string matrixOf(const GameFolders& folders, PenetrationMatrix& matrix) {
    std::string text;
    const bool isWhole = matrix.read(folders) && matrix.write([&](std::string_view piece) {
        text += piece;
        return true;
    });
    return isWhole ? text.substr(text.find('\n') + 1) : "none";
}

TEST(PenetrationMatrix, ShootsTheModsGunsAtTheModsVehicles) {
    const TemporaryFolder folder;
    const GameFolders game{folder.path() + "Game\\"};
    const GameFolders both{game.program, folder.path() + "Mod\\"};
    PenetrationMatrix matrix;
    EXPECT_EQ(matrixOf(game, matrix), "none");
    EXPECT_EQ(matrix.problems().front().file, game.program + "Data\\Weapons\\");
    folder.write("Game\\Data\\Weapons\\Gun.txt", gunText("75"));
    EXPECT_EQ(matrixOf(game, matrix), "none");
    EXPECT_EQ(matrix.problems().front().file, game.program + "Data\\Vehicles\\");
    folder.write("Game\\Data\\Vehicles\\Tank.txt", tankText("90"));
    folder.write("Game\\Data\\Vehicles\\Tank 2.txt", tankText("100"));
    folder.write("Mod\\Data\\Weapons\\GUN.txt", gunText("50"));
    folder.write("Mod\\Data\\Vehicles\\tank.txt", tankText("60"));
    // A charge of that era goes through 1.3 calibres, at every range.
    const std::string of75 = "\t97.5\t97.5\t97.5\t97.5\t97.5\t97.5\t97.5\n";
    const std::string of50 = "\t65.0\t65.0\t65.0\t65.0\t65.0\t65.0\t65.0\n";
    const std::string big = "\t0\tFLAVOUR_HEAT\t\tTank 2\t1\thull\tupper_front\t100\t0\t-";
    EXPECT_EQ(matrixOf(game, matrix),
              "Gun" + big + of75 + "Gun\t0\tFLAVOUR_HEAT\t\tTank\t1\thull\tupper_front\t90\t0\t3000" + of75);
    EXPECT_EQ(matrixOf(both, matrix),
              "GUN" + big + of50 + "GUN\t0\tFLAVOUR_HEAT\t\ttank\t1\thull\tupper_front\t60\t0\t3000" + of50);
    EXPECT_TRUE(matrix.problems().empty());
    EXPECT_FALSE(matrix.write([](std::string_view) { return false; })) << "the disk is full";

    std::error_code error;
    std::filesystem::remove(folder.nativePath("Mod\\Data\\Vehicles\\tank.txt"));
    std::filesystem::create_symlink("missing", folder.nativePath("Mod\\Data\\Vehicles\\tank.txt"), error);
    if (!error) {
        EXPECT_EQ(matrixOf(both, matrix), "GUN" + big + of50);
        ASSERT_EQ(matrix.problems().size(), 1U);
        EXPECT_EQ(matrix.problems().front().file, both.mod + "Data\\Vehicles\\tank.txt");
    }
}

} // namespace
} // namespace varrocade::tests
