#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Where the recorded timecode was read from.
enum class TimecodeType : std::int32_t { AnalogLtc = 0, AtcLtc = 1, AtcVitc = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(TimecodeType value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); TimecodeType::Unknown for any
/// other text.
PLUREXDATA_API TimecodeType ToTimecodeType(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<TimecodeType>() returns.
PLUREXDATA_API const std::vector<EnumRow<TimecodeType>>& RowsOf(EnumTag<TimecodeType>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
