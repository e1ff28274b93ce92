#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/timepoints/Rate.h"

namespace Korv::TimePoints {

/// The rates of the two video standards, shared by the whole process.
class PLUREXDATA_API VideoRates {
public:
    VideoRates() = delete;

    /// 50/1, created on first use.
    static const Rate& Rate50() noexcept;
    /// 60/1, created on first use.
    static const Rate& Rate60() noexcept;
};

}  // namespace Korv::TimePoints
