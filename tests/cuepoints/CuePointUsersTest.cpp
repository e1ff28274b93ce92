#include "Marks.h"
#include "PlurexData/cuepoints/CuePointCache.h"
#include "PlurexData/cuepoints/CuePointUsers.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace CuePointTests;
using namespace Korv::Plurex::BusinessObjects::CuePoints;
using Korv::Plurex::Data::Clips::KepId;
using Type = CuePointDbEventType;
using Lines = std::vector<std::string>;

namespace {

// Records every event of the process-wide delegate while a test runs, and leaves the delegate as it
// found it.
class CuePointUsersTest : public ::testing::Test {
protected:
    // Each event as "user type tc number clip[ train]"; a removal of all shows its delete command.
    void SetUp() override {
        token_ = CuePointUsers::cuePointDbDelegate.Add([this](const CuePointDbEventArgs& args) {
            const CuePoint& mark = args.GetCuePoint();
            const bool all = args.GetType() == Type::CuePointsRemovedAll;
            const bool train = all ? args.GetDeleteCommand().IsTrain() : mark.IsTrain();
            events_.push_back(std::to_string(args.GetUser()) + " " +
                              std::to_string(static_cast<int>(args.GetType())) + " " +
                              std::to_string(mark.GetTc()) + " " + std::to_string(mark.GetNumber()) + " " +
                              (all ? args.GetDeleteCommand().GetClipId() : mark.GetUmId()).GetUmId() +
                              (train ? " train" : ""));
        });
    }
    void TearDown() override { CuePointUsers::cuePointDbDelegate.Remove(token_); }

    Lines Take() { return std::exchange(events_, {}); }

    static CuePoint Filled(long long tc, const char* clip, bool train, int server = 1) {
        CuePoint mark;
        CuePointUsers::FillCuePoint(tc, server, 'A', train, 0, clip, 123, mark);
        return mark;
    }
    // Adds a fresh filled mark and gives back what the add wrote into it.
    CuePoint Added(int user, long long tc, const char* clip, bool train, int expected = 2) {
        CuePoint mark = Filled(tc, clip, train);
        EXPECT_EQ(users_.AddCuePoint(user, mark), expected) << tc;
        return mark;
    }

    CuePointUsers users_;
    Lines events_;
    Korv::System::Delegate<void(const CuePointDbEventArgs&)>::Token token_ = 0;
};

// The text of UmId::Empty().
const std::string Spaces(8, ' ');

}  // namespace

TEST_F(CuePointUsersTest, AnOperatorsSession) {
    users_.SetCacheUser(1, 7);
    for (long long tc : {300, 100, 200}) {
        Added(1, tc, "REC", true);
    }
    EXPECT_EQ(Added(1, 200, "REC", true, 1).GetNumber(), 3);
    Added(1, 40, "CLIPA", false);
    EXPECT_EQ(Take(),
              (Lines{"1 1 300 1 REC train", "1 1 100 2 REC train", "1 1 200 3 REC train", "1 1 40 1 CLIPA"}));

    CuePoint lookup = Filled(0x100000000LL + 100, "ANY", true);
    EXPECT_TRUE(users_.FindCuePoint(1, lookup) == 2 && lookup.GetTc() == 100);
    CuePoint next;
    EXPECT_TRUE(users_.FindCuePointAfter(1, lookup, next) && next.GetTc() == 200);
    EXPECT_TRUE(users_.FindCuePointBefore(1, next, lookup) && lookup.GetTc() == 100);

    EXPECT_TRUE(users_.RemoveCuePoint(1, Filled(100, "REC", true)));
    EXPECT_FALSE(users_.RemoveCuePoint(1, Filled(100, "REC", true)));
    EXPECT_TRUE(users_.RemoveCuePoint(1, Filled(40, "CLIPA", false)));
    EXPECT_EQ(Take(), (Lines{"1 2 100 0 REC train", "1 2 40 0 CLIPA"}));

    // A train copy into a clip: no event.
    users_.CopyCuePoint(
        1, CuePointCopyCommand(UmId(), true, UmId("CLIPB"), 0, 1000, 'B', ServerId(10), KepId()));
    EXPECT_TRUE(users_.GetCuePointCount(1, "CLIPB", false) == 2 && !users_.IsListEmpty(1, "CLIPB", false));
    List list;
    users_.GetCuePointList(1, "CLIPB", false, list);
    EXPECT_EQ(Numbers(list), (Nums{1, 2}));
    EXPECT_EQ(Take(), Lines{});

    users_.RemoveAllCuePointOfUser(1);
    EXPECT_EQ(Take(), (Lines{"1 4 0 0 " + Spaces + " train"}));
    EXPECT_EQ(users_.GetCuePointCount(1, UmId(), true), 0);
    EXPECT_TRUE(users_.HasCacheCuePoints(1, 7) && !users_.HasCacheCuePoints(1, 8));

    // The controller comes back: the saved marks return with the saved counter.
    Added(1, 50, "REC", true);
    users_.SetCuePoint(8, 1);
    EXPECT_EQ(users_.GetCuePointCount(1, "REC", true), 1);
    users_.SetCuePoint(7, 1);
    users_.GetCuePointList(1, UmId(), true, list);
    EXPECT_EQ(Positions(list), (Tcs{50, 200, 300}));
    EXPECT_EQ(Numbers(list), (Nums{1, 3, 1}));
    EXPECT_EQ(Added(1, 250, "REC", true).GetNumber(), 4);
    EXPECT_EQ(Take(), (Lines{"1 1 50 1 REC train", "1 1 250 4 REC train"}));
}

TEST_F(CuePointUsersTest, UsersOutsideZeroToThreeDoNothing) {
    for (int user : {4, -1}) {
        CuePoint mark = Added(user, 10, "REC", true, 0);
        EXPECT_FALSE(mark.GetNumber() != 0 || users_.RemoveCuePoint(user, mark));
        EXPECT_TRUE(users_.FindCuePoint(user, mark) == 0 && users_.FindCuePointByZoom(user, mark) == 0);
        users_.RemoveAllCuePointOfUser(user);
        users_.RemoveAllCuePointOfUser(user, CuePointDeleteCommand());
        users_.SetCurrentClipToDelete(user, 0, CuePointDeleteCommand(UmId("X"), true));
        EXPECT_TRUE(users_.GetCurrentClipToDelete(user, 0) == CuePointDeleteCommand());
        users_.SetCurrentUserCommand(user, CuePointUsers::cue_point_user_command{2});
        EXPECT_EQ(users_.GetCurrentUserCommand(user), CuePointUsers::cue_point_user_command{});
        users_.SetCacheUser(user, 1);
        users_.SetCuePointsIntoCache(static_cast<short>(user));
        EXPECT_FALSE(users_.HasCacheCuePoints(user, 1) || users_.IsListEmpty(user, "REC", true) ||
                     users_.GetCuePointCount(user, "REC", true) != 0);
    }
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(CuePointUsersTest, RemovingAllRaisesWithTheCommandAndCachesOnlyWithAController) {
    Added(2, 10, "REC", true);
    users_.RemoveAllCuePointOfUser(2);  // no controller attached: nothing saved
    EXPECT_FALSE(users_.HasCacheCuePoints(2, 0));
    users_.RemoveAllCuePointOfUser(3, CuePointDeleteCommand(UmId("NONE"), false));
    EXPECT_EQ(Take(), (Lines{"2 1 10 1 REC train", "2 4 0 0 " + Spaces + " train", "3 4 0 0 NONE"}));

    // Saved with counter 0: stored, but not restored.
    users_.SetCacheUser(0, 5);
    users_.RemoveAllCuePointOfUser(0);
    EXPECT_TRUE(users_.HasCacheCuePoints(0, 5));
    Added(0, 10, "REC", true);
    users_.SetCuePoint(5, 0);
    EXPECT_EQ(users_.GetCuePointCount(0, "", true), 1);

    users_.CopyCuePoint(0, CuePointCopyCommand(UmId(), true, UmId("C"), 0, 99, 'B', ServerId(10), KepId()));
    EXPECT_EQ(users_.GetCuePointCount(0, "C", false), 1);
    users_.RemoveAllCuePointOfClip(0);
    EXPECT_EQ(users_.GetCuePointCount(0, "C", false), 0);
}

TEST_F(CuePointUsersTest, FillCuePointAndTheSharedDelegate) {
    CuePoint mark;
    mark.SetNumber(42);
    CuePointUsers::FillCuePoint(-5, 3, 'C', true, 8, "CLIPZ", 123, mark);
    EXPECT_TRUE(mark.GetTc() == -5 && mark.GetCamera() == 'C' && mark.IsTrain() && mark.GetPcx() == 8 &&
                mark.GetServerId().GetValue() == 30 && mark.GetZoom() == -1 && mark.GetNumber() == 42);
    EXPECT_EQ(mark.GetKepId().ToString(), "123C/   30");
    EXPECT_STREQ(mark.GetUmId().GetUmId(), "CLIPZ");
    EXPECT_THROW(CuePointUsers::FillCuePoint(0, 0, 'C', true, 0, "X", 123, mark), std::invalid_argument);

    // Every registry of the process raises through the one delegate; zoom -1 is kept on adding.
    CuePointUsers other;
    CuePoint fresh = Filled(9, "REC", false, 2);
    other.AddCuePoint(3, fresh);
    EXPECT_EQ(fresh.GetZoom(), -1);
    EXPECT_EQ(Take(), (Lines{"3 1 9 1 REC"}));
}

TEST(CuePointCache, StoresUnderThePortsCurrentController) {
    CuePointCache cache;
    cache.SetCuePoints(0, {TrainMark(1)}, 1);  // no controller attached yet: dropped
    cache.SetPortAndController(0, 9);
    cache.SetCuePoints(0, {TrainMark(1), TrainMark(2)}, 2);
    cache.SetPortAndController(0, 4);
    cache.SetCuePoints(0, {}, 0);
    EXPECT_EQ(cache.GetCuePoints(0, 9).GetIndex(), 2);
    EXPECT_EQ(Positions(cache.GetCuePoints(0, 9).GetCuePoints()), (Tcs{1, 2}));
    EXPECT_TRUE(cache.HasCuePoints(0, 4) && cache.GetCuePoints(0, 4).GetCuePoints().empty());
    EXPECT_FALSE(cache.HasCuePoints(0, 0) || cache.HasCuePoints(1, 9));
    EXPECT_EQ(&cache.GetCuePoints(1, 9), &cache.GetCuePoints(3, 0));
    EXPECT_EQ(cache.GetCuePoints(1, 9).GetIndex(), 0);
}
