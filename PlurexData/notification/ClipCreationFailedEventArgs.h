#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/ClipCreationEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip creation that failed, with the server's result and error code.
class PLUREXDATA_API ClipCreationFailedEventArgs : public ClipCreationEventArgs {
public:
    /// The six common fields, the result and error code, then the clips and types as ClipCreationEventArgs
    /// takes them.
    ClipCreationFailedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                std::uint32_t thirdValue, std::uint16_t fourthValue,
                                const Data::Guid& commandGuid, long long value64,
                                Data::OperationResult result, std::int16_t errorCode,
                                const Data::Clips::Clip& clipBefore, const Data::Clips::Clip& clipAfter,
                                CreationType creationType, NetworkType networkType);
    ~ClipCreationFailedEventArgs() override;

    /// The server's result.
    Data::OperationResult GetResult() const noexcept { return result_; }
    /// The server's error code.
    std::int16_t GetErrorCode() const noexcept { return errorCode_; }

private:
    Data::OperationResult result_;
    std::int16_t errorCode_;
};

}  // namespace Korv::Plurex::Notification
