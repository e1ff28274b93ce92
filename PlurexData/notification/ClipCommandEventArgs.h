#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/Guid.h"
#include "PlurexData/notification/CommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// The fields every clip, mass-clip and angle-group command event carries. The command number, the
/// third and fourth values and the 64-bit value are carried, not interpreted.
class PLUREXDATA_API ClipCommandEventArgs : public CommandEventArgs {
public:
    /// Where the command came from. Any 32-bit value may arrive; angle-group events use 2.
    enum class RequestSource : std::int32_t {
        Local = 0,
        Network = 1,
        Unknown = 2,
    };

    /// The reserved word is always -1 on construction.
    ClipCommandEventArgs(std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
                         std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64);
    /// Copies and assigns every field.
    ///@{
    ClipCommandEventArgs(const ClipCommandEventArgs&) = default;
    ClipCommandEventArgs& operator=(const ClipCommandEventArgs&) = default;
    ///@}
    ~ClipCommandEventArgs() override;

    /// The command number.
    std::uint32_t GetCommandNumber() const noexcept { return commandNumber_; }
    /// Where the command came from; may be a value without an enumerator.
    RequestSource GetRequestSource() const noexcept { return requestSource_; }
    /// The third value, the third constructor argument.
    std::uint32_t GetThirdValue() const noexcept { return thirdValue_; }
    /// The fourth value, the fourth constructor argument.
    std::uint16_t GetFourthValue() const noexcept { return fourthValue_; }
    /// The command's GUID.
    const Data::Guid& CommandGuid() const noexcept { return commandGuid_; }
    /// Always -1: no constructor argument sets it.
    std::int32_t GetReservedWord() const noexcept { return reservedWord_; }
    /// The 64-bit value, the sixth constructor argument.
    long long GetValue64() const noexcept { return value64_; }

    /// "Local" / "LR", "Network" / "NR", any other source "Unknown" / "UR"; constant text.
    const char* GetRequestSourceString(bool shortForm) const noexcept;

private:
    std::uint32_t commandNumber_;
    RequestSource requestSource_;
    std::uint32_t thirdValue_;
    std::uint16_t fourthValue_;
    Data::Guid commandGuid_;
    std::int32_t reservedWord_;
    long long value64_;
};

}  // namespace Korv::Plurex::Notification
