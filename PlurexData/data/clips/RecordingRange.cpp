#include "PlurexData/data/clips/RecordingRange.h"

namespace Korv::Plurex::Data::Clips {

std::int64_t RecordingRange::GetDuration() const noexcept {
    // Wraps rather than overflowing for positions far apart.
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(outPosition) -
                                     static_cast<std::uint64_t>(inPosition));
}

bool RecordingRange::operator==(const RecordingRange& other) const noexcept {
    return inPosition == other.inPosition && outPosition == other.outPosition;
}

}  // namespace Korv::Plurex::Data::Clips
