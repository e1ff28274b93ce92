#include "PlurexData/channels/AbsoluteBoundary.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

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

// A kind whose own operator== disagrees with its Equals, to see which one a Boundary& reaches.
class StrictBoundary : public RelativeBoundary {
public:
    using RelativeBoundary::RelativeBoundary;
    bool operator==(const Boundary&) const override { return false; }
};

// The virtual table slot of a member function. Under the Itanium C++ ABI (g++ and clang on Linux) a
// pointer to a virtual member function holds 1 + the byte offset of its slot.
template <class Member>
std::ptrdiff_t SlotOf(Member member) {
    struct {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } representation;
    static_assert(sizeof member == sizeof representation);
    std::memcpy(&representation, &member, sizeof representation);
    return (representation.pointer - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}
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

// Slots 0 and 1 are the destructors; then Clone, operator==, Equals, IsEmpty, GetType, so a client's
// own kind of boundary overrides operator== through the base class.
TEST(Boundary, VirtualOperationsInTheirSlotOrder) {
    EXPECT_EQ(SlotOf(&Boundary::Clone), 2);
    EXPECT_EQ(SlotOf(&Boundary::operator==), 3);
    EXPECT_EQ(SlotOf(&Boundary::Equals), 4);
    EXPECT_EQ(SlotOf(&Boundary::IsEmpty), 5);
    EXPECT_EQ(SlotOf(&Boundary::GetType), 6);

    const StrictBoundary strict(TimePoint(5));
    const Boundary& base = strict;
    EXPECT_TRUE(base.Equals(strict));
    EXPECT_FALSE(base == strict);
    const RelativeBoundary relative(TimePoint(5));
    EXPECT_TRUE(static_cast<const Boundary&>(relative) == strict);  // the default calls Equals
}
