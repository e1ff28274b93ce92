#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// The audio codec of an essence.
enum class AudioCompressionType : std::int32_t {
    IntraNone = 0,
    LongGopNone = 1,
    LowResMpeg1Layer2 = 2,
    Unknown = 3
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(AudioCompressionType value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); AudioCompressionType::Unknown for any
/// other text.
PLUREXDATA_API AudioCompressionType ToAudioCompressionType(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<AudioCompressionType>() returns.
PLUREXDATA_API const std::vector<EnumRow<AudioCompressionType>>& RowsOf(
    EnumTag<AudioCompressionType>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
