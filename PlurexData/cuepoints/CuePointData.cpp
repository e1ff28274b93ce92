#include "PlurexData/cuepoints/CuePointData.h"

#include <stdexcept>

namespace Korv::Data {

namespace {

const CuePointData& NonNull(const CuePointData* other) {
    if (other == nullptr) {
        throw std::invalid_argument("Null CuePointData");
    }
    return *other;
}

}  // namespace

CuePointData::CuePointData(const CuePointData* other) : CuePointData(NonNull(other)) {}

bool CuePointData::Equals(const CuePointData& other) const {
    return Equals(&other);
}

bool CuePointData::Equals(const CuePointData* other) const {
    const CuePointData& checked = NonNull(other);
    return tc_ == checked.tc_ && umid_.Equals(checked.umid_);
}

std::int32_t CuePointData::CompareTo(const CuePointData* other) const noexcept {
    return other == nullptr ? 1 : ComparePositions(tc_, other->tc_);
}

}  // namespace Korv::Data
