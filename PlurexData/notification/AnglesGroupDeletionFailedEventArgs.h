#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/AnglesGroupDeletionEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group deletion that failed, with the server's result and error code.
class PLUREXDATA_API AnglesGroupDeletionFailedEventArgs : public AnglesGroupDeletionEventArgs {
public:
    /// The result and error code come between the GUID and the value.
    AnglesGroupDeletionFailedEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                       Data::OperationResult result, std::int16_t errorCode,
                                       std::uint32_t value);
    ~AnglesGroupDeletionFailedEventArgs() override;

    /// The server's result.
    Data::OperationResult GetResult() const noexcept { return result_; }
    /// The server's error code.
    std::int16_t GetErrorCode() const noexcept { return errorCode_; }

private:
    Data::OperationResult result_;
    std::int16_t errorCode_;
};

}  // namespace Korv::Plurex::Notification
