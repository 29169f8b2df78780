#include "editors/reports/reduction_form.h"

#include "data/format/words.h"

#include <algorithm>

namespace varrocade {

namespace {

std::string countOf(std::size_t count) {
    return grouped(static_cast<std::int32_t>(std::min<std::size_t>(count, INT32_MAX)));
}

std::string picturesText(std::size_t count) {
    return countOf(count) + (count == 1 ? " picture" : " pictures");
}

/// Figures of pictures that there is something to write of.
struct ReductionSum {
    std::size_t all = 0;
    std::size_t written = 0;
    std::size_t scaled = 0;
    std::size_t failed = 0;
    std::size_t bytesBefore = 0;
    std::size_t bytesAfter = 0;

    void add(const ReducedPicture& picture) {
        ++all;
        failed += picture.outcome == ReductionOutcome::Failed ? 1 : 0;
        if (!picture.content.empty()) {
            ++written;
            scaled += picture.outcome == ReductionOutcome::Scaled ? 1 : 0;
            bytesBefore += picture.bytesBefore;
            bytesAfter += picture.bytesAfter;
        }
    }
};

/// "1,200 bytes in the place of 4,800, 75 % less"
std::string bytesText(std::size_t before, std::size_t after) {
    constexpr std::size_t whole = 100;
    const std::size_t percent = before == 0 ? 0 : (before - after) * whole / before;
    return countOf(after) + " bytes in the place of " + countOf(before) + ", " +
           (percent == 0 ? "less than 1" : std::to_string(percent)) + " % less";
}

std::string pixelsText(const ReducedPicture& picture) {
    const auto text = [](PictureSize size) {
        return std::to_string(size.width) + " x " + std::to_string(size.height);
    };
    return text(picture.sizeBefore) +
           (picture.sizeAfter == picture.sizeBefore ? "" : " > " + text(picture.sizeAfter));
}

} // namespace

std::vector<ReductionRow> reductionRows(const ReducedSets& sets) {
    std::vector<ReductionRow> rows;
    for (std::size_t set = 0; set < sets.size(); ++set) {
        for (std::size_t place = 0; place < sets[set].size(); ++place) {
            const ReducedPicture& picture = sets[set][place];
            std::string result(outcomeName(picture.outcome));
            if (!picture.reason.empty()) {
                result += ": " + picture.reason;
            }
            const std::size_t name = picture.below.rfind('\\') + 1;
            rows.push_back({set,
                            place,
                            {picture.below.substr(name), pixelsText(picture), countOf(picture.bytesBefore),
                             countOf(picture.bytesAfter), std::move(result), picture.below.substr(0, name)}});
        }
    }
    return rows;
}

std::string reductionSummary(const ReducedSets& sets, const WrittenPictures& written) {
    ReductionSum sum;
    for (const auto& set : sets) {
        std::for_each(set.begin(), set.end(), [&](const ReducedPicture& each) { sum.add(each); });
    }
    std::string text;
    if (written.count > 0) {
        text = picturesText(written.count) + (written.count == 1 ? " was" : " were") +
               " written: " + bytesText(written.bytesBefore, written.bytesAfter) + ".";
    }
    if (sum.all > 0 || written.count == 0) {
        text += text.empty() ? "" : " ";
        text += sum.all == 0 ? "There is no picture."
                : sum.written == 0
                    ? "None of " + picturesText(sum.all) + " can be smaller."
                    : countOf(sum.written) + " of " + picturesText(sum.all) +
                          " can be smaller: " + bytesText(sum.bytesBefore, sum.bytesAfter) + ".";
    }
    if (sum.failed > 0) {
        text += " " + countOf(sum.failed) + " failed.";
    }
    return text;
}

std::string reductionDetail(const ReductionRow& row) {
    const auto& [name, pixels, before, after, result, folder] = row.cells;
    return folder + name + ": " + result;
}

std::string pictureCaption(std::string_view when, PictureSize size, std::size_t bytes) {
    return std::string(when) + ": " + std::to_string(size.width) + " x " + std::to_string(size.height) +
           ", " + countOf(bytes) + " bytes";
}

std::vector<std::size_t> setsToWrite(const ReducedSets& sets, std::span<const ReductionRow> rows) {
    std::vector<std::size_t> chosen;
    for (const ReductionRow& row : rows) {
        const auto& set = sets[row.set];
        const bool isWritten = std::any_of(set.begin(), set.end(),
                                           [](const ReducedPicture& each) { return !each.content.empty(); });
        if (isWritten && (chosen.empty() || chosen.back() != row.set)) {
            chosen.push_back(row.set);
        }
    }
    return chosen;
}

std::string reductionQuestion(const ReducedSets& sets, std::span<const std::size_t> chosen) {
    ReductionSum sum;
    for (const std::size_t place : chosen) {
        std::for_each(sets[place].begin(), sets[place].end(),
                      [&](const ReducedPicture& each) { sum.add(each); });
    }
    std::string text =
        picturesText(sum.written) + " will take " + bytesText(sum.bytesBefore, sum.bytesAfter) + ".\n\n";
    if (sum.scaled == 0) {
        text += "No pixel changes. ";
    } else {
        text += picturesText(sum.scaled) + (sum.scaled == 1 ? " is scaled: its" : " are scaled: their") +
                " pixels change. ";
    }
    return text + "What the files hold now is kept in the folder Backups.\n\nWrite " +
           (sum.written == 1 ? "it?" : "them?");
}

std::string reductionTable(std::span<const ReductionRow> rows) {
    std::string text;
    const auto addLine = [&](const auto& cells) {
        for (const auto& cell : cells) {
            text.append(text.empty() || text.back() == '\n' ? "" : "\t").append(cell);
        }
        text += "\r\n";
    };
    addLine(ReductionHeads);
    for (const ReductionRow& row : rows) {
        addLine(row.cells);
    }
    return text;
}

} // namespace varrocade
