#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Whether a clip is to be archived, and whether it has been.
enum class ArchiveStatus : std::int32_t { NoStore = 0, ToStore = 1, Stored = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(ArchiveStatus value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); ArchiveStatus::Unknown for any other
/// text.
PLUREXDATA_API ArchiveStatus ToArchiveStatus(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<ArchiveStatus>() returns.
PLUREXDATA_API const std::vector<EnumRow<ArchiveStatus>>& RowsOf(EnumTag<ArchiveStatus>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
