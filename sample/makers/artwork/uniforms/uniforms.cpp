#include "uniforms/uniforms.h"

#include "develop.h"

#include <array>
#include <string>

namespace artwork {

namespace {

/// A uniform and the names of its two pictures; either may be empty.
struct Entry {
    std::string_view portrait;
    std::string_view figure;
    UniformLook look;
};

constexpr Rgb FieldGrey = hex(0x5A6152);
constexpr Rgb PanzerBlack = hex(0x2A2A2C);
constexpr Rgb Pink = hex(0xC48A94);
constexpr Rgb Khaki = hex(0x7A6F4B);
constexpr Rgb SovietKhaki = hex(0x79724C);
constexpr Rgb BritishKhaki = hex(0x6A6040);
constexpr Rgb AmericanOlive = hex(0x6B6744);
constexpr Rgb NoTabs{};

constexpr std::array Entries{
    // crews, named as the writers' defaults
    Entry{"uniform_german_vehicle_crew",
          "uniform_game_german_tank_crew",
          {Headgear::FieldCap, PanzerBlack, PanzerBlack, Collar::Wrap, PanzerBlack, Pink, Headphones}},
    Entry{"uniform_german_assault_gun_crew",
          "",
          {Headgear::FieldCap, FieldGrey, FieldGrey, Collar::Wrap, FieldGrey, hex(0xA2342E), Headphones}},
    Entry{"uniform_german_panzergrenadier",
          "uniform_game_german_panzergrenadier",
          {Headgear::GermanHelmet, hex(0x4C5246), FieldGrey, Collar::Fall, hex(0x3C4A3C), hex(0x7A8A5A),
           Braces | Buttons | Pockets | Weapon, Pattern::Plain, hex(0x2A2520)}},
    Entry{
        "uniform_russian_vehicle_crew",
        "uniform_game_russian_tank_crew",
        {Headgear::PaddedTanker, hex(0x2E2C29), hex(0x4A4C48), Collar::Stand, SovietKhaki, NoTabs, Goggles}},
    Entry{"uniform_russian_modern_crew",
          "uniform_game_russian_modern_crew",
          {Headgear::PaddedTanker, hex(0x35332F), hex(0x6C7452), Collar::Fall, hex(0x6C7452), NoTabs, Plates,
           Pattern::Pixel, hex(0x545A40)}},
    Entry{"uniform_american_vehicle_crew",
          "uniform_game_american_tank_crew",
          {Headgear::AmericanTanker, hex(0x5C4A34), hex(0x77704C), Collar::Fall, hex(0x625538), NoTabs,
           Goggles}},
    Entry{"uniform_british_vehicle_crew",
          "uniform_game_british_tank_crew",
          {Headgear::Beret, hex(0x222224), BritishKhaki, Collar::Fall, BritishKhaki, NoTabs,
           Headphones | Pockets}},
    Entry{"uniform_french_vehicle_crew",
          "uniform_game_french_tank_crew",
          {Headgear::FrenchTanker, hex(0x5E5C40), hex(0x3A2B20), Collar::Wrap, hex(0x3A2B20), NoTabs,
           Leather | Buttons}},
    Entry{"French tank crew 1940",
          "",
          {Headgear::FrenchTanker, hex(0x565838), hex(0x32261D), Collar::Wrap, hex(0x32261D), NoTabs,
           Leather | Buttons | Goggles}},
    Entry{"uniform_italian_vehicle_crew",
          "uniform_game_italian_tank_crew",
          {Headgear::ItalianTanker, hex(0x2B2521), hex(0x2C2724), Collar::Fall, hex(0x2C2724), hex(0x4A74B0),
           Leather | Buttons}},
    Entry{"uniform_japanese_vehicle_crew",
          "uniform_game_japanese_tank_crew",
          {Headgear::JapaneseTanker, hex(0x7A6A45), hex(0x837247), Collar::Fall, hex(0x837247), hex(0xA8302E),
           Goggles | Buttons, Pattern::Plain, hex(0x5C4A30), hex(0xC49A72)}},
    Entry{"uniform_polish_vehicle_crew",
          "uniform_game_polish_tank_crew",
          {Headgear::FrenchTanker, hex(0x60603F), hex(0x25221F), Collar::Fall, hex(0x25221F), hex(0xC57A3A),
           Leather | Buttons}},
    Entry{"uniform_chinese_vehicle_crew",
          "uniform_chinese_tank_crew",
          {Headgear::GermanHelmet, hex(0x5A5F4A), hex(0x75704E), Collar::Stand, hex(0x75704E), hex(0x35538A),
           Buttons | Pockets, Pattern::Plain, hex(0x5C4A30), hex(0xC49A72)}},
    Entry{"uniform_finnish_vehicle_crew",
          "uniform_finnish_tank_crew",
          {Headgear::PaddedTanker, hex(0x3A322A), hex(0x666A66), Collar::Fall, hex(0x666A66), hex(0x2F5A44),
           Goggles}},
    Entry{"uniform_hungarian_vehicle_crew",
          "uniform_hungarian_tank_crew",
          {Headgear::ItalianTanker, hex(0x2B2521), hex(0x6E6846), Collar::Fall, hex(0x6E6846), hex(0x35538A),
           Buttons | Pockets}},
    Entry{"uniform_romanian_vehicle_crew",
          "uniform_romanian_tank_crew",
          {Headgear::Beret, hex(0x26262A), hex(0x7C7250), Collar::Fall, hex(0x7C7250), hex(0x5A5A60),
           Buttons | Pockets}},
    Entry{"uniform_ukrainian_vehicle_crew",
          "uniform_game_ukrainian_tank_crew",
          {Headgear::PaddedTanker, hex(0x34332E), hex(0x7B8060), Collar::Fall, hex(0x7B8060), NoTabs, Plates,
           Pattern::Pixel, hex(0x5E6448)}},
    // infantry
    Entry{"",
          "uniform_game_russian_infantry",
          {Headgear::SovietHelmet, hex(0x4E5438), SovietKhaki, Collar::Stand, SovietKhaki, NoTabs,
           Braces | Weapon | Pack}},
    Entry{"uniform_german_grenadier_1944",
          "uniform_game_german_infantry_1944",
          {Headgear::GermanHelmet, hex(0x4E5448), hex(0x5C6456), Collar::Fall, hex(0x4A5448), hex(0x4A5A48),
           Braces | Buttons | Pockets | Weapon | Pack, Pattern::Plain, hex(0x2A2520)}},
    Entry{"uniform_german_stosstrupp_1918",
          "uniform_game_german_infantry_1918",
          {Headgear::GermanHelmet1916, hex(0x555C4A), hex(0x6B7060), Collar::Fall, hex(0x5F6655), NoTabs,
           Braces | Buttons | Weapon | Moustache, Pattern::Plain, hex(0x4A3424)}},
    Entry{"uniform_russian_rifleman_1943",
          "uniform_game_russian_infantry_1943",
          {Headgear::SovietHelmet, hex(0x4C5236), SovietKhaki, Collar::Stand, SovietKhaki, hex(0xA2342E),
           ShoulderStraps | Buttons | Weapon | Pack}},
    Entry{"uniform_russian_motor_rifle_1985",
          "uniform_game_russian_infantry_1985",
          {Headgear::SovietHelmet, hex(0x51563A), hex(0x76784E), Collar::Fall, hex(0x76784E), NoTabs,
           Braces | Weapon, Pattern::Leaf, hex(0x6A6440)}},
    Entry{"uniform_american_rifleman_1944",
          "uniform_game_american_infantry_1944",
          {Headgear::AmericanHelmet, hex(0x555438), hex(0x6C6A48), Collar::Fall, hex(0x6C6A48), NoTabs,
           Braces | Pockets | Buttons | Weapon | Pack, Pattern::Plain, hex(0x8C8258)}},
    Entry{"uniform_american_marine_1944",
          "uniform_game_american_marine_1944",
          {Headgear::AmericanHelmetCover, hex(0x7C7A52), hex(0x7C8260), Collar::Fall, hex(0x7C8260), NoTabs,
           Braces | Pockets | Buttons | Weapon, Pattern::Leaf, hex(0x8C8258)}},
    Entry{"uniform_american_infantry_1918",
          "uniform_game_american_infantry_1918",
          {Headgear::SoupPlate, hex(0x5C5A3A), AmericanOlive, Collar::Stand, AmericanOlive, hex(0x8C7A3C),
           Braces | Buttons | Pockets | Weapon | Pack, Pattern::Plain, hex(0x8C8258)}},
    Entry{"uniform_american_infantry_2005",
          "uniform_game_american_infantry_2005",
          {Headgear::ModernHelmet, hex(0x8A8D7C), hex(0x8A8D7C), Collar::Stand, hex(0x8A8D7C), NoTabs,
           Plates | Goggles | Weapon, Pattern::Pixel, hex(0x737663)}},
    Entry{"uniform_british_rifleman_1944",
          "uniform_game_british_infantry_1944",
          {Headgear::SoupPlateNet, hex(0x55563A), BritishKhaki, Collar::Fall, BritishKhaki, NoTabs,
           Braces | Pockets | Weapon | Pack, Pattern::Plain, hex(0x8A8460)}},
    Entry{"uniform_french_rifleman_1940",
          "uniform_game_french_infantry_1940",
          {Headgear::Adrian, hex(0x5C5A3E), Khaki, Collar::Fall, Khaki, hex(0x3A4A6A),
           Braces | Greatcoat | Weapon | Pack | Moustache, Pattern::Plain, hex(0x6A4A30)}},
    Entry{"uniform_japanese_rifleman_1942",
          "uniform_game_japanese_infantry_1942",
          {Headgear::JapaneseHelmet, hex(0x6E6440), hex(0x8A7A4C), Collar::Fall, hex(0x8A7A4C), hex(0xA8302E),
           Braces | Buttons | Pockets | Weapon, Pattern::Plain, hex(0x6A4A30), hex(0xC49A72)}},
    Entry{"uniform_finnish_rifleman_1941",
          "uniform_game_finnish_infantry_1941",
          {Headgear::GermanHelmet, hex(0x5A5F58), hex(0x70736E), Collar::Fall, hex(0x70736E), hex(0x2F5A44),
           Braces | Buttons | Pockets | Weapon, Pattern::Plain, hex(0x4A3424)}},
    Entry{"uniform_italian_rifleman_1940",
          "uniform_game_italian_infantry_1940",
          {Headgear::ItalianHelmet, hex(0x5F6656), hex(0x6F7564), Collar::Fall, hex(0x6F7564), hex(0xA2342E),
           Braces | Buttons | Pockets | Weapon, Pattern::Plain, hex(0x5E6450)}},
    Entry{"uniform_ukrainian_infantry_2022",
          "uniform_game_ukrainian_infantry_2022",
          {Headgear::ModernHelmet, hex(0x7B8060), hex(0x7B8060), Collar::Stand, hex(0x7B8060), NoTabs,
           Plates | Headphones | Weapon, Pattern::Pixel, hex(0x5E6448)}},
};

} // namespace

void drawUniforms(Album& album) {
    std::uint32_t seed = 1;
    for (const Entry& entry : Entries) {
        seed += 17;
        const std::string portrait = "Uniforms/" + std::string(entry.portrait) + ".png";
        const std::string figure = "Uniforms/" + std::string(entry.figure) + ".png";
        if (!entry.portrait.empty() && album.wants(portrait)) {
            Relief relief(96, 128, 2.0);
            drawPortrait(relief, entry.look, seed);
            album.put(portrait, develop(relief, clothScheme(entry.look), {.shadowLength = 10.0, .rim = 0.2}));
        }
        if (!entry.figure.empty() && album.wants(figure)) {
            Relief relief(48, 48, 0.86);
            drawFigure(relief, entry.look, seed);
            album.put(figure, develop(relief, clothScheme(entry.look),
                                      {.shadowLength = 30.0,
                                       .groundShadow = 0.35,
                                       .groundOffset = 4.0,
                                       .groundBlur = 4.0,
                                       .rim = 0.2}));
        }
    }
}

} // namespace artwork
