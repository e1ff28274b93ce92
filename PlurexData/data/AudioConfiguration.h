#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The audio tracks a clip carries.
enum class AudioConfiguration : std::int32_t {
    NoAudio = 0,
    Mono = 1,
    Stereo = 2,
    DualStereo = 3,
    EightMonos = 4,
    SixteenMonos = 5,
    TwentyFourMonos = 6,
    ThirtyTwoMonos = 7,
    Unknown = 8
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(AudioConfiguration value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); AudioConfiguration::Unknown for any
/// other text.
PLUREXDATA_API AudioConfiguration ToAudioConfiguration(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<AudioConfiguration>() returns.
PLUREXDATA_API const std::vector<EnumRow<AudioConfiguration>>& RowsOf(EnumTag<AudioConfiguration>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
