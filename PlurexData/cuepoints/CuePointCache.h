#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// Saved train lists, per port (a user number) and the controller that drove the port when they
/// were saved, so that they can be put back when that controller returns.
class PLUREXDATA_API CuePointCache {
public:
    /// One saved list with the train counter at the time of saving.
    class PLUREXDATA_API CacheItem {
    public:
        /// No cue points, index 0.
        CacheItem() noexcept : cuePoints_(), index_(0) {}
        /// Keeps `cuePoints` (moved in) with the train counter `index`.
        CacheItem(std::vector<CuePoint> cuePoints, std::int32_t index) noexcept
            : cuePoints_(std::move(cuePoints)), index_(index) {}

        /// The saved train list, in its order at the time of saving.
        const std::vector<CuePoint>& GetCuePoints() const noexcept { return cuePoints_; }
        /// The train counter at the time of saving.
        std::int32_t GetIndex() const noexcept { return index_; }

    private:
        std::vector<CuePoint> cuePoints_;
        std::int32_t index_;
    };

    /// Attaches `controller` to `port`, replacing the one there was.
    void SetPortAndController(std::int16_t port, std::uint8_t controller);
    /// Stores a copy of the list and the counter under the port and its current controller,
    /// replacing what was there; nothing when the port has no controller.
    void SetCuePoints(std::int16_t port, const std::vector<CuePoint>& cuePoints, std::int32_t index);
    /// Whether something is stored under the pair, even an empty list.
    bool HasCuePoints(std::int16_t port, std::uint8_t controller) const;
    /// The stored item, or a shared empty one (no cue points, index 0). The reference lasts until
    /// the next change of the cache.
    const CacheItem& GetCuePoints(std::int16_t port, std::uint8_t controller) const;

private:
    using Key = std::pair<std::int16_t, std::uint8_t>;

    std::map<std::int16_t, Key> portControllers_;
    std::map<Key, CacheItem> items_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
