#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/Boundary.h"
#include "PlurexData/channels/ChannelState.h"
#include "PlurexData/channels/PlayerClipOnAir.h"
#include "PlurexData/channels/PlayerInfoOnAir.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <array>
#include <cstdint>
#include <memory>

namespace Korv::Plurex::Data::Channels {

// A snapshot of one play channel: what is on air, how it moves, and its limits. Snapshots are
// compared with their predecessor through CompareStatus.
class PLUREXDATA_API PlayerState : public ChannelState {
public:
    // What CompareStatus found changed. 0x080 to 0x400 are never set: the gap is kept for the
    // receivers that test these bits by value.
    enum class StatusChange : std::uint32_t {
        None = 0,
        Name = 0x001,
        Mode = 0x002,
        InfoWord1 = 0x004,
        RateCleared = 0x008,  // the other state's rate numerator is 0, this one's is not
        RateSet = 0x010,      // the other state's rate numerator is not 0, this one's is
        RemainingTime = 0x020,
        FirstClipOnAir = 0x040,
        SecondClipOnAir = 0x800,
    };

    static constexpr unsigned int TimeValueCount = 4;
    static constexpr unsigned int TimecodeCount = 8;

    PlayerState();
    PlayerState(unsigned int firstId, unsigned int secondId);
    // Memberwise, each boundary copied through Clone.
    PlayerState(const PlayerState& other);
    PlayerState& operator=(const PlayerState& other);
    // Takes the boundaries over; the moved-from state is left without boundaries.
    PlayerState(PlayerState&& other) noexcept;
    PlayerState& operator=(PlayerState&& other) noexcept;
    ~PlayerState() override;

    int ChannelMode() const override;

    // Identifiers, name, mode, info, clips on air, timecodes, the other fields and both boundaries.
    bool operator==(const PlayerState& other) const;
    bool operator!=(const PlayerState& other) const { return !(*this == other); }

    // The changes from this state to `other`.
    StatusChange CompareStatus(const PlayerState& other) const noexcept;

    std::uint32_t firstValue = 0;
    std::uint32_t secondValue = 0;
    PlayerInfoOnAir infoOnAir;
    std::array<PlayerClipOnAir, 2> clipsOnAir;
    std::array<std::int64_t, TimeValueCount> timeValues;
    std::array<TimePoints::TimeCode, TimecodeCount> timecodes;
    std::uint32_t thirdValue = 0;
    // Owned; both start as empty absolute boundaries.
    std::unique_ptr<Boundary> inBoundary;
    std::unique_ptr<Boundary> outBoundary;
};

constexpr PlayerState::StatusChange operator|(PlayerState::StatusChange a,
                                              PlayerState::StatusChange b) noexcept {
    return static_cast<PlayerState::StatusChange>(static_cast<std::uint32_t>(a) |
                                                  static_cast<std::uint32_t>(b));
}

constexpr PlayerState::StatusChange operator&(PlayerState::StatusChange a,
                                              PlayerState::StatusChange b) noexcept {
    return static_cast<PlayerState::StatusChange>(static_cast<std::uint32_t>(a) &
                                                  static_cast<std::uint32_t>(b));
}

}  // namespace Korv::Plurex::Data::Channels
