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

/// A snapshot of one play channel: what is on air, how it moves, and its limits. Snapshots are
/// compared with their predecessor through CompareStatus.
class PLUREXDATA_API PlayerState : public ChannelState {
public:
    /// What CompareStatus found changed. 0x080 to 0x400 are never set: the gap is kept for the
    /// receivers that test these bits by value.
    enum class StatusChange : std::uint32_t {
        None = 0,
        Name = 0x001,
        Mode = 0x002,
        InfoWord1 = 0x004,
        RateCleared = 0x008,  ///< the other state's rate numerator is 0, this one's is not
        RateSet = 0x010,      ///< the other state's rate numerator is not 0, this one's is
        /// Only while `other` plays one clip (mode 2 to 6) with its first clip present: `other` has
        /// samples left, and this state is not also playing one clip, present, with samples left.
        RemainingTime = 0x020,
        /// From `other`'s mode 2 on: the first clip on air came or went, or both are present with
        /// different first texts (Clip::text1).
        FirstClipOnAir = 0x040,
        SecondClipOnAir = 0x800,  ///< the same for the second clip, looked at from `other`'s mode 7 on
    };

    /// The number of time values.
    static constexpr unsigned int TimeValueCount = 4;
    /// The number of timecodes.
    static constexpr unsigned int TimecodeCount = 8;

    /// The same as PlayerState(0, 0).
    PlayerState();
    /// The two identifiers; the time values UnsetTime, the timecodes Clip::DefaultTimecode(), both
    /// boundaries empty, everything else 0 or its type's default.
    PlayerState(unsigned int firstId, unsigned int secondId);
    /// Memberwise, each boundary copied through Clone. Assignment clones both boundaries before it
    /// changes anything, so a failed allocation leaves the target as it was.
    ///@{
    PlayerState(const PlayerState& other);
    PlayerState& operator=(const PlayerState& other);
    ///@}
    /// Takes the boundaries over and leaves the moved-from state two new empty ones, so that every
    /// state has both; the allocation comes first, and a failed one leaves both states as they were.
    ///@{
    PlayerState(PlayerState&& other);
    PlayerState& operator=(PlayerState&& other);
    ///@}
    ~PlayerState() override;

    int ChannelMode() const override;

    /// Identifiers, name, mode, info, clips on air, timecodes, the other fields and both boundaries
    /// (by Equals; two missing boundaries are equal, a missing and a present one are not).
    ///@{
    bool operator==(const PlayerState& other) const;
    bool operator!=(const PlayerState& other) const { return !(*this == other); }
    ///@}

    /// The changes from this state to `other`.
    StatusChange CompareStatus(const PlayerState& other) const noexcept;

    std::uint32_t firstValue = 0;   ///< carried as reported; only equality reads it
    std::uint32_t secondValue = 0;  ///< carried as reported; only equality reads it
    /// The transport; CompareStatus reads its mode, word 1, rate, position and end.
    PlayerInfoOnAir infoOnAir;
    /// The clips on air; CompareStatus looks at the second only from `other`'s mode 7 on.
    std::array<PlayerClipOnAir, 2> clipsOnAir;
    /// Time values, UnsetTime until set; only equality reads them.
    std::array<std::int64_t, TimeValueCount> timeValues;
    /// Timecodes, Clip::DefaultTimecode() until set; only equality reads them.
    std::array<TimePoints::TimeCode, TimecodeCount> timecodes;
    std::uint32_t thirdValue = 0;  ///< carried as reported; only equality reads it
    /// The in and out limits of the player's range. Owned; both start as empty absolute boundaries,
    /// and a moved-from state holds none.
    ///@{
    std::unique_ptr<Boundary> inBoundary;
    std::unique_ptr<Boundary> outBoundary;
    ///@}
};

/// The union and the intersection of two change masks: `(change & StatusChange::Name) !=
/// StatusChange::None` tests one bit.
///@{
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
///@}

}  // namespace Korv::Plurex::Data::Channels
