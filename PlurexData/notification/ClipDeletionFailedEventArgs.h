#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/ClipDeletionEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip deletion that failed: the server's result and error code, a third 8-bit value and two flags.
class PLUREXDATA_API ClipDeletionFailedEventArgs : public ClipDeletionEventArgs {
public:
    /// The six common fields, the result and error code, the clip and the base's two 8-bit
    /// values, then the third 8-bit value and the two flags.
    ClipDeletionFailedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                std::uint32_t thirdValue, std::uint16_t fourthValue,
                                const Data::Guid& commandGuid, long long value64,
                                Data::OperationResult result, std::int16_t errorCode,
                                const Data::Clips::Clip& clip, std::uint8_t firstByte,
                                std::uint8_t secondByte, std::uint8_t thirdByte, bool firstFlag,
                                bool secondFlag);
    ~ClipDeletionFailedEventArgs() override;

    /// The server's result.
    Data::OperationResult GetResult() const noexcept { return result_; }
    /// The server's error code.
    std::int16_t GetErrorCode() const noexcept { return errorCode_; }
    /// The third 8-bit value, carried as given.
    std::uint8_t GetThirdByte() const noexcept { return thirdByte_; }
    /// The first flag, carried as given.
    bool GetFirstFlag() const noexcept { return firstFlag_; }
    /// The second flag, carried as given.
    bool GetSecondFlag() const noexcept { return secondFlag_; }

private:
    Data::OperationResult result_;
    std::int16_t errorCode_;
    std::uint8_t thirdByte_;
    bool firstFlag_;
    bool secondFlag_;
};

}  // namespace Korv::Plurex::Notification
