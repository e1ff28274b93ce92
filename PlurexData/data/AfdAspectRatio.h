#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// How the active picture sits in the coded frame (active format description).
enum class AfdAspectRatio : std::int32_t { Unknown = 0, FullFrame = 1, PillarBox = 2, LetterBox = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(AfdAspectRatio value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); AfdAspectRatio::Unknown for any other
/// text.
PLUREXDATA_API AfdAspectRatio ToAfdAspectRatio(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<AfdAspectRatio>() returns.
PLUREXDATA_API const std::vector<EnumRow<AfdAspectRatio>>& RowsOf(EnumTag<AfdAspectRatio>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
