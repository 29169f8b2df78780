#include "app/workspace/positions.h"

namespace varrocade {

std::string_view unsavedPositionsQuestion(bool isUnitOpen, Category category, bool weaponPosChanged,
                                          bool exhaustPosChanged) {
    constexpr std::string_view weaponQuestion = "Save your changes to weapon positions?";
    if (!isUnitOpen) {
        return {};
    }
    if (category == Category::Aircraft) {
        return weaponPosChanged ? weaponQuestion : std::string_view();
    }
    if (category != Category::Vehicles) {
        return {};
    }
    if (weaponPosChanged && exhaustPosChanged) {
        return "Save your changes to weapon and exhaust positions?";
    }
    if (weaponPosChanged) {
        return weaponQuestion;
    }
    return exhaustPosChanged ? "Save your changes to exhaust positions?" : std::string_view();
}

} // namespace varrocade
