#include "develop.h"

#include "noise.h"

#include <algorithm>
#include <array>

namespace artwork {

namespace {

// the sun: from the upper left of the picture, 50 degrees above the horizon
constexpr double SunX = -0.40;
constexpr double SunY = 0.50;
constexpr double SunZ = 0.768;
constexpr double SunLevel = 0.6403; // of (SunX, SunY)
constexpr double Ambient = 0.40;
constexpr double Sun = 0.80;

/// One value a sample.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    Plane(int w, int h)
        : width(w), height(h), values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
    [[nodiscard]] float& at(int x, int y) {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
    [[nodiscard]] float at(int x, int y) const {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

void blurLine(float* line, int count, std::ptrdiff_t stride, int radius, std::vector<float>& scratch) {
    scratch.assign(static_cast<std::size_t>(count) + 1, 0.0F);
    for (int i = 0; i < count; ++i) {
        scratch[static_cast<std::size_t>(i) + 1] = scratch[static_cast<std::size_t>(i)] + line[i * stride];
    }
    const float norm = 1.0F / static_cast<float>(2 * radius + 1);
    for (int i = 0; i < count; ++i) {
        const int low = std::max(0, i - radius);
        const int high = std::min(count - 1, i + radius);
        line[i * stride] =
            (scratch[static_cast<std::size_t>(high) + 1] - scratch[static_cast<std::size_t>(low)]) * norm;
    }
}

/// Two box blurs each way, close to a Gaussian; beyond the border counts as 0.
void blur(Plane& plane, int radius) {
    std::vector<float> scratch;
    for (int pass = 0; pass < 2; ++pass) {
        for (int y = 0; y < plane.height; ++y) {
            blurLine(&plane.at(0, y), plane.width, 1, radius, scratch);
        }
        for (int x = 0; x < plane.width; ++x) {
            blurLine(&plane.at(x, 0), plane.height, plane.width, radius, scratch);
        }
    }
}

/// Mean height around each sample, counting covered samples only.
Plane meanHeight(const Relief& relief, double radiusCm) {
    const int radius = std::max(1, static_cast<int>(radiusCm * relief.samplesPerCm() * 0.7));
    Plane height(relief.width(), relief.height());
    Plane weight(relief.width(), relief.height());
    for (int y = 0; y < relief.height(); ++y) {
        for (int x = 0; x < relief.width(); ++x) {
            const auto& s = relief.at(x, y);
            height.at(x, y) = s.height * s.alpha;
            weight.at(x, y) = s.alpha;
        }
    }
    blur(height, radius);
    blur(weight, radius);
    for (std::size_t i = 0; i < height.values.size(); ++i) {
        height.values[i] = weight.values[i] > 1e-4F ? height.values[i] / weight.values[i] : 0.0F;
    }
    return height;
}

float highestSample(const Relief& relief) {
    float top = 0.0F;
    for (int y = 0; y < relief.height(); ++y) {
        for (int x = 0; x < relief.width(); ++x) {
            const auto& s = relief.at(x, y);
            top = s.alpha > 0.5F ? std::max(top, s.height) : top;
        }
    }
    return top;
}

/// The heights alone, packed for the many steps towards the sun; far below where nothing is.
Plane heightsOf(const Relief& relief) {
    Plane plane(relief.width(), relief.height());
    for (int y = 0; y < relief.height(); ++y) {
        for (int x = 0; x < relief.width(); ++x) {
            const auto& s = relief.at(x, y);
            plane.at(x, y) = s.alpha < 0.5F ? -1e6F : s.height;
        }
    }
    return plane;
}

/// How much of the sun something nearer to it takes away, 0 to 1, its edge softer with distance.
double shadowAt(const Plane& heights, double perCm, int x, int y, double z, double top, double reachCm) {
    const double rise = SunZ / SunLevel;
    double dark = 0.0;
    const double limit = std::min(reachCm, (top - z) / rise) * perCm;
    for (double d = 1.5; d < limit && dark < 1.0; d += 1.5 + d * 0.03) {
        const int sx = x - static_cast<int>(-SunX / SunLevel * d);
        const int sy = y - static_cast<int>(SunY / SunLevel * d);
        if (sx < 0 || sy < 0) {
            break;
        }
        const double cm = d / perCm;
        const double above = static_cast<double>(heights.at(sx, sy)) - (z + cm * rise);
        dark = std::max(dark, clamp01(above / (0.6 + 0.10 * cm)));
    }
    return dark;
}

struct Surroundings {
    Plane heights, near, middle, far, edge, cover;
};

Plane coverage(const Relief& relief, double radiusCm) {
    Plane plane(relief.width(), relief.height());
    for (int y = 0; y < relief.height(); ++y) {
        for (int x = 0; x < relief.width(); ++x) {
            plane.at(x, y) = relief.at(x, y).alpha;
        }
    }
    blur(plane, std::max(1, static_cast<int>(radiusCm * relief.samplesPerCm() * 0.7)));
    return plane;
}

Vec2 gradientAt(const Relief& relief, int x, int y) {
    const auto& here = relief.at(x, y);
    const auto heightOf = [&](int nx, int ny) {
        if (nx < 0 || ny < 0 || nx >= relief.width() || ny >= relief.height()) {
            return here.height;
        }
        const auto& s = relief.at(nx, ny);
        return s.alpha < 0.5F ? here.height : s.height;
    };
    const double k = relief.samplesPerCm() / 2.0;
    return {(static_cast<double>(heightOf(x + 1, y)) - static_cast<double>(heightOf(x - 1, y))) * k,
            (static_cast<double>(heightOf(x, y - 1)) - static_cast<double>(heightOf(x, y + 1))) * k};
}

/// What changes slowly over the picture: worked out once a pixel.
struct Weather {
    Rgb paint;
    double cloud = 0.5;
    double speck = 0.5;
    double dust = 0.0;
    double mud = 0.0;
};

Weather weatherAt(const Scheme& scheme, Vec2 at) {
    return {.paint = schemeColour(scheme, at),
            .cloud = cloudNoise(at.x / 38.0, at.y / 38.0, 3, scheme.seed + 5),
            .speck = cloudNoise(at.x / 5.0, at.y / 5.0, 2, scheme.seed + 9),
            .dust = 0.35 + 1.5 * (cloudNoise(at.x / 55.0, at.y / 55.0, 4, scheme.seed + 21) - 0.4),
            .mud = smoothstep(0.40, 0.62, cloudNoise(at.x / 16.0, at.y / 22.0, 4, scheme.seed + 33))};
}

/// `height` is a share of the highest point, `level` how level the surface lies.
Rgb weathered(const Scheme& scheme, const Weather& weather, const Relief::Sample& s, double level,
              double corner, double edge, double height, double mud) {
    const auto part = static_cast<double>(s.scheme);
    Rgb colour{static_cast<double>(s.r) + weather.paint.r * part,
               static_cast<double>(s.g) + weather.paint.g * part,
               static_cast<double>(s.b) + weather.paint.b * part};
    const auto dirt = static_cast<double>(s.dirt);
    colour = scaled(colour, 1.0 + scheme.fade * 2.0 * (weather.cloud - 0.5) + 0.05 * (weather.speck - 0.5));
    const double chips = smoothstep(0.06, 0.34, edge) * smoothstep(0.35, 0.75, weather.speck);
    colour = mix(colour, mix(scaled(colour, 1.25), scheme.chip, 0.45), clamp01(chips * scheme.wear * dirt));
    colour = mix(colour, scheme.dust,
                 clamp01(scheme.dustAmount * dirt * level * clamp01(weather.dust + 0.6 * corner)));
    const double low = 1.0 - smoothstep(0.30, 0.72, height);
    colour = mix(colour, scaled(scheme.dust, 0.62), mud * low * weather.mud * std::min(1.0, dirt));
    const double wash = corner * scheme.wash * std::min(1.0, dirt);
    return mix(colour, scaled(mix(colour, hex(0x2A2119), 0.6), 0.5), clamp01(wash));
}

/// What lights a picture, gathered once for all samples.
struct Scene {
    const Relief& relief;
    const Scheme& scheme;
    const Developing& how;
    Surroundings around;
    double top = 0.0;
};

Rgb lit(const Scene& scene, const Weather& weather, int x, int y) {
    const auto& s = scene.relief.at(x, y);
    const Vec2 g = gradientAt(scene.relief, x, y);
    const double inverse = 1.0 / std::sqrt(1.0 + dot(g, g));
    const double nx = -g.x * inverse;
    const double ny = -g.y * inverse;
    const auto z = static_cast<double>(s.height);
    const auto above = [&](const Plane& plane) { return static_cast<double>(plane.at(x, y)) - z; };
    const double occlusion = 0.34 * clamp01(above(scene.around.near) / 2.2) +
                             0.30 * clamp01(above(scene.around.middle) / 9.0) +
                             0.30 * clamp01(above(scene.around.far) / 30.0);
    const double corner = clamp01(above(scene.around.edge) / 0.8);
    const double edge = clamp01(-above(scene.around.edge) / 1.2);
    const Rgb colour = weathered(scene.scheme, weather, s, inverse, corner, edge,
                                 z / std::max(1.0, scene.top), scene.how.mud);
    const double facing = std::max(0.0, nx * SunX + ny * SunY + inverse * SunZ);
    const double shadow = shadowAt(scene.around.heights, scene.relief.samplesPerCm(), x, y, z, scene.top,
                                   scene.how.shadowLength);
    const double direct = Sun * facing * (1.0 - 0.82 * shadow);
    const double indirect = Ambient * (0.55 + 0.45 * inverse) * (1.0 - occlusion);
    const double light = direct + indirect + 0.10 * edge;
    // half vector between the sun and the eye straight above
    const double half = std::max(0.0, (nx * SunX + ny * SunY + inverse * (SunZ + 1.0)) / 1.8804);
    const double shine = static_cast<double>(s.gloss) * std::pow(half, 24.0) * 0.55 * (1.0 - shadow);
    const auto tone = [&](double c) {
        const double linear = c * c * light + shine * shine;
        return std::sqrt(linear / (1.0 + 0.12 * linear));
    };
    const double cover = static_cast<double>(scene.around.cover.at(x, y));
    const double rim = 1.0 - scene.how.rim * (1.0 - smoothstep(0.5, 0.95, cover));
    return scaled({tone(colour.r), tone(colour.g), tone(colour.b)}, rim);
}

/// Steps of the stored channels: the eye does not see them, and the PNG files are much smaller.
double stepped(double v) {
    return std::round(v * 85.0) / 85.0;
}

void addGroundShadow(const Relief& relief, const Developing& how, Plane& shadow) {
    shadow = coverage(relief, how.groundBlur);
    const Plane copy = shadow;
    const int offset = static_cast<int>(how.groundOffset * relief.samplesPerCm());
    for (int y = 0; y < shadow.height; ++y) {
        for (int x = 0; x < shadow.width; ++x) {
            const int sx = x - offset * 2 / 3;
            const int sy = y - offset * 3 / 4;
            shadow.at(x, y) =
                sx >= 0 && sy >= 0 ? copy.at(sx, sy) * static_cast<float>(how.groundShadow) : 0.0F;
        }
    }
}

/// One pixel from its samples.
std::uint32_t developPixel(const Scene& scene, const Plane& shadow, int px, int py) {
    constexpr int n = Relief::Samples;
    Rgb sum;
    double alpha = 0.0;
    double dark = 0.0;
    Weather weather;
    bool weatherKnown = false;
    for (int k = 0; k < n * n; ++k) {
        const int x = px * n + k % n;
        const int y = py * n + k / n;
        const auto a = static_cast<double>(scene.relief.at(x, y).alpha);
        dark += static_cast<double>(shadow.at(x, y)) * (1.0 - a);
        if (a < 0.01) {
            continue;
        }
        if (!weatherKnown) {
            weather = weatherAt(scene.scheme, scene.relief.position(px * n + n / 2, py * n + n / 2));
            weatherKnown = true;
        }
        const Rgb c = lit(scene, weather, x, y);
        sum = {sum.r + c.r * a, sum.g + c.g * a, sum.b + c.b * a};
        alpha += a;
    }
    const double total = (alpha + dark) / (n * n);
    if (total <= 0.004) {
        return 0;
    }
    const double share = 1.0 / (alpha + dark);
    return packPixel({stepped(sum.r * share), stepped(sum.g * share), stepped(sum.b * share)}, total);
}

} // namespace

Picture develop(const Relief& relief, const Scheme& scheme, const Developing& how) {
    const double pixel = Relief::Samples / relief.samplesPerCm(); // in cm
    const Scene scene{relief,
                      scheme,
                      how,
                      {heightsOf(relief), meanHeight(relief, 2.5 * std::max(1.0, pixel)),
                       meanHeight(relief, 10.0), meanHeight(relief, 34.0),
                       meanHeight(relief, 1.3 * std::max(1.0, pixel)), coverage(relief, 1.6 * pixel)},
                      static_cast<double>(highestSample(relief))};
    Plane shadow(relief.width(), relief.height());
    if (how.groundShadow > 0.0) {
        addGroundShadow(relief, how, shadow);
    }
    Picture picture{relief.width() / Relief::Samples, relief.height() / Relief::Samples, {}};
    picture.pixels.reserve(static_cast<std::size_t>(picture.width) *
                           static_cast<std::size_t>(picture.height));
    for (int py = 0; py < picture.height; ++py) {
        for (int px = 0; px < picture.width; ++px) {
            picture.pixels.push_back(developPixel(scene, shadow, px, py));
        }
    }
    return picture;
}

} // namespace artwork
