#include "PlurexData/cuepoints/CuePointCache.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

void CuePointCache::SetPortAndController(std::int16_t port, std::uint8_t controller) {
    portControllers_[port] = Key(port, controller);
}

void CuePointCache::SetCuePoints(std::int16_t port, const std::vector<CuePoint>& cuePoints,
                                 std::int32_t index) {
    const auto attached = portControllers_.find(port);
    if (attached == portControllers_.end()) {
        return;
    }
    items_[attached->second] = CacheItem(cuePoints, index);
}

bool CuePointCache::HasCuePoints(std::int16_t port, std::uint8_t controller) const {
    return items_.count(Key(port, controller)) != 0;
}

const CuePointCache::CacheItem& CuePointCache::GetCuePoints(std::int16_t port,
                                                            std::uint8_t controller) const {
    static const CacheItem empty;
    const auto found = items_.find(Key(port, controller));
    return found == items_.end() ? empty : found->second;
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
