#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The operator's rating of a clip.
enum class Rating : std::int32_t { None = 0, Poor = 1, Good = 2, Best = 3, Unknown = 4 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(Rating value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); Rating::Unknown for any other text.
PLUREXDATA_API Rating ToRating(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<Rating>() returns.
PLUREXDATA_API const std::vector<EnumRow<Rating>>& RowsOf(EnumTag<Rating>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
