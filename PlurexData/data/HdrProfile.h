#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The transfer characteristic of the video: standard or one of the high dynamic range profiles.
enum class HdrProfile : std::int32_t { Sdr = 0, Pq = 1, Hlg = 2, SLog3 = 3, VLog = 4, Unknown = 5 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(HdrProfile value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); HdrProfile::Unknown for any other text.
PLUREXDATA_API HdrProfile ToHdrProfile(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<HdrProfile>() returns.
PLUREXDATA_API const std::vector<EnumRow<HdrProfile>>& RowsOf(EnumTag<HdrProfile>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
