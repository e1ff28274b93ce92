#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// The encoding bit length of an intra essence; the prefix names the essence type it suits.
enum class Metadata : std::int32_t {
    IntraEncodingBitLengthUnknown = 0,
    IntraEncodingBitLength8 = 1,
    IntraEncodingBitLength10 = 2,
    LongGopNone = 3,
    LowResNone = 4,
    Unknown = 5
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(Metadata value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); Metadata::Unknown for any other text.
PLUREXDATA_API Metadata ToMetadata(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<Metadata>() returns.
PLUREXDATA_API const std::vector<EnumRow<Metadata>>& RowsOf(EnumTag<Metadata>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
