#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The picture format of a clip. Value 3 is named "Wexor", like the UserProtect bit 4: kept so for
/// compatibility of the text form.
enum class VideoFormat : std::int32_t { Sd = 0, Hd720p = 1, Hd1080i = 2, Wexor = 3, Uhd4k = 4, Unknown = 5 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(VideoFormat value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); VideoFormat::Unknown for any other text.
PLUREXDATA_API VideoFormat ToVideoFormat(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<VideoFormat>() returns.
PLUREXDATA_API const std::vector<EnumRow<VideoFormat>>& RowsOf(EnumTag<VideoFormat>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
