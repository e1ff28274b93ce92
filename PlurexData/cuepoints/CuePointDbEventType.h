#pragma once

#include <cstdint>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// What changed in the cue point store.
enum class CuePointDbEventType : std::int32_t {
    CuePointAdded = 1,
    CuePointRemoved = 2,
    CuePointsRemovedAll = 4,
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
