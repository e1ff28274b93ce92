#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/Boundary.h"
#include "PlurexData/timepoints/TimePoint.h"

namespace Korv::Plurex::Data::Channels {

/// A boundary at a time point; empty when the time point is TimePoint::Empty().
class PLUREXDATA_API AbsoluteBoundary : public Boundary {
public:
    /// What GetType() returns for this kind.
    static constexpr int Kind = 0;

    /// A boundary at `timePoint`; TimePoint::Empty() makes an empty one.
    explicit AbsoluteBoundary(const TimePoints::TimePoint& timePoint) noexcept : timePoint_(timePoint) {}

    /// The time point.
    const TimePoints::TimePoint& GetTimePoint() const noexcept { return timePoint_; }

    std::unique_ptr<Boundary> Clone() const override;
    /// False for a boundary of another kind, even at the same time point.
    bool Equals(const Boundary& other) const override;
    /// True when the time point is TimePoint::Empty().
    bool IsEmpty() const override;
    int GetType() const override;

private:
    TimePoints::TimePoint timePoint_;
};

}  // namespace Korv::Plurex::Data::Channels
