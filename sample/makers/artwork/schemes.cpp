#include "schemes.h"

namespace artwork {

const Scheme& germanThreeTone() {
    static const Scheme scheme{.base = hex(0xAC9663),
                               .patches = {{.colour = hex(0x4F5A38),
                                            .size = 95.0,
                                            .level = 0.575,
                                            .soft = 0.035,
                                            .stretch = {1.2, 0.8},
                                            .turn = 24.0,
                                            .seed = 11},
                                           {.colour = hex(0x6A4630),
                                            .size = 90.0,
                                            .level = 0.59,
                                            .soft = 0.03,
                                            .stretch = {1.2, 0.8},
                                            .turn = -30.0,
                                            .seed = 23}},
                               .dustAmount = 0.22,
                               .seed = 3};
    return scheme;
}

const Scheme& germanAmbush() {
    static const Scheme scheme{.base = hex(0xAF9A66),
                               .patches = {{.colour = hex(0x525D3A),
                                            .size = 130.0,
                                            .level = 0.53,
                                            .soft = 0.02,
                                            .stretch = {1.5, 0.7},
                                            .turn = 62.0,
                                            .seed = 31},
                                           {.colour = hex(0x70482F),
                                            .size = 110.0,
                                            .level = 0.56,
                                            .soft = 0.02,
                                            .stretch = {1.5, 0.7},
                                            .turn = 118.0,
                                            .seed = 47}},
                               .dustAmount = 0.2,
                               .seed = 6};
    return scheme;
}

const Scheme& germanWinter() {
    static const Scheme scheme{
        .base = hex(0xD2D0C6),
        .patches = {{.colour = hex(0xA6956C), .size = 46.0, .level = 0.57, .soft = 0.05, .seed = 71},
                    {.colour = hex(0x8F8767), .size = 20.0, .level = 0.66, .soft = 0.04, .seed = 83},
                    {.colour = hex(0xBDB8A6),
                     .size = 14.0,
                     .level = 0.55,
                     .soft = 0.08,
                     .stretch = {2.2, 0.6},
                     .turn = 8.0,
                     .seed = 90}},
        .dust = hex(0x8A8070),
        .dustAmount = 0.22,
        .wear = 0.5,
        .wash = 0.7,
        .fade = 0.12,
        .chip = hex(0x9A8A5E),
        .seed = 9};
    return scheme;
}

const Scheme& panzerGrey() {
    static const Scheme scheme{
        .base = hex(0x5D6365),
        .patches = {{.colour = hex(0x666967), .size = 70.0, .level = 0.5, .soft = 0.15, .seed = 3}},
        .dust = hex(0x9C8F74),
        .dustAmount = 0.26,
        .wear = 0.4,
        .seed = 12};
    return scheme;
}

const Scheme& sovietGreen() {
    static const Scheme scheme{
        .base = hex(0x5A5F42),
        .patches = {{.colour = hex(0x50563A), .size = 80.0, .level = 0.5, .soft = 0.14, .seed = 5}},
        .dust = hex(0x968763),
        .dustAmount = 0.34,
        .wear = 0.5,
        .seed = 15};
    return scheme;
}

const Scheme& sovietWinterTrace() {
    static const Scheme scheme{
        .base = hex(0x56603C),
        .patches = {{.colour = hex(0xB9BAAC),
                     .size = 42.0,
                     .level = 0.57,
                     .soft = 0.06,
                     .stretch = {1.5, 0.8},
                     .seed = 61},
                    {.colour = hex(0x8E9280), .size = 16.0, .level = 0.62, .soft = 0.06, .seed = 63}},
        .dust = hex(0x8C8062),
        .dustAmount = 0.22,
        .wear = 0.4,
        .seed = 18};
    return scheme;
}

const Scheme& sovietModern() {
    static const Scheme scheme{.base = hex(0x626848),
                               .patches = {{.colour = hex(0x8F855C),
                                            .size = 110.0,
                                            .level = 0.56,
                                            .soft = 0.012,
                                            .stretch = {1.3, 0.8},
                                            .turn = 40.0,
                                            .seed = 17},
                                           {.colour = hex(0x34372B),
                                            .size = 75.0,
                                            .level = 0.62,
                                            .soft = 0.012,
                                            .turn = -35.0,
                                            .seed = 29}},
                               .dust = hex(0xA08F6C),
                               .dustAmount = 0.22,
                               .seed = 20};
    return scheme;
}

const Scheme& lorryGreen() {
    static const Scheme scheme{
        .base = hex(0x5D6846),
        .patches = {{.colour = hex(0x677052), .size = 60.0, .level = 0.5, .soft = 0.15, .seed = 9}},
        .dust = hex(0xA4926C),
        .dustAmount = 0.34,
        .wear = 0.45,
        .chip = hex(0x7A5A40),
        .seed = 22};
    return scheme;
}

const Scheme& oliveDrab() {
    static const Scheme scheme{
        .base = hex(0x5B5A3C),
        .patches = {{.colour = hex(0x656244), .size = 75.0, .level = 0.5, .soft = 0.15, .seed = 2}},
        .dust = hex(0xA0916C),
        .dustAmount = 0.26,
        .seed = 25};
    return scheme;
}

const Scheme& desertGrant() {
    static const Scheme scheme{.base = hex(0xBDA676),
                               .patches = {{.colour = hex(0x4E5140),
                                            .size = 150.0,
                                            .level = 0.565,
                                            .soft = 0.006,
                                            .stretch = {1.3, 0.8},
                                            .turn = 52.0,
                                            .seed = 19,
                                            .outline = 0.012,
                                            .outlineColour = hex(0xD9CBA2)}},
                               .dust = hex(0xC0AC82),
                               .dustAmount = 0.32,
                               .wear = 0.4,
                               .seed = 27};
    return scheme;
}

const Scheme& britishGreen() {
    static const Scheme scheme{
        .base = hex(0x545B3E),
        .patches = {{.colour = hex(0x5E6346), .size = 80.0, .level = 0.5, .soft = 0.15, .seed = 7}},
        .dust = hex(0x94856A),
        .dustAmount = 0.28,
        .seed = 30};
    return scheme;
}

const Scheme& frenchOutlined() {
    static const Scheme scheme{.base = hex(0x6C6F45),
                               .patches = {{.colour = hex(0x77543A),
                                            .size = 120.0,
                                            .level = 0.53,
                                            .soft = 0.006,
                                            .turn = 30.0,
                                            .seed = 37,
                                            .outline = 0.014,
                                            .outlineColour = hex(0x201D19)},
                                           {.colour = hex(0xA98F5C),
                                            .size = 90.0,
                                            .level = 0.60,
                                            .soft = 0.006,
                                            .turn = -50.0,
                                            .seed = 53,
                                            .outline = 0.014,
                                            .outlineColour = hex(0x201D19)}},
                               .dustAmount = 0.18,
                               .seed = 33};
    return scheme;
}

const Scheme& frenchCavalry() {
    static const Scheme scheme{.base = hex(0x5A6044),
                               .patches = {{.colour = hex(0x6A4E3A),
                                            .size = 60.0,
                                            .level = 0.515,
                                            .soft = 0.008,
                                            .turn = 20.0,
                                            .seed = 43}},
                               .dustAmount = 0.22,
                               .seed = 36};
    return scheme;
}

const Scheme& italianDesert() {
    static const Scheme scheme{
        .base = hex(0xB59A68),
        .patches = {{.colour = hex(0x6E7350), .size = 30.0, .level = 0.60, .soft = 0.035, .seed = 59}},
        .dust = hex(0xC2AA7A),
        .dustAmount = 0.3,
        .wear = 0.4,
        .seed = 39};
    return scheme;
}

const Scheme& japaneseStripes() {
    static const Scheme scheme{
        .base = hex(0x7F7248),
        .patches =
            {{.colour = hex(0x5A4632), .size = 85.0, .level = 0.53, .soft = 0.006, .turn = 20.0, .seed = 67},
             {.colour = hex(0x4C5A3A), .size = 90.0, .level = 0.545, .soft = 0.006, .turn = 75.0, .seed = 73},
             {.colour = hex(0xC9A94E),
              .size = 170.0,
              .level = 0.50,
              .soft = 0.004,
              .turn = 10.0,
              .seed = 79,
              .band = 0.022}},
        .dustAmount = 0.2,
        .seed = 42};
    return scheme;
}

const Scheme& polishThreeTone() {
    static const Scheme scheme{.base = hex(0x6C6B44),
                               .patches = {{.colour = hex(0xA08D62),
                                            .size = 85.0,
                                            .level = 0.545,
                                            .soft = 0.03,
                                            .stretch = {0.7, 1.4},
                                            .seed = 89},
                                           {.colour = hex(0x5A4330),
                                            .size = 85.0,
                                            .level = 0.56,
                                            .soft = 0.03,
                                            .stretch = {0.7, 1.4},
                                            .seed = 103}},
                               .dustAmount = 0.2,
                               .seed = 45};
    return scheme;
}

const Scheme& germanYellow() {
    static const Scheme scheme{
        .base = hex(0xAB9764),
        .patches = {{.colour = hex(0xB3A06E), .size = 60.0, .level = 0.5, .soft = 0.15, .seed = 3}},
        .dustAmount = 0.24,
        .seed = 43};
    return scheme;
}

const Scheme& frenchGreyGreen() {
    static const Scheme scheme{
        .base = hex(0x666B55),
        .patches = {{.colour = hex(0x6F735C), .size = 60.0, .level = 0.5, .soft = 0.15, .seed = 5}},
        .dustAmount = 0.24,
        .seed = 45};
    return scheme;
}

const Scheme& italianGreyGreen() {
    static const Scheme scheme{
        .base = hex(0x878668),
        .patches = {{.colour = hex(0x908E70), .size = 60.0, .level = 0.5, .soft = 0.15, .seed = 7}},
        .dustAmount = 0.24,
        .seed = 47};
    return scheme;
}

const Scheme& japaneseKhaki() {
    static const Scheme scheme{
        .base = hex(0x7C7148),
        .patches = {{.colour = hex(0x857A52), .size = 60.0, .level = 0.5, .soft = 0.15, .seed = 9}},
        .dustAmount = 0.24,
        .seed = 49};
    return scheme;
}

const Scheme& luftwaffeGreen() {
    static const Scheme scheme{
        .base = hex(0x4F5A44),
        .patches = {{.colour = hex(0x566149), .size = 90.0, .level = 0.5, .soft = 0.15, .seed = 3}},
        .dustAmount = 0.08,
        .seed = 51};
    return scheme;
}

const Scheme& sovietAirGreen() {
    static const Scheme scheme{
        .base = hex(0x56664A),
        .patches = {{.colour = hex(0x5F6F50), .size = 120.0, .level = 0.5, .soft = 0.15, .seed = 5}},
        .dustAmount = 0.08,
        .seed = 53};
    return scheme;
}

const Scheme& sovietAirGreenBrown() {
    static const Scheme scheme{
        .base = hex(0x56664A),
        .patches =
            {{.colour = hex(0x7C6246), .size = 230.0, .level = 0.53, .soft = 0.012, .turn = 30.0, .seed = 7},
             {.colour = hex(0x3C4434),
              .size = 200.0,
              .level = 0.585,
              .soft = 0.012,
              .turn = -40.0,
              .seed = 19}},
        .dustAmount = 0.08,
        .seed = 55};
    return scheme;
}

const Scheme& sovietHelicopter() {
    static const Scheme scheme{
        .base = hex(0x9C8B62),
        .patches =
            {{.colour = hex(0x55613F), .size = 230.0, .level = 0.505, .soft = 0.01, .turn = 25.0, .seed = 7}},
        .dustAmount = 0.08,
        .seed = 57};
    return scheme;
}

const Scheme& darkGreyGreen() {
    static const Scheme scheme{
        .base = hex(0x454B42),
        .patches = {{.colour = hex(0x4D5349), .size = 120.0, .level = 0.5, .soft = 0.15, .seed = 11}},
        .dustAmount = 0.08,
        .seed = 59};
    return scheme;
}

const Scheme& naturalMetal() {
    static const Scheme scheme{.base = hex(0xAEB1B2),
                               .patches = {{.colour = hex(0xBCC0C2),
                                            .size = 70.0,
                                            .level = 0.52,
                                            .soft = 0.04,
                                            .stretch = {1.0, 0.5},
                                            .seed = 13},
                                           {.colour = hex(0x9A9D9E),
                                            .size = 60.0,
                                            .level = 0.60,
                                            .soft = 0.04,
                                            .stretch = {0.6, 1.0},
                                            .seed = 15}},
                               .dustAmount = 0.08,
                               .seed = 61};
    return scheme;
}

const Scheme& britishAirDay() {
    static const Scheme scheme{.base = hex(0x5A6150),
                               .patches = {{.colour = hex(0x6C7274),
                                            .size = 240.0,
                                            .level = 0.505,
                                            .soft = 0.012,
                                            .turn = 40.0,
                                            .seed = 17}},
                               .dustAmount = 0.08,
                               .seed = 63};
    return scheme;
}

const Scheme& britishAirDesert() {
    static const Scheme scheme{.base = hex(0xA98F63),
                               .patches = {{.colour = hex(0x6B4F38),
                                            .size = 230.0,
                                            .level = 0.51,
                                            .soft = 0.012,
                                            .turn = -35.0,
                                            .seed = 23}},
                               .dustAmount = 0.08,
                               .seed = 65};
    return scheme;
}

const Scheme& bareSteel() {
    static const Scheme scheme{.base = hex(0x4C4A46), .dustAmount = 0.1, .wear = 0.5, .seed = 48};
    return scheme;
}

} // namespace artwork
