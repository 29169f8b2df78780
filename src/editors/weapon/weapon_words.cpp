#include "editors/weapon/weapon_words.h"

#include "weapons/ammo_words.h"
#include "weapons/weapon_names.h"

#include <deque>
#include <string>
#include <vector>

namespace varrocade {

namespace {

/// Words that are put together from the names of files.
template <typename Enum>
class WordTable {
public:
    WordTable() = default;
    WordTable(const WordTable&) = delete;
    WordTable(WordTable&&) noexcept = default;
    WordTable& operator=(const WordTable&) = delete;
    WordTable& operator=(WordTable&&) noexcept = default;
    ~WordTable() = default;

    void add(Enum value, std::string text) {
        words_.push_back({value, texts_.emplace_back(std::move(text))});
    }
    void add(Enum value, const std::string& word, std::string_view name) {
        add(value, word + " (" + std::string(name) + ")");
    }
    [[nodiscard]] std::span<const FormWord<Enum>> words() const { return words_; }

private:
    std::deque<std::string> texts_; ///< which stay where they are
    std::vector<FormWord<Enum>> words_;
};

/// A table of the names that files have, in their order, behind those that `table` has already.
template <typename Enum, typename ValueOf>
WordTable<Enum> wordsFor(std::span<const std::string_view> names, ValueOf valueOf,
                         WordTable<Enum> table = {}) {
    for (const std::string_view name : names) {
        table.add(valueOf(name), std::string(wordOf(valueOf(name))), name);
    }
    return table;
}

/// A mode that files do not name.
template <typename Enum>
WordTable<Enum> beginningWith(Enum none) {
    WordTable<Enum> table;
    table.add(none, std::string(wordOf(none)));
    return table;
}

} // namespace

std::span<const FormWord<WeaponType>> FormWords<WeaponType>::words() {
    static const auto table = wordsFor<WeaponType>(weaponTypeNames(), weaponTypeOf);
    return table.words();
}

std::span<const FormWord<AmmoFlavour>> FormWords<AmmoFlavour>::words() {
    static const auto table = [] {
        WordTable<AmmoFlavour> flavours;
        for (const std::string_view name : flavourNames()) {
            flavours.add(flavourOf(name), flavourWord(name), name);
        }
        return flavours;
    }();
    return table.words();
}

std::span<const FormWord<HeatEra>> FormWords<HeatEra>::words() {
    static const auto table = wordsFor<HeatEra>(
        heatEraNames(), [](std::string_view name) { return heatEraOf(name).value_or(HeatEra()); });
    return table.words();
}

std::span<const FormWord<GuidanceMode>> FormWords<GuidanceMode>::words() {
    static const auto table = wordsFor<GuidanceMode>(
        guidanceModeNames(),
        [](std::string_view name) { return guidanceModeOf(name).value_or(GuidanceMode()); },
        beginningWith(GuidanceMode::Unguided));
    return table.words();
}

std::span<const FormWord<ReloadMode>> FormWords<ReloadMode>::words() {
    static const auto table = wordsFor<ReloadMode>(
        reloadModeNames(), [](std::string_view name) { return reloadModeOf(name).value_or(ReloadMode()); },
        beginningWith(ReloadMode::None));
    return table.words();
}

} // namespace varrocade
