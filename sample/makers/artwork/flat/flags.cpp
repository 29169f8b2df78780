#include "canvas.h"
#include "flat/flat.h"

#include <array>
#include <string>

namespace artwork {

namespace {

constexpr double W = 60.0; // the cloth's own units
constexpr double H = 40.0;

constexpr Rgb White = hex(0xF4F2EC);
constexpr Rgb Black = hex(0x1C1B1A);
constexpr Rgb Red = hex(0xC22F2B);
constexpr Rgb DeepRed = hex(0xB01E28);
constexpr Rgb Green = hex(0x2C7A3F);
constexpr Rgb Blue = hex(0x27468F);
constexpr Rgb LightBlue = hex(0x2F7FB8);
constexpr Rgb Yellow = hex(0xF2C53C);
constexpr Rgb Orange = hex(0xE58A2E);

void rows(Canvas& c, std::initializer_list<Rgb> colours) {
    const double step = H / static_cast<double>(colours.size());
    double y = 0.0;
    for (const Rgb colour : colours) {
        c.rect(0, y, W, step + 0.1, colour);
        y += step;
    }
}

void columns(Canvas& c, std::initializer_list<Rgb> colours) {
    const double step = W / static_cast<double>(colours.size());
    double x = 0.0;
    for (const Rgb colour : colours) {
        c.rect(x, 0, step + 0.1, H, colour);
        x += step;
    }
}

void unionJack(Canvas& c, double w, double h) {
    c.clip(0, 0, w, h);
    c.rect(0, 0, w, h, Blue);
    const double k = h / 40.0;
    c.line({0, 0}, {w, h}, 8.0 * k, White);
    c.line({w, 0}, {0, h}, 8.0 * k, White);
    c.line({0, 1.3 * k}, {w / 2, h / 2 + 1.3 * k}, 2.6 * k, Red);
    c.line({w, h - 1.3 * k}, {w / 2, h / 2 - 1.3 * k}, 2.6 * k, Red);
    c.line({w, -1.3 * k}, {w / 2, h / 2 - 1.3 * k}, 2.6 * k, Red);
    c.line({0, h + 1.3 * k}, {w / 2, h / 2 + 1.3 * k}, 2.6 * k, Red);
    c.rect(w / 2 - 6.6 * k, 0, 13.2 * k, h, White);
    c.rect(0, h / 2 - 6.6 * k, w, 13.2 * k, White);
    c.rect(w / 2 - 4.0 * k, 0, 8.0 * k, h, Red);
    c.rect(0, h / 2 - 4.0 * k, w, 8.0 * k, Red);
    c.unclip();
}

void american(Canvas& c) {
    for (int i = 0; i < 13; ++i) {
        c.rect(0, H * i / 13, W, H / 13 + 0.1, i % 2 == 0 ? Red : White);
    }
    c.rect(0, 0, 26, H * 7 / 13, Blue);
    for (int row = 0; row < 9; ++row) {
        for (int i = 0; i < (row % 2 == 0 ? 6 : 5); ++i) {
            c.star({2.4 + i * 4.25 + (row % 2 == 0 ? 0.0 : 2.12), 2.3 + row * 2.12}, 1.15, White);
        }
    }
}

void armenian(Canvas& c) {
    rows(c, {Red, Blue, Orange});
}

void australian(Canvas& c) {
    c.rect(0, 0, W, H, Blue);
    unionJack(c, 30, 20);
    c.star({15, 30}, 5.2, White, 0, 7, 0.45);
    for (const Vec2 at : {Vec2{46, 7}, Vec2{39, 17}, Vec2{53, 15}, Vec2{46, 32}}) {
        c.star(at, 2.8, White, 0, 7, 0.45);
    }
    c.star({49.5, 21}, 1.6, White);
}

void austrian(Canvas& c) {
    rows(c, {Red, White, Red});
}

void azerbaijani(Canvas& c) {
    rows(c, {LightBlue, Red, Green});
    c.crescent({29, 20}, 4.6, 3.8, {1.6, 0}, White);
    c.star({33.4, 20}, 2.6, White, 0, 8, 0.6);
}

void belgian(Canvas& c) {
    columns(c, {Black, Yellow, Red});
}

void british(Canvas& c) {
    unionJack(c, W, H);
}

void canadian(Canvas& c) {
    c.rect(0, 0, W, H, White);
    c.rect(0, 0, 15, H, Red);
    c.rect(45, 0, 15, H, Red);
    c.polygon({{30, 7},      {32.2, 11.5}, {35, 10.2},   {33.8, 17},  {37, 14},     {38, 16.2}, {42, 15.6},
               {40.4, 19.4}, {42, 20.6},   {35.4, 25.6}, {36, 28.4},  {30.7, 27.6}, {30.8, 34}, {29.2, 34},
               {29.3, 27.6}, {24, 28.4},   {24.6, 25.6}, {18, 20.6},  {19.6, 19.4}, {18, 15.6}, {22, 16.2},
               {23, 14},     {26.2, 17},   {25, 10.2},   {27.8, 11.5}},
              Red);
}

void chinese(Canvas& c) {
    c.rect(0, 0, W, H, Red);
    c.star({10, 10}, 6.0, Yellow);
    for (const auto& [x, y, angle] : {std::array{20.0, 4.0, 30.0}, std::array{24.0, 8.0, 12.0},
                                      std::array{24.0, 14.0, -8.0}, std::array{20.0, 18.0, -30.0}}) {
        c.star({x, y}, 2.1, Yellow, angle);
    }
}

void dutch(Canvas& c) {
    rows(c, {Red, White, Blue});
}

void egyptian(Canvas& c) {
    rows(c, {Red, White, Black});
    const Rgb gold = hex(0xC09A3C);
    c.polygon({{30, 14.5},
               {32, 16.5},
               {36, 15},
               {35.4, 22},
               {32.5, 21},
               {33, 25.5},
               {27, 25.5},
               {27.5, 21},
               {24.6, 22},
               {24, 15},
               {28, 16.5}},
              gold);
    c.rect(28.6, 18.4, 2.8, 4.4, White);
    c.rect(28.6, 18.4, 0.93, 4.4, Red);
    c.rect(30.47, 18.4, 0.93, 4.4, Black);
}

void finnish(Canvas& c) {
    c.rect(0, 0, W, H, White);
    c.rect(16, 0, 10, H, hex(0x1F4E9B));
    c.rect(0, 15, W, 10, hex(0x1F4E9B));
}

void french(Canvas& c) {
    columns(c, {Blue, White, Red});
}

void georgian(Canvas& c) {
    c.rect(0, 0, W, H, White);
    c.rect(26, 0, 8, H, Red);
    c.rect(0, 16, W, 8, Red);
    for (const Vec2 at : {Vec2{13, 8}, Vec2{47, 8}, Vec2{13, 32}, Vec2{47, 32}}) {
        c.rect(at.x - 4, at.y - 1.2, 8, 2.4, Red);
        c.rect(at.x - 1.2, at.y - 4, 2.4, 8, Red);
    }
}

void german(Canvas& c) {
    rows(c, {Black, White, Red});
    // straight-armed cross
    c.rect(26.5, 11, 7, 18, Black);
    c.rect(21, 16.5, 18, 7, Black);
    c.rect(27.7, 11, 4.6, 18, White);
    c.rect(21, 17.7, 18, 4.6, White);
    c.rect(28.5, 11, 3.0, 18, Black);
    c.rect(21, 18.5, 18, 3.0, Black);
}

void hungarian(Canvas& c) {
    rows(c, {Red, White, Green});
}

void indian(Canvas& c) {
    rows(c, {Orange, White, Green});
    c.disc(30, 20, 5.4, Blue);
    c.disc(30, 20, 4.6, White);
    for (int i = 0; i < 12; ++i) {
        const Vec2 d = bearing(i * 15.0) * 5.0;
        c.line(Vec2{30, 20} - d, Vec2{30, 20} + d, 0.5, Blue);
    }
    c.disc(30, 20, 1.1, Blue);
}

void iranian(Canvas& c) {
    rows(c, {Green, White, Red});
    c.crescent({27.6, 20}, 4.0, 3.6, {-1.6, -0.4}, Red);
    c.crescent({32.4, 20}, 4.0, 3.6, {1.6, -0.4}, Red);
    c.rect(29.4, 15.2, 1.2, 9.6, Red);
}

void iraqi(Canvas& c) {
    rows(c, {Red, White, Black});
    for (const double x : {18.0, 30.0, 42.0}) {
        c.star({x, 20}, 4.4, Green);
    }
}

void israeli(Canvas& c) {
    const Rgb blue = hex(0x2457A6);
    c.rect(0, 0, W, H, White);
    c.rect(0, 4.5, W, 5.5, blue);
    c.rect(0, 30, W, 5.5, blue);
    for (const double turn : {0.0, 180.0}) {
        std::array<Vec2, 3> p;
        for (std::size_t i = 0; i < 3; ++i) {
            const Vec2 d = bearing(turn + static_cast<double>(i) * 120.0) * 7.0;
            p[i] = {30 + d.x, 20 - d.y};
        }
        for (std::size_t i = 0; i < 3; ++i) {
            c.line(p[i], p[(i + 1) % 3], 1.3, blue);
        }
    }
}

void italian(Canvas& c) {
    columns(c, {Green, White, Red});
    // arms of Savoy, as on the kingdom's flag
    c.polygon({{24, 12}, {36, 12}, {36, 22}, {30, 29}, {24, 22}}, hex(0x2D6DB5));
    c.polygon({{25.2, 13.2}, {34.8, 13.2}, {34.8, 21.6}, {30, 27.2}, {25.2, 21.6}}, Red);
    c.rect(28.6, 13.2, 2.8, 13.4, White);
    c.rect(25.2, 17.0, 9.6, 2.8, White);
}

void japanese(Canvas& c) {
    c.rect(0, 0, W, H, White);
    c.disc(30, 20, 12, hex(0xB8202E));
}

void jordanian(Canvas& c) {
    rows(c, {Black, White, Green});
    c.polygon({{0, 0}, {30, 20}, {0, 40}}, Red);
    c.star({10, 20}, 3.4, White, 0, 7, 0.5);
}

void kuwaiti(Canvas& c) {
    rows(c, {Green, White, Red});
    c.polygon({{0, 0}, {15, 13.33}, {15, 26.67}, {0, 40}}, Black);
}

void northKorean(Canvas& c) {
    c.rect(0, 0, W, H, Blue);
    c.rect(0, 6.6, W, 26.8, White);
    c.rect(0, 8.2, W, 23.6, Red);
    c.disc(21, 20, 8.8, White);
    c.star({21, 20}, 8.4, Red);
}

void northVietnamese(Canvas& c) {
    c.rect(0, 0, W, H, Red);
    c.star({30, 20.8}, 12, Yellow);
}

void pakistani(Canvas& c) {
    c.rect(0, 0, W, H, hex(0x1D5A35));
    c.rect(0, 0, 15, H, White);
    c.crescent({37, 20.5}, 9.4, 8.6, {2.6, -2.6}, White);
    c.star({42.5, 14.5}, 3.6, White, 40);
}

void polish(Canvas& c) {
    rows(c, {White, Red});
}

void romanian(Canvas& c) {
    columns(c, {Blue, Yellow, Red});
}

void russian(Canvas& c) {
    const Rgb gold = hex(0xE8C14A);
    c.rect(0, 0, W, H, hex(0xB5241F));
    c.star({13, 6}, 3.0, gold);
    c.star({13, 6}, 1.7, hex(0xB5241F));
    c.crescent({13, 15.5}, 5.4, 4.7, {-1.5, -1.3}, gold);
    c.line({9.6, 12.4}, {16.8, 19.8}, 1.5, gold);
    c.polygon({{7.4, 13.2}, {10.6, 9.8}, {12.4, 11.6}, {9.2, 15.0}}, gold);
    c.line({9.2, 20.4}, {11.0, 18.6}, 1.5, gold);
}

void southKorean(Canvas& c) {
    c.rect(0, 0, W, H, White);
    cairo_t* k = c.context();
    cairo_save(k);
    cairo_translate(k, 30, 20);
    cairo_rotate(k, radians(33.7));
    c.clip(-10, -10, 20, 10);
    c.disc(0, 0, 9.6, Red);
    c.unclip();
    c.clip(-10, 0, 20, 10);
    c.disc(0, 0, 9.6, Blue);
    c.unclip();
    c.disc(-4.8, 0, 4.8, Red);
    c.disc(4.8, 0, 4.8, Blue);
    cairo_restore(k);
    // four trigrams: which of the three bars are broken
    const auto trigram = [&](Vec2 at, double angle, std::array<bool, 3> broken) {
        cairo_save(k);
        cairo_translate(k, at.x, at.y);
        cairo_rotate(k, radians(angle));
        for (std::size_t i = 0; i < 3; ++i) {
            const double y = (static_cast<double>(i) - 1.0) * 2.2 - 0.75;
            c.rect(-4.2, y, 8.4, 1.5, Black);
            if (broken[i]) {
                c.rect(-0.5, y - 0.1, 1.0, 1.7, White);
            }
        }
        cairo_restore(k);
    };
    trigram({13, 8.5}, -56.3, {false, false, false});
    trigram({47, 31.5}, -56.3, {true, true, true});
    trigram({47, 8.5}, 56.3, {true, false, true});
    trigram({13, 31.5}, 56.3, {false, true, false});
}

void southVietnamese(Canvas& c) {
    c.rect(0, 0, W, H, Yellow);
    for (const double y : {13.0, 18.5, 24.0}) {
        c.rect(0, y, W, 3.0, Red);
    }
}

void syrian(Canvas& c) {
    rows(c, {Red, White, Black});
    c.star({20, 20}, 4.4, Green);
    c.star({40, 20}, 4.4, Green);
}

void turkish(Canvas& c) {
    c.rect(0, 0, W, H, DeepRed);
    c.crescent({22, 20}, 10, 8, {2.6, 0}, White);
    c.star({35, 20}, 5, White, -90);
}

void ukrainian(Canvas& c) {
    rows(c, {hex(0x2B62B5), Yellow});
}

struct Flag {
    std::string_view name;
    void (*draw)(Canvas&);
};

// the words of the nationalities, those spelt twice included
constexpr std::array<Flag, 39> Flags{{{"american", american},
                                      {"armenia", armenian},
                                      {"armenian", armenian},
                                      {"australian", australian},
                                      {"austrian", austrian},
                                      {"azerbaijan", azerbaijani},
                                      {"azerbaijani", azerbaijani},
                                      {"belgian", belgian},
                                      {"british", british},
                                      {"canadian", canadian},
                                      {"chinese", chinese},
                                      {"dutch", dutch},
                                      {"egyptian", egyptian},
                                      {"finland", finnish},
                                      {"finnish", finnish},
                                      {"french", french},
                                      {"georgian", georgian},
                                      {"german", german},
                                      {"hungarian", hungarian},
                                      {"indian", indian},
                                      {"iranian", iranian},
                                      {"iraqi", iraqi},
                                      {"israeli", israeli},
                                      {"italian", italian},
                                      {"japanese", japanese},
                                      {"jordanian", jordanian},
                                      {"kuwaiti", kuwaiti},
                                      {"kuwati", kuwaiti},
                                      {"north_korean", northKorean},
                                      {"north_vietnamese", northVietnamese},
                                      {"pakistani", pakistani},
                                      {"polish", polish},
                                      {"romanian", romanian},
                                      {"russian", russian},
                                      {"south_korean", southKorean},
                                      {"south_vietnamese", southVietnamese},
                                      {"syrian", syrian},
                                      {"turkish", turkish},
                                      {"ukrainian", ukrainian}}};

constexpr int PixelWidth = 60;
constexpr int PixelHeight = 40;
constexpr int Frames = 8;
constexpr int Fine = 4; ///< samples a pixel's edge

Picture cloth(const Flag& flag) {
    Canvas canvas(PixelWidth * Fine, PixelHeight * Fine, Fine);
    flag.draw(canvas);
    return canvas.picture();
}

std::size_t pixelIndex(int x, int y, int width) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
}

struct Unpacked {
    Rgb colour;
    double alpha = 0.0;
};

Unpacked unpack(std::uint32_t pixel) {
    return {hex(pixel & 0xFFFFFFU), (pixel >> 24) / 255.0};
}

/// The cloth hung from its left edge; `phase` runs from 0 to 1 over a wave, `swing` is its height in pixels.
Picture hang(const Picture& source, double phase, double swing, double inset) {
    Picture result{PixelWidth, PixelHeight, {}};
    result.pixels.reserve(static_cast<std::size_t>(PixelWidth) * PixelHeight);
    const double w = PixelWidth - 2.0 * inset;
    const double h = PixelHeight - 2.0 * inset;
    for (int py = 0; py < PixelHeight; ++py) {
        for (int px = 0; px < PixelWidth; ++px) {
            Rgb sum;
            double alpha = 0.0;
            for (int k = 0; k < Fine * Fine; ++k) {
                const double x = px + (k % Fine + 0.5) / Fine;
                const int line = k / Fine;
                const double y = py + (line + 0.5) / Fine;
                const double u = (x - inset) / w;
                const double angle = (u * 1.35 - phase) * 2.0 * std::numbers::pi;
                const double give = swing * smoothstep(0.0, 0.45, u);
                const double v = (y - inset - give * std::sin(angle)) / h;
                if (u < 0.0 || u >= 1.0 || v < 0.0 || v >= 1.0) {
                    continue;
                }
                const auto sx = static_cast<std::size_t>(u * PixelWidth * Fine);
                const auto sy = static_cast<std::size_t>(v * PixelHeight * Fine);
                const Unpacked s = unpack(source.pixels[sy * static_cast<std::size_t>(source.width) + sx]);
                const double light = 1.0 + 0.11 * give * std::cos(angle) / 3.0 - 0.10 * (v - 0.5) * 0.4;
                const double border = (u < 0.012 || u > 0.988 || v < 0.018 || v > 0.982) ? 0.72 : 1.0;
                sum = {sum.r + s.colour.r * light * border, sum.g + s.colour.g * light * border,
                       sum.b + s.colour.b * light * border};
                alpha += 1.0;
            }
            result.pixels.push_back(alpha > 0.0 ? packPixel(scaled(sum, 1.0 / alpha), alpha / (Fine * Fine))
                                                : 0U);
        }
    }
    return result;
}

} // namespace

void drawFlags(Album& album) {
    for (const Flag& flag : Flags) {
        const std::string still = "Flags/Static/" + std::string(flag.name) + ".png";
        const std::string waving = "Flags/Animated/" + std::string(flag.name) + ".png";
        if (album.wants(still)) {
            album.put(still, hang(cloth(flag), 0.0, 0.0, 0.0));
        }
        if (album.wants(waving)) {
            const Picture source = cloth(flag);
            Picture strip{PixelWidth * Frames, PixelHeight, {}};
            strip.pixels.resize(static_cast<std::size_t>(strip.width) * PixelHeight);
            for (int frame = 0; frame < Frames; ++frame) {
                const Picture one = hang(source, static_cast<double>(frame) / Frames, 2.6, 3.5);
                for (int y = 0; y < PixelHeight; ++y) {
                    for (int x = 0; x < PixelWidth; ++x) {
                        strip.pixels[pixelIndex(frame * PixelWidth + x, y, strip.width)] =
                            one.pixels[pixelIndex(x, y, PixelWidth)];
                    }
                }
            }
            album.put(waving, strip);
        }
    }
}

} // namespace artwork
