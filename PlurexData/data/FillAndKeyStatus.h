#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Whether a clip is the fill or the key of a fill-and-key pair.
enum class FillAndKeyStatus : std::int32_t { None = 0, Fill = 1, Key = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(FillAndKeyStatus value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); FillAndKeyStatus::Unknown for any other
/// text.
PLUREXDATA_API FillAndKeyStatus ToFillAndKeyStatus(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<FillAndKeyStatus>() returns.
PLUREXDATA_API const std::vector<EnumRow<FillAndKeyStatus>>& RowsOf(EnumTag<FillAndKeyStatus>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
