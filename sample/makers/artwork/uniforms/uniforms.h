#pragma once

#include "album.h"
#include "relief.h"
#include "scheme.h"

#include <cstdint>

/// Men: portraits, figures from above and badges of rank.
namespace artwork {

enum class Headgear : std::uint8_t {
    FieldCap, ///< soft, with a peak
    SideCap,  ///< folded, without one
    Beret,
    GermanHelmet,
    GermanHelmet1916,
    AmericanHelmet,
    AmericanHelmetCover,
    SoupPlate, ///< British pattern of 1916 and its American copy
    SoupPlateNet,
    Adrian,
    SovietHelmet,
    ItalianHelmet,
    JapaneseHelmet,
    ModernHelmet,
    PaddedTanker, ///< Soviet, with ribs front to back
    AmericanTanker,
    FrenchTanker,
    ItalianTanker,
    JapaneseTanker,
};

enum class Collar : std::uint8_t { Stand, Fall, OpenTie, Wrap, Round };

enum class Pattern : std::uint8_t { Plain, Leaf, Pixel, Splinter };

enum Feature : std::uint32_t {
    Goggles = 1U << 0,
    Headphones = 1U << 1,
    Braces = 1U << 2, ///< webbing over the shoulders
    Plates = 1U << 3, ///< body armour
    Buttons = 1U << 4,
    Pockets = 1U << 5,
    Moustache = 1U << 6,
    Greatcoat = 1U << 7,
    Leather = 1U << 8,
    Scarf = 1U << 9,
    ShoulderStraps = 1U << 10,
    Weapon = 1U << 11, ///< the figure carries a rifle
    Pack = 1U << 12,
};

struct UniformLook {
    Headgear head = Headgear::SideCap;
    Rgb headColour{};
    Rgb cloth{};
    Collar collar = Collar::Fall;
    Rgb collarColour{};
    Rgb tabs{}; ///< patches on the collar; black for none
    std::uint32_t features = 0;
    Pattern pattern = Pattern::Plain;
    Rgb webbing = hex(0x6E6140);
    Rgb skin = hex(0xC79A78);
};

/// The scheme of the cloth, with its camouflage.
Scheme clothScheme(const UniformLook& look);
/// A bust, 96 x 128 pixels at 2 pixels a centimetre.
void drawPortrait(Relief& r, const UniformLook& look, std::uint32_t seed);
/// A man seen from above, facing up, 48 x 48 pixels.
void drawFigure(Relief& r, const UniformLook& look, std::uint32_t seed);

void drawUniforms(Album& album);
void drawRanks(Album& album);

} // namespace artwork
