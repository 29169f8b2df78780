#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace varrocade {

/// An 8-bit string of at most `Capacity` characters, kept in place. Assigning a longer text cuts it.
template <std::size_t Capacity>
class FixedString {
public:
    static constexpr std::size_t MaxLength = Capacity;

    FixedString() = default;
    FixedString(std::string_view text) { assign(text); }
    FixedString(const char* text) { assign(text); }
    FixedString& operator=(std::string_view text) {
        assign(text);
        return *this;
    }
    FixedString& operator=(const char* text) {
        assign(text);
        return *this;
    }

    [[nodiscard]] std::string_view view() const { return {characters_.data(), length_}; }
    operator std::string_view() const { return view(); }
    /// The text with its closing NUL, for the system's functions.
    [[nodiscard]] const char* c_str() const { return characters_.data(); }
    [[nodiscard]] std::string str() const { return std::string(view()); }
    [[nodiscard]] bool empty() const { return length_ == 0; }
    [[nodiscard]] std::size_t size() const { return length_; }
    void clear() { assign({}); }

    friend bool operator==(const FixedString& a, const FixedString& b) { return a.view() == b.view(); }
    friend bool operator==(const FixedString& a, std::string_view b) { return a.view() == b; }
    friend bool operator==(const FixedString& a, const char* b) { return a.view() == b; }

private:
    static_assert(Capacity <= UINT8_MAX);

    void assign(std::string_view text) {
        length_ = static_cast<std::uint8_t>(text.size() < Capacity ? text.size() : Capacity);
        if (length_ > 0) {
            // Not memcpy, since the text may be a part of this very string.
            std::memmove(characters_.data(), text.data(), length_);
        }
        characters_[length_] = '\0';
    }

    std::array<char, Capacity + 1> characters_{};
    std::uint8_t length_ = 0;
};

/// A record's string: names, texts and image names, as the game's fields of 256 bytes hold them.
using Text = FixedString<255>;

/// A voice language, such as "de".
using LanguageCode = FixedString<2>;

} // namespace varrocade
