#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// The video codec of an essence; the prefix names the essence type it suits.
enum class VideoCompressionType : std::int32_t {
    IntraMjpegRegular = 0,
    IntraMjpegInverted = 1,
    IntraMpegIField = 2,
    IntraMpegIFrame = 3,
    IntraDnxHd = 4,
    IntraProRes = 5,
    IntraDvcPro100IField = 6,
    IntraDvcPro100IFrame = 7,
    IntraDvcPro50 = 8,
    IntraAvc100IntraIField = 9,
    IntraAvc100IntraIFrame = 10,
    IntraAvc50IntraIField = 11,
    IntraAvc50IntraIFrame = 12,
    IntraXAvc100IField = 13,
    IntraXAvc100IFrame = 14,
    IntraXAvc50IField = 15,
    IntraXAvc50IFrame = 16,
    IntraXAvc300 = 17,
    LongGopXdCam = 18,
    LowResMjpeg = 19,
    LowResH264 = 20,
    Unknown = 21
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(VideoCompressionType value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); VideoCompressionType::Unknown for any
/// other text.
PLUREXDATA_API VideoCompressionType ToVideoCompressionType(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<VideoCompressionType>() returns.
PLUREXDATA_API const std::vector<EnumRow<VideoCompressionType>>& RowsOf(
    EnumTag<VideoCompressionType>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
