#include "PlurexData/notification/ClipCreationEventArgs.h"

namespace Korv::Plurex::Notification {

ClipCreationEventArgs::ClipCreationEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                             std::uint32_t thirdValue, std::uint16_t fourthValue,
                                             const Data::Guid& commandGuid, long long value64,
                                             const Data::Clips::Clip& clipBefore,
                                             const Data::Clips::Clip& clipAfter, CreationType creationType,
                                             NetworkType networkType)
    : ClipCommandEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64),
      clipBefore_(clipBefore),
      clipAfter_(clipAfter),
      creationType_(creationType),
      networkType_(networkType) {}

ClipCreationEventArgs::~ClipCreationEventArgs() = default;

const char* ClipCreationEventArgs::GetCreationTypeString() const noexcept {
    switch (creationType_) {
        case CreationType::Make:
            return "Make";
        case CreationType::Copy:
            return "Copy";
        case CreationType::QorvaneRestore:
            return "QorvaneRestore";
        case CreationType::DrovikRestore:
            return "DrovikRestore";
        default:
            return "Unknown";
    }
}

const char* ClipCreationEventArgs::GetNetworkTypeString() const noexcept {
    switch (networkType_) {
        case NetworkType::Sdti:
            return "Sdti";
        case NetworkType::Drovik:
            return "Drovik";
        case NetworkType::PushSdti:
            return "PushSdti";
        case NetworkType::PushDrovik:
            return "PushDrovik";
        case NetworkType::PushUnknown:
            return "PushUnknown";
        default:
            return "Unknown";
    }
}

}  // namespace Korv::Plurex::Notification
