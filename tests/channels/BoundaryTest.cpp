#include "PlurexData/channels/AbsoluteBoundary.h"

#include <gtest/gtest.h>

using Korv::Plurex::Data::Channels::AbsoluteBoundary;
using Korv::Plurex::Data::Channels::Boundary;
using Korv::TimePoints::TimePoint;

namespace {
// A boundary of another kind at the same time point.
class RelativeBoundary : public Boundary {
public:
    explicit RelativeBoundary(TimePoint point) : point_(point) {}
    std::unique_ptr<Boundary> Clone() const override { return std::make_unique<RelativeBoundary>(*this); }
    bool Equals(const Boundary&) const override { return true; }
    bool IsEmpty() const override { return false; }
    int GetType() const override { return 1; }

private:
    TimePoint point_;
};
}  // namespace

TEST(AbsoluteBoundary, EqualityCloneAndEmptiness) {
    const AbsoluteBoundary empty(TimePoint::Empty()), at5(TimePoint(5));
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_FALSE(at5.IsEmpty());
    EXPECT_EQ(at5.GetType(), 0);
    EXPECT_TRUE(at5 == AbsoluteBoundary(TimePoint(5)));
    EXPECT_FALSE(at5 == empty);
    EXPECT_FALSE(at5.Equals(RelativeBoundary(TimePoint(5))));

    const std::unique_ptr<Boundary> clone = at5.Clone();
    ASSERT_NE(dynamic_cast<AbsoluteBoundary*>(clone.get()), nullptr);
    EXPECT_TRUE(clone->Equals(at5));
}
