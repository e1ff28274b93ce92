#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group being deleted, with one value. The common fields are not taken from the caller:
/// request source 2, third and fourth values 0 and 64-bit value -1, always.
class PLUREXDATA_API AnglesGroupDeletionEventArgs : public ClipCommandEventArgs {
public:
    /// Takes the command number, the GUID and the value; the other common fields are fixed
    /// as the class says.
    AnglesGroupDeletionEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                 std::uint32_t value);
    ~AnglesGroupDeletionEventArgs() override;

    /// The 32-bit value, carried as given.
    std::uint32_t GetValue() const noexcept { return value_; }

private:
    std::uint32_t value_;
};

}  // namespace Korv::Plurex::Notification
