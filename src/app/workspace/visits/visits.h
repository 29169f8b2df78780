#pragma once
// Which records were open one after the other, to go back and forth between them as in a browser.

#include "data/category.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varrocade {

struct Visit {
    std::string base; ///< the base folder of the file
    Category category = Category::Vehicles;
    std::string name;
    bool operator==(const Visit&) const = default;
};

class Visits {
public:
    static constexpr std::size_t Most = 200;

    /// Another record is open. What one had gone back from is forgotten.
    void note(Visit visit);
    /// A file has another name.
    void rename(const Visit& former, const std::string& name);

    /// The one before or behind the present one that `isThere` still has; null where there is none.
    template <typename IsThere>
    [[nodiscard]] const Visit* before(IsThere isThere) const {
        for (std::size_t i = present_; i-- > 0;) {
            if (isThere(visits_[i])) {
                return &visits_[i];
            }
        }
        return nullptr;
    }
    template <typename IsThere>
    [[nodiscard]] const Visit* behind(IsThere isThere) const {
        for (std::size_t i = present_ + 1; i < visits_.size(); ++i) {
            if (isThere(visits_[i])) {
                return &visits_[i];
            }
        }
        return nullptr;
    }

    /// Goes to one of them, which is one that `before` or `behind` gave.
    void goTo(const Visit& visit) { present_ = static_cast<std::size_t>(&visit - visits_.data()); }

    [[nodiscard]] std::size_t present() const { return present_; }

private:
    std::vector<Visit> visits_;
    std::size_t present_ = 0;
};

} // namespace varrocade
