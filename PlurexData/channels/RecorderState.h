#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/ChannelState.h"
#include "PlurexData/channels/TimeValue.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <cstdint>

namespace Korv::Plurex::Data::Channels {

/// A snapshot of one record channel, compared with its predecessor through CompareStatus.
class PLUREXDATA_API RecorderState : public ChannelState {
public:
    /// What CompareStatus found changed.
    enum class StatusChange : std::uint32_t {
        None = 0,
        Name = 0x1,
        Status = 0x2,
    };

    /// The same as RecorderState(0, 0).
    RecorderState() noexcept;
    /// The two identifiers; the time values UnsetTime, the timecodes Clip::DefaultTimecode(), no
    /// clip, everything else 0.
    RecorderState(unsigned int firstId, unsigned int secondId) noexcept;

    int ChannelMode() const override;

    /// Identifiers, name, mode, status, time values, timecodes, the three values and the presence of
    /// the clip; the clips only when present. The flag byte takes no part: it changes with every
    /// report and says nothing about the channel's state.
    ///@{
    bool operator==(const RecorderState& other) const noexcept;
    bool operator!=(const RecorderState& other) const noexcept { return !(*this == other); }
    ///@}

    /// Name and status only.
    StatusChange CompareStatus(const RecorderState& other) const noexcept;

    /// The recorder's status; CompareStatus reports a change of it.
    std::uint32_t status = 0;
    /// Changes with every report; equality ignores it.
    std::uint8_t flagByte = 0;
    std::int64_t firstTimeValue = UnsetTime;   ///< a time value, UnsetTime until set
    std::int64_t secondTimeValue = UnsetTime;  ///< a time value, UnsetTime until set
    /// A timecode, Clip::DefaultTimecode() until set.
    TimePoints::TimeCode firstTimecode = Clips::Clip::DefaultTimecode();
    /// A timecode, Clip::DefaultTimecode() until set.
    TimePoints::TimeCode secondTimecode = Clips::Clip::DefaultTimecode();
    std::uint32_t firstValue = 0;   ///< carried as reported; only equality reads it
    std::uint32_t secondValue = 0;  ///< carried as reported; only equality reads it
    std::uint32_t thirdValue = 0;   ///< carried as reported; only equality reads it
    /// The recorder's clip; meaningful, and compared, only while clipPresent is set.
    Clips::Clip clip;
    /// Whether the recorder has a clip.
    bool clipPresent = false;
};

/// The union and the intersection of two change masks: `(change & StatusChange::Status) !=
/// StatusChange::None` tests one bit.
///@{
constexpr RecorderState::StatusChange operator|(RecorderState::StatusChange a,
                                                RecorderState::StatusChange b) noexcept {
    return static_cast<RecorderState::StatusChange>(static_cast<std::uint32_t>(a) |
                                                    static_cast<std::uint32_t>(b));
}

constexpr RecorderState::StatusChange operator&(RecorderState::StatusChange a,
                                                RecorderState::StatusChange b) noexcept {
    return static_cast<RecorderState::StatusChange>(static_cast<std::uint32_t>(a) &
                                                    static_cast<std::uint32_t>(b));
}
///@}

}  // namespace Korv::Plurex::Data::Channels
