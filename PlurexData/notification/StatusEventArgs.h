#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/system/EventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// The base of status events: the time of the event, in nanoseconds of the system clock since the
/// epoch, unset (UnsetTime) until a derived class stamps it.
class PLUREXDATA_API StatusEventArgs : public Korv::System::EventArgs {
public:
    /// The bit pattern 0x8000000000000001, as the channel snapshots mark an unset time.
    static constexpr std::int64_t UnsetTime = -0x7FFFFFFFFFFFFFFFLL;

    /// The time starts as UnsetTime.
    StatusEventArgs() noexcept;
    /// Copies and assigns the time as it is.
    ///@{
    StatusEventArgs(const StatusEventArgs&) noexcept = default;
    StatusEventArgs& operator=(const StatusEventArgs&) noexcept = default;
    ///@}
    ~StatusEventArgs() override;

    /// The time of the event, or UnsetTime while no derived class has stamped it.
    std::int64_t GetTime() const noexcept { return time_; }

protected:
    /// For the derived classes that stamp the time.
    void SetTime(std::int64_t time) noexcept { time_ = time; }

private:
    std::int64_t time_;
};

}  // namespace Korv::Plurex::Notification
