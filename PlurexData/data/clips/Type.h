#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// The kind of an essence: intra-frame, long GOP or low resolution.
enum class Type : std::int32_t { Intra = 0, LongGop = 1, LowRes = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(Type value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); Type::Unknown for any other text.
PLUREXDATA_API Type ToType(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<Type>() returns.
PLUREXDATA_API const std::vector<EnumRow<Type>>& RowsOf(EnumTag<Type>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
