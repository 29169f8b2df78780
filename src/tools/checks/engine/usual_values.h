#pragma once
// What is usual: the values of all units or weapons of a kind, and which lie apart from all others.

#include "data/field.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// A figure that is compared among units or weapons of a kind: a value, or what two of them come to.
struct UsualFigure {
    FieldId field;          ///< that is to be mended
    std::string_view label; ///< for people
    std::string_view unit = {};
};

/// Figures and kinds are few; values are told by both.
struct ByFigureAndKind {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the library asks for this name
    template <typename A, typename B>
    bool operator()(const A& a, const B& b) const {
        return a.first != b.first ? std::less<>()(a.first, b.first)
                                  : std::string_view(a.second) < std::string_view(b.second);
    }
};

/// The values found so far. Kinds are unit types, weapon types, or flavours and weapon types.
using ValueSamples =
    std::map<std::pair<const UsualFigure*, std::string>, std::vector<float>, ByFigureAndKind>;

void addSamples(ValueSamples& samples, const SquadRecord& unit);
void addSamples(ValueSamples& samples, const WeaponRecord& weapon);

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
    UsualValues() = default;
    explicit UsualValues(const ValueSamples& samples);

    [[nodiscard]] std::vector<UnusualValue> unusual(const SquadRecord& unit) const;
    [[nodiscard]] std::vector<UnusualValue> unusual(const WeaponRecord& weapon) const;

    struct Range {
        double least = 0;
        double greatest = 0;
    };

private:
    std::map<std::pair<const UsualFigure*, std::string>, Range, ByFigureAndKind> ranges_;
};

} // namespace varrocade
