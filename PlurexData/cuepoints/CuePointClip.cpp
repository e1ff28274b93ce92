#include "PlurexData/cuepoints/CuePointClip.h"

#include <algorithm>
#include <stdexcept>

namespace Korv::Plurex::BusinessObjects::CuePoints {

CuePointClip::CuePointClip() noexcept : list_(), umid_(), index_(), capacity_(0) {}

CuePointClip::CuePointClip(const Data::Clips::UmId& umid, std::int32_t capacity)
    : list_(std::make_shared<List>()),
      umid_(umid),
      index_(std::make_shared<std::int32_t>(0)),
      capacity_(capacity) {
    if (capacity_ > 0) {
        list_->reserve(static_cast<std::size_t>(capacity_));
    }
}

CuePoint CuePointClip::GetItem(std::int32_t i) const {
    // Read as unsigned 32-bit, so a negative index is refused with the same message on every platform.
    return list_->at(static_cast<std::uint32_t>(i));
}

bool CuePointClip::RemoveCuePoint(const CuePoint& cuePoint) {
    const auto found = std::find(list_->begin(), list_->end(), cuePoint);
    if (found == list_->end()) {
        return false;
    }
    list_->erase(found);
    return true;
}

bool CuePointClip::Equals(const CuePointClip* other) const noexcept {
    return other != nullptr && umid_.Equals(other->umid_);
}

bool CuePointClip::EqualsFind(const CuePointClip* other) const {
    if (other == nullptr) {
        throw std::invalid_argument("Null CuePointClip");
    }
    return Equals(other);
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
