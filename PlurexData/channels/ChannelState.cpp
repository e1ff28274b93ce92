#include "PlurexData/channels/ChannelState.h"

#include <cstring>

namespace Korv::Plurex::Data::Channels {

ChannelState::ChannelState() noexcept : ChannelState(0, 0) {}

ChannelState::ChannelState(unsigned int firstId, unsigned int secondId) noexcept
    : firstId_(firstId), secondId_(secondId), name_{} {}

ChannelState::~ChannelState() = default;

void ChannelState::SetName(const char* name) noexcept {
    std::memset(name_, 0, sizeof name_);
    if (name != nullptr) {
        std::strncpy(name_, name, NameSize - 1);
    }
}

bool ChannelState::SameName(const ChannelState& other) const noexcept {
    return std::strncmp(name_, other.name_, NameSize) == 0;
}

bool ChannelState::SameIdentity(const ChannelState& other) const noexcept {
    return firstId_ == other.firstId_ && secondId_ == other.secondId_ && SameName(other);
}

}  // namespace Korv::Plurex::Data::Channels
