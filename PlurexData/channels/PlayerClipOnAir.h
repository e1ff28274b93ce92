#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/TimeValue.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <cstdint>

namespace Korv::Plurex::Data::Channels {

/// A clip that a player has on air. The clip means something only while `clipPresent` is set.
struct PLUREXDATA_API PlayerClipOnAir {
    /// The clip; the player state's CompareStatus reads its first text (Clip::text1) only.
    Clips::Clip clip;
    /// Whether the player has this clip on air.
    bool clipPresent = false;
    /// A time value; UnsetTime until one is reported.
    std::int64_t timeValue = UnsetTime;
    /// Two timecodes reported with the clip; Clip::DefaultTimecode() until set.
    ///@{
    TimePoints::TimeCode firstTimecode = Clips::Clip::DefaultTimecode();
    TimePoints::TimeCode secondTimecode = Clips::Clip::DefaultTimecode();
    ///@}

    /// Every field equal, the clips by the clip record's equality, whether present or not.
    ///@{
    bool operator==(const PlayerClipOnAir& other) const noexcept;
    bool operator!=(const PlayerClipOnAir& other) const noexcept { return !(*this == other); }
    ///@}
};

}  // namespace Korv::Plurex::Data::Channels
