#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Whether the camera of a clip is the main or a secondary angle.
enum class PreferentialCamera : std::int32_t { None = 0, Main = 1, Secondary = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(PreferentialCamera value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); PreferentialCamera::Unknown for any
/// other text.
PLUREXDATA_API PreferentialCamera ToPreferentialCamera(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<PreferentialCamera>() returns.
PLUREXDATA_API const std::vector<EnumRow<PreferentialCamera>>& RowsOf(EnumTag<PreferentialCamera>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
