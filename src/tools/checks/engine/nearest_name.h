#pragma once
// The known name that a misspelt one probably means.

#include <cstddef>
#include <string>
#include <string_view>

namespace varrocade {

/// How many letters must be put in, taken out, changed or swapped with the next to turn one text into the
/// other, letter case aside; more than `limit` where it is more.
std::size_t editDistance(std::string_view a, std::string_view b, std::size_t limit);

/// Collects the nearest of many names. Names too far away to be meant do not count.
class NearestName {
public:
    explicit NearestName(std::string_view wanted);

    void offer(std::string_view name);
    template <typename Names>
    NearestName& offerAll(const Names& names) {
        for (const auto& name : names) {
            offer(name);
        }
        return *this;
    }

    /// Empty where none is near enough.
    [[nodiscard]] const std::string& name() const { return best_; }
    /// The same where no other name is as near: then it can be nothing else.
    [[nodiscard]] const std::string& onlyName() const;
    /// `did you mean "X"?`; empty without a name.
    [[nodiscard]] std::string hint() const;

private:
    std::string_view wanted_;
    std::size_t distance_;
    std::string best_;
    bool isOnly_ = true;
};

} // namespace varrocade
