// What a save would lose: each kind of loss by example, then that nothing is missed and nothing invented,
// over the sample and over thousands of broken copies of it.

#include "cli/command_line.h"
#include "data/save_losses.h"
#include "data/tag_tree.h"
#include "data/unit_writers.h"
#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

std::vector<SaveLoss> lossesOf(Category category, std::string_view content) {
    if (category == Category::Weapons) {
        return weaponSaveLosses(content);
    }
    return unitSaveLosses(category, content).value_or(std::vector<SaveLoss>());
}

/// Empty when the writer has nothing to write.
std::string rewritten(Category category, const std::string& content) {
    if (category == Category::Weapons) {
        WeaponReadReport report;
        return weaponFileText(readWeapon(content, "weapon", report));
    }
    return unitFileText(category, readUnitText(content)).value_or("");
}

std::vector<std::string> linesAbout(Category category, std::string_view content) {
    std::vector<std::string> lines;
    for (const SaveLoss& loss : lossesOf(category, content)) {
        lines.push_back(lossText(loss));
    }
    return lines;
}

struct Case {
    std::string_view what;
    Category category;
    /// A whole file, or what stands in the outer elements of its category's files from line 2 on.
    std::string_view content;
    std::vector<std::string> losses;
};

std::string wholeFile(const Case& row) {
    if (row.content.starts_with("<squad>")) {
        return std::string(row.content);
    }
    switch (row.category) {
    case Category::Vehicles:
        return "<squad><vehicle>\n" + std::string(row.content) + "</vehicle></squad>";
    case Category::Aircraft:
        return "<aircraft>\n" + std::string(row.content) + "</aircraft>";
    case Category::Weapons:
        return "<weapon>\n" + std::string(row.content) + "</weapon>";
    case Category::AtGuns:
    case Category::Infantry:
        break;
    }
    return "<squad>\n" + std::string(row.content) + "</squad>";
}

void check(const std::vector<Case>& cases) {
    for (const Case& row : cases) {
        EXPECT_EQ(linesAbout(row.category, wholeFile(row)), row.losses) << row.what;
    }
}

} // namespace

TEST(SaveLosses, NamesWhatNoRuleTakes) {
    check({
        {"a comment, but not the writer's own",
         Category::Vehicles,
         "<hull>// a, b\r\n<armour>\t// @0 means vertically upright, @90 is "
         "horizontal\r\n</armour>\r//\r</hull>",
         {"2: dropped: comment \"// a, b\"", "5: dropped: comment \"//\""}},
        {"unknown elements, with all they hold",
         Category::Infantry,
         "<man>\n<morale><x>7</x></morale></man>\n<author>me</author>",
         {"3: dropped: <morale> in <man> is not known",
          "4: dropped: <author> \"me\" in <squad> is not known"}},
        {"a unit within an unknown element is read",
         Category::Infantry,
         "</squad><old>\n<squad><x>1</x></squad></old><squad>",
         {"2: dropped: <old> at the top of the file is not known",
          "3: dropped: <x> \"1\" in <squad> is not known"}},
        {"known elements elsewhere",
         Category::Vehicles,
         "<superstructure><image_view>a.png</image_view></superstructure>\n"
         "<fixed_weapon><smoke_discharger><speed>1</speed></smoke_discharger></fixed_weapon>",
         {"2: dropped: <image_view> \"a.png\" in <superstructure> is in the wrong place",
          "3: dropped: <smoke_discharger> in <fixed_weapon> is in the wrong place"}},
        {"the same in weapons",
         Category::Weapons,
         "<range>5</range>\n<ammo><type><weight>3</weight></type></ammo>",
         {"2: dropped: <range> \"5\" in <weapon> is in the wrong place",
          "3: dropped: <weight> \"3\" in <type> is not known"}},
        {"what an element holds beside its text",
         Category::Infantry,
         "<man>tall<job>JOB_SQUAD_LEADER</job></man>",
         {"2: dropped: <man> \"tall<job>JOB_SQUAD_LEADER</job>\" begins with text where elements should be"}},
        {"names of quarters",
         Category::AtGuns,
         "<commonness><1939Q>1</1939Q></commonness>",
         {"2: dropped: <1939Q> \"1\" in <commonness> is not known"}},
    });
}

TEST(SaveLosses, NamesWhatBrokenNestingHides) {
    check({
        {"text between elements",
         Category::Infantry,
         "<man></man>\nstray\n<man></man>",
         {"3: dropped: \"stray<man></man>\" in <squad> stands between elements, and nothing from there on is "
          "read"}},
        {"an element that is not closed",
         Category::Infantry,
         "<description>\n<type>A</description>",
         {"3: dropped: <type> in <description> is not closed, and nothing from there on is read"}},
        {"a closing tag too many",
         Category::Infantry,
         "<man></weapon></man>",
         {"2: dropped: \"</weapon>\" in <man> closes nothing, and nothing from there on is read"}},
        {"an element within one of its name",
         Category::Infantry,
         "<man>\n<man></man>\n</man>",
         {"3: dropped: <man> in <man> is in the wrong place",
          "4: dropped: \"</man>\" in <squad> closes nothing, and nothing from there on is read"}},
    });
    EXPECT_EQ(linesAbout(Category::Infantry, "\xEF\xBB\xBF<squad>"),
              std::vector<std::string>{
                  "1: dropped: \"\xEF\xBB\xBF<squad>\" is no element, and nothing of the file is read"});
    EXPECT_TRUE(linesAbout(Category::Infantry, "").empty());
}

TEST(SaveLosses, NamesWhatARecordCannotHold) {
    std::string men;
    for (int i = 0; i < 15; ++i) {
        men += "<man></man>\n";
    }
    std::string types;
    for (int i = 0; i < 256; ++i) {
        types += "<type></type>\n";
    }
    // The 510th character is the blank.
    std::string longLine;
    while (longLine.size() < 480) {
        longLine += "<description></description>";
    }
    longLine += "<man><weapon><type>";
    longLine += std::string(509 - longLine.size(), 'A') + " B</type></weapon></man>";
    check({
        {"members beyond the limit",
         Category::Infantry,
         men,
         {"15: dropped: <man> is left out: more than 13 infantrymen",
          "16: dropped: <man> is left out: more than 13 infantrymen"}},
        {"a second heavy weapon",
         Category::AtGuns,
         "<hmg></hmg>\n<mortar><mass>1</mass></mortar>",
         {"3: dropped: <mortar> is left out: a second heavy weapon"}},
        {"a second vehicle",
         Category::Vehicles,
         "<hull></hull></vehicle>\n<vehicle>",
         {"1: dropped: <vehicle>: a later one takes its place"}},
        {"ammunition types",
         Category::Weapons,
         "<ammo>" + types + "</ammo>",
         {"257: dropped: <type> is left out: more than 255 ammunition types"}},
        {"repeated elements, also by another name, unless they say the same",
         Category::Vehicles,
         "<attributes><weight>1</weight>\n<weight>2</weight><weight>2</weight></attributes>\n"
         "<turret><offsetAngle>3</offsetAngle><rotate_left>1</rotate_left>\n<offset_angle>4</offset_angle>\n"
         "<armour><side>9</side><upper_side>8</upper_side><lower_side>7</lower_side></armour></turret>",
         {"2: dropped: <weight> \"1\" is overwritten by <weight> \"2\" on line 3",
          "4: dropped: <offsetAngle> \"3\" is overwritten by <offset_angle> \"4\" on line 5",
          "6: dropped: <side> \"9\" is overwritten by <lower_side> \"7\" on line 6"}},
        {"texts longer than their fields",
         Category::Infantry,
         "<description><language>deu</language>\n<comment>" + std::string(256, 'c') +
             "</comment></description>",
         {"2: changed: <language> \"deu\" is cut to 2 characters",
          "3: changed: <comment> \"" + std::string(60, 'c') + "...\" is cut to 255 characters"}},
        {"line ends in texts, though not around them",
         Category::Infantry,
         "<description><comment>\n one\n two\n</comment></description>",
         {"3: changed: <comment> loses the line ends in its text"}},
        {"a blank where a long line is cut into pieces",
         Category::Infantry,
         longLine,
         {"2: changed: <type> loses blanks in its text, in a line too long"}},
    });
}

TEST(SaveLosses, NamesWhatIsReadOtherwise) {
    check({
        {"numbers",
         Category::Vehicles,
         "<attributes><weight>5 kg</weight></attributes>\n"
         "<drive><gears><forwards>05</forwards><reverse></reverse></gears></drive>\n"
         "<hull><armour><front>50mm</front><side>10@0</side><top>99999999999</top></armour></hull>",
         {"2: changed: <weight> \"5 kg\" is read as \"5\"",
          "3: respelt: <forwards> \"05\" is written as \"5\"", "3: respelt: <reverse> is written as \"0\"",
          "4: changed: <front> \"50mm\" is read as \"50\"",
          "4: respelt: <side> \"10@0\" is written as \"10\"",
          "4: changed: <top> \"99999999999\" is read as \"2147483647\""}},
        {"flags that are neither yes nor no",
         Category::Vehicles,
         "<attributes><is_amphibious>Yes</is_amphibious><can_mount_infantry>no</can_mount_infantry></"
         "attributes>",
         {"2: changed: <is_amphibious> \"Yes\" is read as \"no\""}},
        {"words",
         Category::AtGuns,
         "<description>\n<quality>QUALITY_RAW</quality></description>\n"
         "<description><quality>GOOD</quality></description>",
         {"3: dropped: <quality> \"QUALITY_RAW\" is overwritten by <quality> \"GOOD\" on line 4",
          "4: changed: <quality> \"GOOD\" is read as \"QUALITY_REGULAR\""}},
        {"the mount of an engine",
         Category::Vehicles,
         "<drive><engine><mount>MOUNT_SIDE</mount></engine></drive>",
         {"2: changed: <mount> \"MOUNT_SIDE\" is read as \"MOUNT_REAR\""}},
        {"image names",
         Category::AtGuns,
         "<description><uniform_game>a.PNG</uniform_game><uniform_profile>DEFAULT</uniform_profile>\n"
         "<uniform_ranks>ranks</uniform_ranks></description>",
         {"2: respelt: <uniform_game> \"a.PNG\" is written as \"a.png\"",
          "2: respelt: <uniform_profile> \"DEFAULT\" is written as \"Default.png\"",
          "3: respelt: <uniform_ranks> \"ranks\" is written as \"ranks.png\""}},
        {"older names, and limits that count the other way",
         Category::Vehicles,
         "<fixed_weapon><minAngle>-30</minAngle><max_angle>-5</max_angle></fixed_weapon>\n"
         "<hull><armour><left_upper>5</left_upper></armour></hull>",
         {"2: respelt: <minAngle> \"-30\" is written as <rotate_left> \"30\"",
          "2: changed: <max_angle> \"-5\" is read as \"0\"",
          "3: respelt: <left_upper> \"5\" is written as <upper_left> \"5\""}},
        {"the older engine",
         Category::Vehicles,
         "<drive><engine>ENGINE_GAZ_MM</engine><rpm_idle>400</rpm_idle></drive>\n",
         {"2: respelt: <engine> \"ENGINE_GAZ_MM\" is written as <name> \"GAZ-MM\" and <horsepower> \"50\"",
          "2: respelt: <rpm_idle> \"400\" in <drive> is written in <engine>"}},
        {"an engine that is not known",
         Category::Vehicles,
         "<drive><engine>ENGINE_OF_MINE</engine></drive>\n",
         {"2: changed: <engine> \"ENGINE_OF_MINE\" is read as nothing"}},
        {"the older availability beside today's",
         Category::AtGuns,
         "<commonness><1939Q1>5</1939Q1>\n<1939Q2>0</1939Q2><1939Q3>7 guns</1939Q3></commonness>\n"
         "<availability><data><month>01</month><year>1941</year><number>70000</number></data></availability>",
         {"2: respelt: <commonness> is written as dated points of availability",
          "3: changed: <1939Q3> \"7 guns\" is read as \"7\"",
          "3: dropped: <1939Q2> \"0\" is left out: a quarter without units becomes no point",
          "4: respelt: <month> \"01\" is written as \"1\"",
          "4: changed: <number> \"70000\" is read as \"65535\""}},
        {"words and numbers of weapons",
         Category::Weapons,
         "<type>WEAPON_X</type><dimensions><calibre>1.23456</calibre>\n<calibre>1.2345678</calibre></"
         "dimensions>\n"
         "<magazine><capacity>0</capacity></magazine><shoot><reload>BY_HAND</reload></shoot>\n"
         "<ammo><type><flavour>FLAVOUR_AP_HE</flavour></type><type><flavour>FLAVOUR_X</flavour></type></"
         "ammo>",
         {"2: changed: <type> \"WEAPON_X\" is read as \"WEAPON_RIFLE\"",
          "2: dropped: <calibre> \"1.23456\" is overwritten by <calibre> \"1.2345678\" on line 3",
          "3: changed: <calibre> \"1.2345678\" will be read back as \"1.23457\"",
          "4: changed: <capacity> \"0\" is read as \"1\"",
          "4: changed: <reload> \"BY_HAND\" is read as nothing",
          "5: respelt: <flavour> \"FLAVOUR_AP_HE\" is written as \"FLAVOUR_AP\"",
          "5: changed: <flavour> \"FLAVOUR_X\" is read as \"FLAVOUR_NONE\""}},
    });
}

TEST(SaveLosses, NamesWhatWritersHaveNoPlaceFor) {
    check({
        {"a fixed weapon's armour and its weapon's position",
         Category::Vehicles,
         "<fixed_weapon><armour><front>5</front><top>3</top><bottom>-1</bottom></armour>\n"
         "<weapon><type>A</type><offsetX>1</offsetX><offset_angle>0</offset_angle></weapon></fixed_weapon>",
         {"2: dropped: <armour> in <fixed_weapon> is not written, with the 2 values in it",
          "3: dropped: <offsetX> \"1\" in <weapon> is not written"}},
        {"an offset angle without limits, a mantlet of the hull, also where nothing else is given",
         Category::Vehicles,
         "<turret><offset_angle>20</offset_angle></turret>\n<hull><armour><mantlet>9</mantlet></armour></"
         "hull>",
         {"2: dropped: <offset_angle> \"20\" in <turret> is not written",
          "3: dropped: <mantlet> \"9\" in <armour> is not written"}},
        {"members of another kind of squad",
         Category::Vehicles,
         "<squad><vehicle></vehicle>\n<man><job>JOB_LOADER</job></man></squad>",
         {"2: dropped: <man> is not written in files of this kind"}},
        {"jobs of infantrymen and figures of anti-tank guns",
         Category::Infantry,
         "<man><job>JOB_DRIVER</job></man><man><job>JOB_LOADER</job></man>\n<hmg><mass>3</mass><AA>no</AA></"
         "hmg>",
         {"2: dropped: <job> \"JOB_DRIVER\" in <man> is not written",
          "3: dropped: <mass> \"3\" in <hmg> is not written"}},
        {"uniforms and weapon mounts of aircraft",
         Category::Aircraft,
         "<description><uniform_game>a.png</uniform_game><uniform_ranks>Default</uniform_ranks></"
         "description>\n"
         "<armament><weapon><type>A</type><mount>wing</mount></weapon></armament>",
         {"2: dropped: <uniform_game> \"a.png\" in <description> is not written",
          "3: dropped: <mount> \"wing\" in <weapon> is not written"}},
        {"what grenades and smoke have not",
         Category::Weapons,
         "<type>WEAPON_GRENADE</type><magazine><capacity>5</capacity></magazine>\n"
         "<ammo><type><flavour>FLAVOUR_GRENADE_SMOKE</flavour><speed>3</speed><HE>1</HE>\n"
         "<era>HEAT_ERA_LATE</era></type></ammo>",
         {"2: dropped: <capacity> \"5\" in <magazine> is not written",
          "3: dropped: <speed> \"3\" in <type> is not written",
          "3: dropped: <HE> \"1\" in <type> is not written",
          "4: dropped: <era> \"HEAT_ERA_LATE\" in <type> is not written"}},
        {"two slashes that meet at a line's end are a comment once written",
         Category::Infantry,
         "<description><comment>http:/\n/x</comment></description>",
         {"2: dropped: <comment> \"http://x\" in <description> is not written"}},
    });
}

TEST(SaveLosses, PassesOverWhatGoesWithoutSaying) {
    check({
        {"defaults, and other orders and layouts",
         Category::Vehicles,
         "<turret><weapon><type>WEAPON_LMG_A</type><offsetX>1</offsetX></weapon>\n"
         "<weapon><type>WEAPON_CANNON_B</type><offsetX>2</offsetX><offsetY>0</offsetY></weapon></turret>\n"
         "<hull><man><language></language></man></hull><drive><exhaust_pipe><angle>180</angle></"
         "exhaust_pipe></drive>",
         {}},
        {"the nation's uniforms",
         Category::Vehicles,
         "<squad><description><nationality>NATIONALITY_GERMAN</nationality>\n"
         "<uniform_profile>DEFAULT.PNG</uniform_profile><quality>QUALITY_REGULAR</quality>\n"
         "<uniform_ranks>uniform_ranks_german.png</uniform_ranks></description><vehicle></vehicle></squad>",
         {}},
        {"flavours that follow from the weapon",
         Category::Infantry,
         "<man><ammo><for>WEAPON_RIFLE_A</for><flavour>FLAVOUR_BALL</flavour></ammo></man>\n<mortar>\n"
         "<moveable>yes</moveable></mortar>",
         {}},
        {"bombs",
         Category::Aircraft,
         "<armament><ammo><for>WEAPON_BOMB_A</for><flavour>FLAVOUR_BOMB_HE</flavour></ammo></armament>",
         {}},
        {"a weapon's",
         Category::Weapons,
         "<comments>\n\ttext\n\t</comments><shoot><muzzle_flash>yes</muzzle_flash></shoot>\n"
         "<magazine><capacity>1</capacity><single_shot>no</single_shot></magazine><ammo><type></type></ammo>",
         {}},
    });
}

TEST(SaveLosses, SaysWhereThereIsNothingToWrite) {
    EXPECT_FALSE(unitSaveLosses(Category::Vehicles, "<squad><x>1</x></squad>").has_value());
    EXPECT_FALSE(unitSaveLosses(Category::Aircraft, "<squad></squad>").has_value());
    EXPECT_FALSE(unitSaveLosses(Category::Weapons, "<weapon></weapon>").has_value());
}

namespace {

using Leaf = std::pair<std::string, std::string>;

/// Every `<name>text</name>` of a file, wherever it stands, also where no tree has it.
std::set<Leaf> leavesOf(const std::string& content) {
    std::string cleaned;
    cleanTaggedText(content, cleaned);
    std::set<Leaf> leaves;
    for (std::size_t at = cleaned.find('<'); at != std::string::npos; at = cleaned.find('<', at + 1)) {
        const std::size_t textBegin = cleaned.find('>', at) + 1;
        const std::size_t textEnd = cleaned.find('<', at + 1);
        if (textBegin == 0 || textEnd == std::string::npos || textBegin >= textEnd) {
            continue;
        }
        const std::string name = cleaned.substr(at + 1, textBegin - at - 2);
        if (cleaned.compare(textEnd, name.size() + 3, "</" + name + ">") == 0) {
            leaves.emplace(name, cleaned.substr(textBegin, textEnd - textBegin));
        }
    }
    return leaves;
}

/// Whether a text may be missing in a file because its absence says the same.
bool goesWithoutSaying(const Leaf& leaf) {
    static const std::set<std::string> texts = {"0",
                                                "1",
                                                "180",
                                                "no",
                                                "yes",
                                                ".png",
                                                "-1",
                                                "QUALITY_REGULAR",
                                                "JOB_LOADER",
                                                "MOUNT_REAR",
                                                "HEAT_ERA_EARLY",
                                                "FLAVOUR_BALL",
                                                "FLAVOUR_BOMB_HE",
                                                "Default.png",
                                                "DEFAULT.PNG",
                                                "uniform_ranks_german.png"};
    return texts.contains(leaf.second);
}

/// Every element with a text is in the saved file too.
void expectNothingMissing(const std::string& content, const std::string& saved, const std::string& name) {
    const std::set<Leaf> kept = leavesOf(saved);
    for (const Leaf& leaf : leavesOf(content)) {
        EXPECT_TRUE(kept.contains(leaf) || goesWithoutSaying(leaf))
            << name << ": " << leaf.first << " = " << leaf.second << " is lost without a word in\n"
            << content;
    }
}

/// Makes one small thing of a file otherwise, as a hand or an accident would.
void damage(std::string& content, std::mt19937& random) {
    static constexpr auto texts = std::to_array<std::string_view>(
        {"0",          "7",           "-30",          "007",          "5 kg",          "1e3",
         "99999",      "2.50",        "yes",          "no",           "Default",       "x.PNG",
         "MOUNT_REAR", "QUALITY_RAW", "FLAVOUR_BALL", "WEAPON_HMG_A", "WEAPON_BOMB_B", "//",
         "",           " a "});
    const auto anyOf = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const auto lineAt = [&](std::size_t offset) {
        const std::size_t begin = content.rfind('\n', offset);
        const std::size_t first = begin == std::string::npos ? 0 : begin + 1;
        return std::pair(first, std::min(content.find('\n', first), content.size() - 1) + 1 - first);
    };
    if (content.empty()) {
        return;
    }
    const std::size_t offset = anyOf(content.size());
    const auto [line, length] = lineAt(offset);
    switch (anyOf(6)) {
    case 0:
        content.erase(line, length);
        break;
    case 1:
        content.insert(lineAt(anyOf(content.size())).first, content.substr(line, length));
        break;
    case 2:
        content[offset] = "<>/ _@x"[anyOf(7)];
        break;
    default: {
        const std::size_t begin = content.find('>', offset);
        const std::size_t end = content.find("</", begin == std::string::npos ? begin : begin + 1);
        if (begin != std::string::npos && end != std::string::npos &&
            content.substr(begin, end - begin).find('\n') == std::string::npos) {
            content.replace(begin + 1, end - begin - 1, texts[anyOf(texts.size())]);
        }
        break;
    }
    }
}

} // namespace

TEST(SaveLosses, AgreesWithTheSample) {
    std::size_t lossy = 0;
    for (const SampleFile& file : sampleFiles()) {
        const std::string saved = rewritten(file.category, file.content);
        const std::vector<std::string> losses = linesAbout(file.category, file.content);
        if (saved == file.content) {
            EXPECT_EQ(losses, std::vector<std::string>()) << file.name;
        } else if (losses.empty()) {
            expectNothingMissing(file.content, saved, file.name);
        } else {
            ++lossy;
        }
    }
    EXPECT_GE(lossy, 10U) << "the sample has hand-made files of every kind";
}

TEST(SaveLosses, MissesAndInventsNothingInDamagedFiles) {
    std::mt19937 random(1944);
    std::size_t lossless = 0;
    std::size_t plain = 0;
    constexpr int copies = 4;
    for (const SampleFile& file : sampleFiles()) {
        for (int copy = 0; copy < copies; ++copy) {
            std::string content = file.content;
            for (int i = 0; i <= copy; ++i) {
                damage(content, random);
            }
            const std::string saved = rewritten(file.category, content);
            if (saved.empty()) {
                continue;
            }
            const auto lines =
                static_cast<std::size_t>(std::count_if(content.begin(), content.end(),
                                                       [](char c) { return c == '\n' || c == '\r'; })) +
                1;
            const std::vector<SaveLoss> losses = lossesOf(file.category, content);
            for (const SaveLoss& loss : losses) {
                EXPECT_TRUE(loss.line >= 1 && loss.line <= lines) << lossText(loss);
            }
            if (losses.empty()) {
                ++lossless;
                expectNothingMissing(content, saved, file.name);
            }
            // Elements that run into each other can be read anew in another way each time.
            TagTree tree;
            tree.parseCleaned(saved);
            const bool isPlain =
                std::none_of(tree.nodes().begin(), tree.nodes().end(), [](const TagNode& node) {
                    return (std::string(node.name) + std::string(node.text)).find('<') != std::string::npos;
                });
            if (isPlain) {
                ++plain;
                EXPECT_EQ(linesAbout(file.category, saved), std::vector<std::string>()) << file.name << "\n"
                                                                                        << content;
            }
        }
    }
    EXPECT_GT(lossless, 50U);
    EXPECT_GT(plain, 500U);
}

TEST(SaveLosses, StaysInProportionWithHostileFiles) {
    std::string deep;
    constexpr int levels = 100000;
    for (int i = 0; i < levels; ++i) {
        deep += "<a" + std::to_string(i) + ">";
    }
    for (int i = levels; i-- > 0;) {
        deep += "</a" + std::to_string(i) + ">";
    }
    EXPECT_FALSE(lossesOf(Category::Infantry, deep).empty());
    std::string comments;
    std::string men = "<squad>";
    for (int i = 0; i < levels; ++i) {
        comments += "//\n";
        men += "<man></man>";
    }
    // The list ends, and says so.
    for (const std::string& content : {comments, men + "</squad>"}) {
        const std::vector<SaveLoss> losses = lossesOf(Category::Infantry, content);
        ASSERT_LT(losses.size(), std::size_t{levels} / 2);
        EXPECT_EQ(losses.back().message, "more than can be listed is lost");
    }
}

TEST(SaveLosses, AreExplainedOnTheCommandLine) {
    const TemporaryFolder folder;
    folder.write("in\\a.txt", "<squad><man></man>\n<x>1</x></squad>");
    folder.write("in\\b.txt", "<squad></squad>");
    const auto run = [&](const std::vector<std::string>& arguments, std::string& output) {
        ::testing::internal::CaptureStdout();
        const int status = cli::runCommandLine(arguments);
        output = ::testing::internal::GetCapturedStdout();
        std::erase(output, '\r');
        return status;
    };
    const std::string in = folder.path() + "in\\";
    std::string output;
    EXPECT_EQ(run({"rewrite", "--explain", "infantry", in, folder.path() + "out"}, output), cli::Findings);
    EXPECT_EQ(output, in + "a.txt:2: dropped: <x> \"1\" in <squad> is not known\n");
    EXPECT_EQ(folder.read("out\\a.txt"), squadFileText(readUnitText("<squad><man></man></squad>")));
    EXPECT_EQ(run({"rewrite", "--explain", "infantry", in + "b.txt", folder.path() + "b.txt"}, output),
              cli::Done);
    EXPECT_EQ(output, "");
    EXPECT_EQ(run({"rewrite", "--explain", "infantry", in + "c.txt", folder.path() + "c.txt"}, output),
              cli::CouldNot);
}

} // namespace varrocade::tests
