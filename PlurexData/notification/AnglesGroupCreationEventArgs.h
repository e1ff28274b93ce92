#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Angle.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>
#include <vector>

namespace Korv::Plurex::Notification {

/// An angles group being created: a value, two angles and the group's list of angles. The common fields are
/// not taken from the caller: request source 2, third and fourth values 0 and 64-bit value -1, always.
class PLUREXDATA_API AnglesGroupCreationEventArgs : public ClipCommandEventArgs {
public:
    /// Takes the command number and GUID, then copies the value, both angles and the list; the
    /// other common fields are fixed as the class says.
    AnglesGroupCreationEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                 std::uint32_t value, Data::Clips::Angle firstAngle,
                                 Data::Clips::Angle secondAngle,
                                 const std::vector<Data::Clips::Angle>& angles);
    ~AnglesGroupCreationEventArgs() override;

    /// The 32-bit value, carried as given.
    std::uint32_t GetValue() const noexcept { return value_; }
    /// The first angle.
    const Data::Clips::Angle& GetFirstAngle() const noexcept { return firstAngle_; }
    /// The second angle.
    const Data::Clips::Angle& GetSecondAngle() const noexcept { return secondAngle_; }
    /// The group's angles, copied at construction.
    const std::vector<Data::Clips::Angle>& GetAngles() const noexcept { return angles_; }

private:
    std::uint32_t value_;
    Data::Clips::Angle firstAngle_;
    Data::Clips::Angle secondAngle_;
    std::vector<Data::Clips::Angle> angles_;
};

}  // namespace Korv::Plurex::Notification
