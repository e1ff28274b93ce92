#include "PlurexData/notification/ClipCommandEventArgs.h"

namespace Korv::Plurex::Notification {

ClipCommandEventArgs::ClipCommandEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                           std::uint32_t thirdValue, std::uint16_t fourthValue,
                                           const Data::Guid& commandGuid, long long value64)
    : commandNumber_(commandNumber),
      requestSource_(requestSource),
      thirdValue_(thirdValue),
      fourthValue_(fourthValue),
      commandGuid_(commandGuid),
      reservedWord_(-1),
      value64_(value64) {}

ClipCommandEventArgs::~ClipCommandEventArgs() = default;

const char* ClipCommandEventArgs::GetRequestSourceString(bool shortForm) const noexcept {
    switch (requestSource_) {
        case RequestSource::Local:
            return shortForm ? "LR" : "Local";
        case RequestSource::Network:
            return shortForm ? "NR" : "Network";
        default:
            return shortForm ? "UR" : "Unknown";
    }
}

}  // namespace Korv::Plurex::Notification
