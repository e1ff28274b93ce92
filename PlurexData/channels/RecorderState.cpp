#include "PlurexData/channels/RecorderState.h"

namespace Korv::Plurex::Data::Channels {

RecorderState::RecorderState() noexcept : RecorderState(0, 0) {}

RecorderState::RecorderState(unsigned int firstId, unsigned int secondId) noexcept
    : ChannelState(firstId, secondId) {}

int RecorderState::ChannelMode() const {
    return 1;
}

bool RecorderState::operator==(const RecorderState& other) const noexcept {
    return SameIdentity(other) && ChannelMode() == other.ChannelMode() && status == other.status &&
           firstTimeValue == other.firstTimeValue && secondTimeValue == other.secondTimeValue &&
           firstTimecode == other.firstTimecode && secondTimecode == other.secondTimecode &&
           firstValue == other.firstValue && secondValue == other.secondValue &&
           thirdValue == other.thirdValue && clipPresent == other.clipPresent &&
           (!clipPresent || clip == other.clip);
}

RecorderState::StatusChange RecorderState::CompareStatus(const RecorderState& other) const noexcept {
    StatusChange change = StatusChange::None;
    if (!SameName(other)) {
        change = change | StatusChange::Name;
    }
    if (status != other.status) {
        change = change | StatusChange::Status;
    }
    return change;
}

}  // namespace Korv::Plurex::Data::Channels
