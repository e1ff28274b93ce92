#include "PlurexData/notification/AnglesGroupDeletionFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupDeletionFinishedEventArgs::AnglesGroupDeletionFinishedEventArgs(std::uint32_t commandNumber,
                                                                           const Data::Guid& commandGuid,
                                                                           std::uint32_t value)
    : AnglesGroupDeletionEventArgs(commandNumber, commandGuid, value) {}

AnglesGroupDeletionFinishedEventArgs::~AnglesGroupDeletionFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification
