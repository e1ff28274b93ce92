#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/data/clips/UmId.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// The cue points of one clip, kept sorted by the user that owns them. Copies share the list and the
/// numbering counter: every copy sees and changes the same cue points.
class PLUREXDATA_API CuePointClip {
public:
    /// The cue points, sorted by CuePoint <.
    using List = std::vector<CuePoint>;

    /// An empty placeholder without list or counter: only copying, assigning and destroying are
    /// allowed on it.
    CuePointClip() noexcept;
    /// A new empty list with storage for `capacity` cue points and a new counter at 0.
    CuePointClip(const Data::Clips::UmId& umid, std::int32_t capacity);

    /// The clip.
    Data::Clips::UmId GetUmId() const noexcept { return umid_; }
    /// The capacity given at construction: storage is reserved for it, CuePointUser enforces it.
    std::int32_t GetCapacity() const noexcept { return capacity_; }
    /// The shared list and numbering counter: the handles themselves, not copies of what they hold.
    ///@{
    const std::shared_ptr<List>& GetList() const noexcept { return list_; }
    const std::shared_ptr<std::int32_t>& GetIndex() const noexcept { return index_; }
    ///@}
    /// The number of cue points in the list.
    std::int32_t GetCuePointCount() const noexcept { return static_cast<std::int32_t>(list_->size()); }
    /// A copy of the i-th cue point; std::out_of_range when i is negative or not below the count.
    CuePoint GetItem(std::int32_t i) const;

    /// Empties the list; the counter stays.
    void ClearCuePointList() noexcept { list_->clear(); }
    /// Erases the first cue point == `cuePoint` (same server, same low half of the position); true
    /// if there was one.
    bool RemoveCuePoint(const CuePoint& cuePoint);

    /// Same clip (UmId::Equals, so the unicode flag counts); false for a null `other`.
    ///@{
    bool Equals(const CuePointClip& other) const noexcept { return Equals(&other); }
    bool Equals(const CuePointClip* other) const noexcept;
    bool operator==(const CuePointClip& other) const noexcept { return Equals(other); }
    ///@}
    /// As Equals, but a null `other` throws std::invalid_argument("Null CuePointClip").
    ///@{
    bool EqualsFind(const CuePointClip& other) const { return EqualsFind(&other); }
    bool EqualsFind(const CuePointClip* other) const;
    ///@}

private:
    std::shared_ptr<List> list_;
    Data::Clips::UmId umid_;
    std::shared_ptr<std::int32_t> index_;
    std::int32_t capacity_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
