#pragma once
// What the dialog "Reduce Image Sizes" shows, without any window.

#include "tools/pictures/picture_reduction.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Pictures by the sets that are written together.
using ReducedSets = std::vector<std::vector<ReducedPicture>>;

inline constexpr std::array<std::string_view, 6> ReductionHeads = {"Picture",    "Pixels", "Bytes now",
                                                                   "Bytes then", "Result", "Folder"};

/// A row of the table, and the place of its picture.
struct ReductionRow {
    std::size_t set = 0;
    std::size_t picture = 0; ///< within its set
    std::array<std::string, ReductionHeads.size()> cells;
};
std::vector<ReductionRow> reductionRows(const ReducedSets& sets);

/// What was written since the window opened.
struct WrittenPictures {
    std::size_t count = 0;
    std::size_t bytesBefore = 0;
    std::size_t bytesAfter = 0;
};

/// "9 of 12 pictures can be smaller: 1,200 bytes in the place of 4,800, 75 % less."
std::string reductionSummary(const ReducedSets& sets, const WrittenPictures& written = {});

/// The path of a row's picture and all that is to be said of it, which its columns have no room for.
std::string reductionDetail(const ReductionRow& row);

/// What a picture is before or after, for the line above it: "Now: 400 x 900 pixels, 12,345 bytes".
std::string pictureCaption(std::string_view when, PictureSize size, std::size_t bytes);

/// The places of the sets that rows belong to and that there is something to write of.
std::vector<std::size_t> setsToWrite(const ReducedSets& sets, std::span<const ReductionRow> rows);

/// What is asked before sets are written.
std::string reductionQuestion(const ReducedSets& sets, std::span<const std::size_t> chosen);

/// The rows as tab separated lines below their heads, for the clipboard.
std::string reductionTable(std::span<const ReductionRow> rows);

} // namespace varrocade
