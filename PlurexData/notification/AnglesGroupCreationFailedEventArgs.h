#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/AnglesGroupCreationEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group creation that failed, with the server's result and error code.
class PLUREXDATA_API AnglesGroupCreationFailedEventArgs : public AnglesGroupCreationEventArgs {
public:
    /// The result and error code come between the GUID and the arguments of AnglesGroupCreationEventArgs.
    AnglesGroupCreationFailedEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                       Data::OperationResult result, std::int16_t errorCode,
                                       std::uint32_t value, Data::Clips::Angle firstAngle,
                                       Data::Clips::Angle secondAngle,
                                       const std::vector<Data::Clips::Angle>& angles);
    ~AnglesGroupCreationFailedEventArgs() override;

    /// The server's result.
    Data::OperationResult GetResult() const noexcept { return result_; }
    /// The server's error code.
    std::int16_t GetErrorCode() const noexcept { return errorCode_; }

private:
    Data::OperationResult result_;
    std::int16_t errorCode_;
};

}  // namespace Korv::Plurex::Notification
