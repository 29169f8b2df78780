#pragma once

#include "sheet.h"

#include <array>

namespace artwork {

// each group of pictures, in the order they are drawn
std::span<const Sheet> tigerSheets();
std::span<const Sheet> pantherSheets();
std::span<const Sheet> stugSheets();
std::span<const Sheet> halftrackSheets();
std::span<const Sheet> t34Sheets();
std::span<const Sheet> t28Sheets();
std::span<const Sheet> bmp2Sheets();
std::span<const Sheet> lorrySheets();
std::span<const Sheet> shermanSheets();
std::span<const Sheet> grantSheets();
std::span<const Sheet> churchillSheets();
std::span<const Sheet> charB1Sheets();
std::span<const Sheet> panhardSheets();
std::span<const Sheet> m1340Sheets();
std::span<const Sheet> haGoSheets();
std::span<const Sheet> sevenTpSheets();
std::span<const Sheet> mountSheets();
std::span<const Sheet> germanProfiles();
std::span<const Sheet> russianProfiles();
std::span<const Sheet> westernProfiles();
std::span<const Sheet> otherProfiles();
std::span<const Sheet> antiTankSheets();
std::span<const Sheet> supportSheets();
std::span<const Sheet> gunProfiles();
std::span<const Sheet> singleEngineSheets();
std::span<const Sheet> twinEngineSheets();
std::span<const Sheet> helicopterSheets();

inline constexpr std::array SheetGroups{
    tigerSheets,        pantherSheets,    stugSheets,      halftrackSheets, t34Sheets,       t28Sheets,
    bmp2Sheets,         lorrySheets,      shermanSheets,   grantSheets,     churchillSheets, charB1Sheets,
    panhardSheets,      m1340Sheets,      haGoSheets,      sevenTpSheets,   mountSheets,     germanProfiles,
    russianProfiles,    westernProfiles,  otherProfiles,   antiTankSheets,  supportSheets,   gunProfiles,
    singleEngineSheets, twinEngineSheets, helicopterSheets};

} // namespace artwork
