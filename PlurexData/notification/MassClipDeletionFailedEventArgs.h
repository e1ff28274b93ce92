#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/MassClipDeletionEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A mass deletion that failed, with the server's result and error code.
class PLUREXDATA_API MassClipDeletionFailedEventArgs : public MassClipDeletionEventArgs {
public:
    /// The six common fields, the result and error code, then the count.
    MassClipDeletionFailedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                    std::uint32_t thirdValue, std::uint16_t fourthValue,
                                    const Data::Guid& commandGuid, long long value64,
                                    Data::OperationResult result, std::int16_t errorCode,
                                    std::uint32_t count);
    ~MassClipDeletionFailedEventArgs() override;

    /// The server's result.
    Data::OperationResult GetResult() const noexcept { return result_; }
    /// The server's error code.
    std::int16_t GetErrorCode() const noexcept { return errorCode_; }

private:
    Data::OperationResult result_;
    std::int16_t errorCode_;
};

}  // namespace Korv::Plurex::Notification
