#include "tools/checks/output/json_text.h"

#include <algorithm>
#include <cstdint>

namespace varrocade {

namespace {

unsigned byteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
}

/// How many bytes of a well-formed character begin at a place; 0 where none does (Unicode standard, table
/// 3-7).
std::size_t lengthOfCharacter(std::string_view text, std::size_t at) {
    const unsigned first = byteAt(text, at);
    const auto isTail = [&](std::size_t i, unsigned from = 0x80, unsigned to = 0xBF) {
        return byteAt(text, at + i) >= from && byteAt(text, at + i) <= to;
    };
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return isTail(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        const bool isSecond = isTail(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF);
        return isSecond && isTail(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const bool isSecond = isTail(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF);
        return isSecond && isTail(2) && isTail(3) ? 4 : 0;
    }
    return 0;
}

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = lengthOfCharacter(text, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

} // namespace

std::string asUtf8(std::string_view text) {
    if (isUtf8(text)) {
        return std::string(text);
    }
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            result += c;
        } else {
            result += static_cast<char>(0xC0U | (byte >> 6U));
            result += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return result;
}

std::string jsonString(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : asUtf8(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            result += "\\u00";
            result += digits[byte >> 4U];
            result += digits[byte & 0xFU];
        } else {
            result += c;
        }
    }
    return result + "\"";
}

} // namespace varrocade
