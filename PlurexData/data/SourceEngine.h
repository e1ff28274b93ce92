#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The engine that produced a clip.
enum class SourceEngine : std::int32_t { None = 0, EditRec = 1, Timeline = 2, Derush = 3, Unknown = 4 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(SourceEngine value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); SourceEngine::Unknown for any
/// other text.
PLUREXDATA_API SourceEngine ToSourceEngine(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<SourceEngine>() returns.
PLUREXDATA_API const std::vector<EnumRow<SourceEngine>>& RowsOf(EnumTag<SourceEngine>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
