#pragma once

#include "geometry.h"
#include "shape.h"

#include <cstdint>
#include <vector>

namespace artwork {

/// The height of a part over its outline, in centimetres above the frame it is placed in.
struct Form {
    enum class Kind : std::uint8_t { Plane, Tube, Raise };
    enum class Edge : std::uint8_t { Sharp, Chamfer, Round };

    Kind kind = Kind::Plane;
    Edge edge = Edge::Sharp;
    bool highest = false; ///< covers only what is lower than itself
    double z = 0.0;
    Vec2 gradient{};        ///< of a plane, rise a centimetre
    Vec2 from{}, to{};      ///< axis of a tube
    double radius0 = 0.0;   ///< of a tube at `from`
    double radius1 = 0.0;   ///< of a tube at `to`
    double edgeWidth = 0.0; ///< how far in from the outline the edge reaches
    double edgeDrop = 0.0;  ///< how much lower the outline itself lies
    double roughness = 0.0; ///< height of cast or woven grain

    [[nodiscard]] Form rounded(double width, double drop) const;
    [[nodiscard]] Form chamfered(double width, double drop) const;
    [[nodiscard]] Form rough(double amount) const;
    [[nodiscard]] Form onlyHigher() const;
};

/// A level plate at height z.
Form flat(double z);
/// A plane with height z0 at p0, z1 at p1, level across.
Form slope(Vec2 p0, double z0, Vec2 p1, double z1);
/// A plane through three points.
Form plane(Vec2 a, double za, Vec2 b, double zb, Vec2 c, double zc);
/// A round bar or cone lying with its axis at height z.
Form tube(Vec2 from, Vec2 to, double radius0, double radius1, double z);
/// What is there already, higher by dz (lower when negative); nothing where nothing is.
Form raise(double dz);

/// What a part is covered with.
struct Paint {
    Rgb colour{};
    double scheme = 0.0; ///< how much of the vehicle's paint scheme shows instead of `colour`, 0 to 1
    double gloss = 0.0;
    double dirt = 1.0; ///< how readily dust and wear settle on it
};

namespace paints {
inline constexpr Paint Hull{.colour = {}, .scheme = 1.0, .gloss = 0.06};
inline constexpr Paint Steel{.colour = hex(0x4A4845), .gloss = 0.35};
inline constexpr Paint DarkSteel{.colour = hex(0x2E2C2A), .gloss = 0.3};
inline constexpr Paint TrackSteel{.colour = hex(0x4B423A), .gloss = 0.22};
inline constexpr Paint WornSteel{.colour = hex(0x8A857C), .gloss = 0.5};
inline constexpr Paint Rubber{.colour = hex(0x2A2927), .gloss = 0.04};
inline constexpr Paint Rust{.colour = hex(0x5C3E2C)};
inline constexpr Paint Wood{.colour = hex(0x8A6A45), .gloss = 0.05};
inline constexpr Paint DarkWood{.colour = hex(0x5E4630), .gloss = 0.05};
inline constexpr Paint Glass{.colour = hex(0x2C3A40), .gloss = 0.9, .dirt = 0.2};
inline constexpr Paint Lens{.colour = hex(0xB9BEB8), .gloss = 0.9, .dirt = 0.3};
inline constexpr Paint Leather{.colour = hex(0x4B3A2B), .gloss = 0.1};
inline constexpr Paint Canvas{.colour = hex(0x7C7556)};
inline constexpr Paint Cable{.colour = hex(0x55524C), .gloss = 0.25};
inline constexpr Paint Dark{.colour = hex(0x141312), .dirt = 0.4};
inline constexpr Paint Soot{.colour = hex(0x1C1917), .dirt = 0.3};
inline constexpr Paint Brass{.colour = hex(0x9A7B3C), .gloss = 0.5};
} // namespace paints

/// A picture in the making: height, colour and finish of every point, seen from straight above
/// (or, for profiles, from the side), several samples a pixel.
class Relief {
public:
    static constexpr int Samples = 3; ///< a pixel's edge

    /// A drawing area of so many pixels around the origin of the centimetres.
    Relief(int pixelWidth, int pixelHeight, double pixelsPerCm);

    void add(const Shape& shape, const Form& form, const Paint& paint = paints::Hull);
    /// Colour alone: markings, soot, stains. `soft` fades the colour in from the outline over so many
    /// centimetres.
    void stain(const Shape& shape, Rgb colour, double opacity, double soft = 0.0);
    /// Makes what is there see-through: 0 removes it, 1 leaves it.
    void thin(const Shape& shape, double keep);

    /// The part drawn while this lives stands at a pose within the frame around it.
    class Placed {
    public:
        Placed(Relief& relief, const Pose& pose) : relief_(relief), saved_(relief.frame_) {
            relief.frame_ = saved_.placed(pose);
        }
        ~Placed() { relief_.frame_ = saved_; }
        Placed(const Placed&) = delete;
        Placed& operator=(const Placed&) = delete;
        Placed(Placed&&) = delete;
        Placed& operator=(Placed&&) = delete;

    private:
        Relief& relief_;
        Frame saved_;
    };
    [[nodiscard]] Placed place(const Pose& pose) { return {*this, pose}; }
    /// The same, standing on what is drawn at that point already.
    [[nodiscard]] Placed placeOn(Pose pose) {
        pose.z += heightAt({pose.x, pose.y}) / frame_.scale;
        return {*this, pose};
    }
    /// The height drawn at a point of the current frame, counted from that frame's own level.
    [[nodiscard]] double heightAt(Vec2 point) const;

    /// One sample; colour is multiplied with (1 - scheme) already.
    struct Sample {
        float height = 0.0F;
        float alpha = 0.0F;
        float r = 0.0F, g = 0.0F, b = 0.0F;
        float scheme = 0.0F;
        float gloss = 0.0F;
        float dirt = 0.0F;
    };

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] double samplesPerCm() const { return samplesPerCm_; }
    [[nodiscard]] Sample& at(int x, int y) { return samples_[index(x, y)]; }
    [[nodiscard]] const Sample& at(int x, int y) const { return samples_[index(x, y)]; }
    /// The centimetres at a sample's centre.
    [[nodiscard]] Vec2 position(int x, int y) const;

private:
    struct Mask;
    [[nodiscard]] std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    [[nodiscard]] Mask rasterise(const Shape& shape, bool distances) const;
    [[nodiscard]] Frame toSamples() const;

    int width_;
    int height_;
    double samplesPerCm_;
    Frame frame_;
    std::vector<Sample> samples_;
};

} // namespace artwork
