#include "PlurexData/channels/PlayerClipOnAir.h"

namespace Korv::Plurex::Data::Channels {

bool PlayerClipOnAir::operator==(const PlayerClipOnAir& other) const noexcept {
    return clip == other.clip && clipPresent == other.clipPresent && timeValue == other.timeValue &&
           firstTimecode == other.firstTimecode && secondTimecode == other.secondTimecode;
}

}  // namespace Korv::Plurex::Data::Channels
