#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The video standard of a clip; it fixes the clip rate (Pal 50/1, any other value 60/1).
enum class VideoStandard : std::int32_t { Pal = 0, Ntsc = 1, Unknown = 2 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(VideoStandard value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); VideoStandard::Unknown for any other
/// text.
PLUREXDATA_API VideoStandard ToVideoStandard(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<VideoStandard>() returns.
PLUREXDATA_API const std::vector<EnumRow<VideoStandard>>& RowsOf(EnumTag<VideoStandard>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
