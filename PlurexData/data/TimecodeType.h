#pragma once

#include "PlurexData/Export.h"

#include <cstdint>
#include <string>

namespace Korv::Plurex::Data::Clips {

/// Where the recorded timecode was read from.
enum class TimecodeType : std::int32_t { AnalogLtc = 0, AtcLtc = 1, AtcVitc = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(TimecodeType value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); TimecodeType::Unknown for any
/// other text.
PLUREXDATA_API TimecodeType ToTimecodeType(const std::string& text) noexcept;

}  // namespace Korv::Plurex::Data::Clips
