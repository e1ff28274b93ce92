#include "PlurexData/cuepoints/CuePointDeleteCommand.h"

#include <stdexcept>

namespace Korv::Plurex::BusinessObjects::CuePoints {

namespace {

const CuePointDeleteCommand& NonNull(const CuePointDeleteCommand* other) {
    if (other == nullptr) {
        throw std::invalid_argument("Null CuePointDeleteCommand");
    }
    return *other;
}

}  // namespace

CuePointDeleteCommand::CuePointDeleteCommand(const CuePointDeleteCommand* other)
    : CuePointDeleteCommand(NonNull(other)) {}

bool CuePointDeleteCommand::operator==(const CuePointDeleteCommand* other) const noexcept {
    return other != nullptr && clipId_ == other->clipId_ && train_ == other->train_;
}

void CuePointDeleteCommand::Clear() noexcept {
    clipId_ = Data::Clips::UmId::Empty();
    train_ = false;
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
