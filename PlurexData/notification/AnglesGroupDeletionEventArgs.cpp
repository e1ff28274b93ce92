#include "PlurexData/notification/AnglesGroupDeletionEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupDeletionEventArgs::AnglesGroupDeletionEventArgs(std::uint32_t commandNumber,
                                                           const Data::Guid& commandGuid, std::uint32_t value)
    : ClipCommandEventArgs(commandNumber, RequestSource::Unknown, 0, 0, commandGuid, -1), value_(value) {}

AnglesGroupDeletionEventArgs::~AnglesGroupDeletionEventArgs() = default;

}  // namespace Korv::Plurex::Notification
