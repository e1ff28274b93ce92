#include "PlurexData/channels/AbsoluteBoundary.h"

namespace Korv::Plurex::Data::Channels {

std::unique_ptr<Boundary> AbsoluteBoundary::Clone() const {
    return std::make_unique<AbsoluteBoundary>(*this);
}

bool AbsoluteBoundary::Equals(const Boundary& other) const {
    if (other.GetType() != Kind) {
        return false;
    }
    const auto* absolute = dynamic_cast<const AbsoluteBoundary*>(&other);
    return absolute != nullptr && absolute->timePoint_ == timePoint_;
}

bool AbsoluteBoundary::IsEmpty() const {
    return timePoint_ == TimePoints::TimePoint::Empty();
}

int AbsoluteBoundary::GetType() const {
    return Kind;
}

}  // namespace Korv::Plurex::Data::Channels
