#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/system/EventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

// The base of status events: the time of the event, in nanoseconds of the system clock since the
// epoch, unset (UnsetTime) until a derived class stamps it.
class PLUREXDATA_API StatusEventArgs : public Korv::System::EventArgs {
public:
    // The bit pattern 0x8000000000000001, as the channel snapshots mark an unset time.
    static constexpr std::int64_t UnsetTime = -0x7FFFFFFFFFFFFFFFLL;

    StatusEventArgs() noexcept;
    StatusEventArgs(const StatusEventArgs&) noexcept = default;
    StatusEventArgs& operator=(const StatusEventArgs&) noexcept = default;
    ~StatusEventArgs() override;

    std::int64_t GetTime() const noexcept { return time_; }

protected:
    void SetTime(std::int64_t time) noexcept { time_ = time; }

private:
    std::int64_t time_;
};

}  // namespace Korv::Plurex::Notification
