#include "data/format/clean_text.h"

#include "data/format/texts.h"

#include <array>
#include <cstring>

namespace varrocade {

namespace {

constexpr std::array<bool, 256> stopTable() {
    std::array<bool, 256> stops{};
    stops['\r'] = stops['\n'] = stops['/'] = true;
    return stops;
}

constexpr std::array<bool, 256> Stops = stopTable();

/// What is left of one piece of a line: nothing from its first "//" on, no blanks at either end.
struct Piece {
    const char* begin;
    const char* end;
};

Piece trimmed(const char* begin, const char* end) {
    while (end != begin && isBlank(end[-1])) {
        --end;
    }
    while (begin != end && isBlank(*begin)) {
        ++begin;
    }
    return {begin, end};
}

/// Calls `take(piece, line)` for every piece of the content, in order; `line` counts from 1.
template <typename Take>
void forEachPiece(std::string_view content, Take take) {
    const char* at = content.data();
    const char* const end = at + content.size();
    std::size_t line = 1;
    while (at != end) {
        const char* const pieceBegin = at;
        const char* const limit =
            static_cast<std::size_t>(end - at) > LinePieceLength ? at + LinePieceLength : end;
        const char* pieceEnd = nullptr;
        while (at != limit && *at != '\r' && *at != '\n') {
            if (*at == '/' && pieceEnd == nullptr && at + 1 != limit && at[1] == '/') {
                pieceEnd = at;
            }
            ++at;
            while (at != limit && !Stops[static_cast<unsigned char>(*at)]) {
                ++at;
            }
        }
        const Piece piece = trimmed(pieceBegin, pieceEnd != nullptr ? pieceEnd : at);
        if (piece.begin != piece.end) {
            take(piece, line);
        }
        if (at == end) {
            return;
        }
        if (*at == '\r') {
            ++at;
            if (at != end && *at == '\n') {
                ++at;
            }
            ++line;
        } else if (*at == '\n') {
            ++at;
            ++line;
        }
    }
}

} // namespace

bool canBeValue(std::string_view text) {
    return !text.starts_with('<') && text.find("</") == std::string_view::npos &&
           text.find("//") == std::string_view::npos;
}

void cleanTaggedText(std::string_view fileContent, std::string& cleaned) {
    // The pieces are moved together in place: they never grow, so the write position is behind the read
    // position.
    cleaned.assign(fileContent);
    char* out = cleaned.data();
    forEachPiece(cleaned, [&out](const Piece& piece, std::size_t) {
        const auto length = static_cast<std::size_t>(piece.end - piece.begin);
        std::memmove(out, piece.begin, length);
        out += length;
    });
    cleaned.resize(static_cast<std::size_t>(out - cleaned.data()));
}

std::vector<KeptPiece> keptPieces(std::string_view fileContent) {
    std::vector<KeptPiece> pieces;
    std::size_t cleanedLength = 0;
    forEachPiece(fileContent, [&](const Piece& piece, std::size_t line) {
        const std::string_view text(piece.begin, static_cast<std::size_t>(piece.end - piece.begin));
        pieces.push_back({text, line, cleanedLength});
        cleanedLength += text.size();
    });
    return pieces;
}

} // namespace varrocade
