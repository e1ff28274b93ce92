#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// How an ultra-high-definition picture is divided over its links.
enum class UhdDivisionMode : std::int32_t { None = 0, Square = 1, SampleInterleave = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(UhdDivisionMode value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); UhdDivisionMode::Unknown for any other
/// text.
PLUREXDATA_API UhdDivisionMode ToUhdDivisionMode(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<UhdDivisionMode>() returns.
PLUREXDATA_API const std::vector<EnumRow<UhdDivisionMode>>& RowsOf(EnumTag<UhdDivisionMode>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
