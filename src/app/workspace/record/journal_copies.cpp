#include "app/workspace/record/journal_copies.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace varrocade {

namespace {

/// Begins the first line of a copy, which the readers take for a comment. Behind it stands the fingerprint of
/// the file that was changed.
constexpr std::string_view HeadBegin = "//unsaved changes to ";
constexpr std::string_view HeadEnd = "\r\n";

/// FNV-1a of a content, in hexadecimal digits: tells whether a file is still the one that was changed.
std::string fingerprint(std::string_view content) {
    constexpr std::uint64_t start = 14695981039346656037ULL;
    constexpr std::uint64_t prime = 1099511628211ULL;
    std::uint64_t hash = start;
    for (const char character : content) {
        hash = (hash ^ static_cast<unsigned char>(character)) * prime;
    }
    std::array<char, 24> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(hash));
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string journalPath(const std::string& base, Category category, const std::string& name) {
    return dataFilePath(base + std::string(UnsavedFolder), category, name);
}

std::string journalHead(std::string_view content) {
    return std::string(HeadBegin) + fingerprint(content) + std::string(HeadEnd);
}

} // namespace varrocade
