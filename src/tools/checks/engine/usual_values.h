#pragma once
// What is usual: the values of all units or weapons of a kind, and which lie apart from all others.

#include "analysis/compared_figures.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// Figures and kinds are few; values are told by both.
struct ByFigureAndKind {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the library asks for this name
    template <typename A, typename B>
    bool operator()(const A& a, const B& b) const {
        return a.first != b.first ? std::less<>()(a.first, b.first)
                                  : std::string_view(a.second) < std::string_view(b.second);
    }
};

/// A value and whose it is, by the number that the caller has for that.
struct ValueSample {
    float value = 0;
    std::uint32_t owner = 0;
};

/// The values found so far. Kinds are unit types, weapon types, or flavours and weapon types.
using ValueSamples =
    std::map<std::pair<const UsualFigure*, std::string>, std::vector<ValueSample>, ByFigureAndKind>;

void addSamples(ValueSamples& samples, const SquadRecord& unit, std::uint32_t owner);
void addSamples(ValueSamples& samples, const WeaponRecord& weapon, std::uint32_t owner);

/// A value apart from those of its kind.
struct UnusualValue {
    std::string path; ///< from the record on
    const UsualFigure* figure;
    std::string kind; ///< for people
    double value;
    double least; ///< the range that it would have to lie in
    double greatest;
};

/// The ranges that the values of each kind lie in.
class UsualValues {
public:
    /// Learns the ranges of all kinds that there are samples of.
    void learn(const ValueSamples& samples);

    [[nodiscard]] std::vector<UnusualValue> unusual(const SquadRecord& unit) const;
    [[nodiscard]] std::vector<UnusualValue> unusual(const WeaponRecord& weapon) const;
    /// The owners of samples that lie apart, some of them several times: all that `unusual` has something to
    /// say about. Samples are rounded, so that one on the border may be none after all.
    [[nodiscard]] std::vector<std::uint32_t> ownersOfUnusual(const ValueSamples& samples) const;

    struct Range {
        double least = 0;
        double greatest = 0;
    };

private:
    [[nodiscard]] Range rangeOf(const UsualFigure& what, std::string_view kind) const;

    std::map<std::pair<const UsualFigure*, std::string>, Range, ByFigureAndKind> ranges_;
};

} // namespace varrocade
