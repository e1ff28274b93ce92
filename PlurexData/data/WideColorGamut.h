#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The colour gamut of the video.
enum class WideColorGamut : std::int32_t { Rec709 = 0, Rec2020 = 1, Unknown = 2 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(WideColorGamut value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); WideColorGamut::Unknown for any other
/// text.
PLUREXDATA_API WideColorGamut ToWideColorGamut(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<WideColorGamut>() returns.
PLUREXDATA_API const std::vector<EnumRow<WideColorGamut>>& RowsOf(EnumTag<WideColorGamut>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
