#include "PlurexData/timepoints/VideoRates.h"

namespace Korv::TimePoints {

const Rate& VideoRates::Rate50() noexcept {
    static const Rate rate(50, 1);
    return rate;
}

const Rate& VideoRates::Rate60() noexcept {
    static const Rate rate(60, 1);
    return rate;
}

}  // namespace Korv::TimePoints
