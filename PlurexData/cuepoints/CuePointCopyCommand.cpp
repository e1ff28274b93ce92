#include "PlurexData/cuepoints/CuePointCopyCommand.h"

#include <stdexcept>

namespace Korv::Plurex::BusinessObjects::CuePoints {

using Data::Clips::KepId;
using Data::Clips::UmId;
using Data::Servers::ServerId;

namespace {

const CuePointCopyCommand& NonNull(const CuePointCopyCommand* other) {
    if (other == nullptr) {
        throw std::invalid_argument("Null CuePointCopyCommand");
    }
    return *other;
}

}  // namespace

CuePointCopyCommand::CuePointCopyCommand()
    : source_(),
      destination_(),
      fieldIn_(0),
      fieldOut_(0),
      camera_(0),
      serverId_(ServerId::None()),
      kepId_(),
      train_(false) {}

CuePointCopyCommand::CuePointCopyCommand(const UmId& source, bool train, const UmId& destination,
                                         long long fieldIn, long long fieldOut, char camera,
                                         const ServerId& serverId, const KepId& kepId)
    : source_(source),
      destination_(destination),
      fieldIn_(fieldIn),
      fieldOut_(fieldOut),
      camera_(camera),
      serverId_(serverId),
      kepId_(kepId),
      train_(train) {}

CuePointCopyCommand::CuePointCopyCommand(const CuePointCopyCommand* other)
    : CuePointCopyCommand(NonNull(other)) {}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
