#include "PlurexData/cuepoints/CuePoint.h"

#include <stdexcept>

namespace Korv::Plurex::BusinessObjects::CuePoints {

using Data::Clips::KepId;
using Data::Clips::UmId;
using Data::Servers::ServerId;

namespace {

const CuePoint& NonNull(const CuePoint* other) {
    if (other == nullptr) {
        throw std::invalid_argument("Null CuePoint");
    }
    return *other;
}

}  // namespace

CuePoint::CuePoint()
    : data_(),
      number_(0),
      pcx_(0),
      camera_(0),
      serverId_(ServerId::None()),
      kepId_(),
      train_(false),
      zoom_(0) {}

CuePoint::CuePoint(long long tc, int pcx, char camera, const ServerId& serverId, const UmId& umid,
                   const KepId& kepId, bool train)
    : data_(tc, umid),
      number_(0),
      pcx_(pcx),
      camera_(camera),
      serverId_(serverId),
      kepId_(kepId),
      train_(train),
      zoom_(0) {}

CuePoint::CuePoint(long long tc, int pcx, char camera, const ServerId& serverId, const UmId& umid, bool train)
    : CuePoint(tc, pcx, camera, serverId, umid, KepId(), train) {}

CuePoint::CuePoint(long long tc, int pcx, const ServerId& serverId, const UmId& umid, bool train)
    : CuePoint(tc, pcx, 0, serverId, umid, KepId(), train) {}

CuePoint::CuePoint(const CuePoint* other) : CuePoint(NonNull(other)) {}

std::int32_t CuePoint::CompareTo(const CuePoint* other) const noexcept {
    return other == nullptr ? 1 : CompareTo(*other);
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
