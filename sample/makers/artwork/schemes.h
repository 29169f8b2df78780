#pragma once

#include "scheme.h"

namespace artwork {

const Scheme& germanThreeTone();
const Scheme& germanAmbush();
const Scheme& germanWinter();
const Scheme& panzerGrey();
const Scheme& sovietGreen();
const Scheme& sovietWinterTrace();
const Scheme& sovietModern();
const Scheme& lorryGreen();
const Scheme& oliveDrab();
const Scheme& desertGrant();
const Scheme& britishGreen();
const Scheme& frenchOutlined();
const Scheme& frenchCavalry();
const Scheme& italianDesert();
const Scheme& japaneseStripes();
const Scheme& polishThreeTone();
const Scheme& germanYellow();
const Scheme& frenchGreyGreen();
const Scheme& italianGreyGreen();
const Scheme& japaneseKhaki();
const Scheme& luftwaffeGreen();
const Scheme& sovietAirGreen();
const Scheme& sovietAirGreenBrown();
const Scheme& sovietHelicopter();
const Scheme& darkGreyGreen();
const Scheme& naturalMetal();
const Scheme& britishAirDay();
const Scheme& britishAirDesert();
const Scheme& bareSteel();

} // namespace artwork
