#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// The storage block size of an essence.
enum class BlockSize : std::int32_t { MB2 = 0, MB8 = 1, MB16 = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(BlockSize value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); BlockSize::Unknown for any other text.
PLUREXDATA_API BlockSize ToBlockSize(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<BlockSize>() returns.
PLUREXDATA_API const std::vector<EnumRow<BlockSize>>& RowsOf(EnumTag<BlockSize>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
