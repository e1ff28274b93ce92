#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// Further detail on the video codec of an essence; the prefix names the essence type it suits.
enum class VideoCompressionInfo : std::int32_t {
    IntraNone = 0,
    IntraDnxHdUnknown = 1,
    IntraDnxHdLowBitrate = 2,
    IntraDnxHdHighBitrate = 3,
    IntraDnxHdHighBitrate10b = 4,
    IntraProResUnknown = 5,
    IntraProResStandardQuality = 6,
    IntraProResHighQuality = 7,
    IntraProResLt = 8,
    LongGopNone = 9,
    LowResNone = 10,
    Unknown = 11
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(VideoCompressionInfo value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); VideoCompressionInfo::Unknown for any
/// other text.
PLUREXDATA_API VideoCompressionInfo ToVideoCompressionInfo(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<VideoCompressionInfo>() returns.
PLUREXDATA_API const std::vector<EnumRow<VideoCompressionInfo>>& RowsOf(
    EnumTag<VideoCompressionInfo>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
