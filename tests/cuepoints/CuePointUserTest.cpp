#include "Marks.h"
#include "PlurexData/cuepoints/CuePointClip.h"
#include "PlurexData/cuepoints/CuePointUser.h"
#include "PlurexData/data/clips/KepId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <vector>

using namespace CuePointTests;
using namespace Korv::Plurex::BusinessObjects::CuePoints;
using Korv::Plurex::Data::Clips::KepId;

TEST(CuePointClip, CopiesShareListAndCounter) {
    CuePointClip clip(UmId("CLIPA"), 4);
    const CuePointClip copy = clip;
    copy.GetList()->push_back(Mark(10));
    *copy.GetIndex() = 7;
    EXPECT_EQ(clip.GetItem(0).GetTc(), 10);
    EXPECT_THROW(clip.GetItem(1), std::out_of_range);
    EXPECT_THROW(clip.GetItem(-1), std::out_of_range);
    EXPECT_FALSE(clip.RemoveCuePoint(Mark(10, "CLIPA", 20)));
    EXPECT_TRUE(clip.RemoveCuePoint(Mark(0x100000000LL + 10, "OTHER")));  // same server, low half
    copy.GetList()->push_back(Mark(10));
    clip.ClearCuePointList();
    EXPECT_EQ(copy.GetCuePointCount(), 0);
    EXPECT_EQ(*clip.GetIndex(), 7);  // shared, and kept by a clear

    EXPECT_TRUE(clip == CuePointClip(UmId("CLIPA"), 1));
    EXPECT_FALSE(clip.Equals(CuePointClip(UmId("CLIPA", true), 1)) ||
                 clip.Equals(static_cast<const CuePointClip*>(nullptr)));
    ExpectThrow<std::invalid_argument>([&] { clip.EqualsFind(static_cast<const CuePointClip*>(nullptr)); },
                                       "Null CuePointClip");
}

TEST(CuePointUser, AddNumbersDetectsDuplicatesAndEvictsTheLowest) {
    CuePointUser user(3, 32);
    for (long long tc : {20, 30, 10}) {
        EXPECT_EQ(Add(user, TrainMark(tc)), 2);
    }
    EXPECT_EQ(Positions(user.GetCuePoints()), (Tcs{10, 20, 30}));
    EXPECT_EQ(Numbers(user.GetCuePoints()), (Nums{3, 1, 2}));
    EXPECT_EQ(user.GetCuePoints()[0].GetZoom(), 3);  // zoom 0 takes the number

    CuePoint again = TrainMark(0x100000000LL + 20);
    again.SetPcx(99);
    EXPECT_EQ(user.AddCuePointToList(again), 1);
    EXPECT_TRUE(again.GetNumber() == 1 && again.GetTc() == 20 && again.GetPcx() == 0);  // the stored one
    EXPECT_EQ(user.GetIndex(), 3);

    CuePoint five = TrainMark(5);
    five.SetZoom(-1);
    EXPECT_TRUE(user.AddCuePointToList(five) == 2 && five.GetNumber() == 4 && five.GetZoom() == -1);
    EXPECT_EQ(Positions(user.GetCuePoints()), (Tcs{5, 20, 30}));
    Add(user, TrainMark(25));
    EXPECT_EQ(Positions(user.GetCuePoints()), (Tcs{20, 25, 30}));
    Add(user, TrainMark(1, 20));  // sorts after every mark of server 10
    EXPECT_EQ(Positions(user.GetCuePoints()), (Tcs{25, 30, 1}));
}

TEST(CuePointUser, ListsGiveOutNineHundredNinetyNineNumbers) {
    CuePointUser user(4, 4);
    for (int i = 1; i <= 999; ++i) {
        CuePoint mark = Mark(i);
        ASSERT_EQ(user.AddCuePointToList(mark), 2);
        ASSERT_EQ(mark.GetNumber(), i);
        Add(user, TrainMark(i));
    }
    user.ClearCuePointList(UmId("CLIPA"));
    EXPECT_EQ(user.GetClipCount(), 1);
    CuePoint refused = Mark(5000);
    EXPECT_TRUE(user.AddCuePointToList(refused) == 0 && refused.GetNumber() == 0);
    EXPECT_TRUE(user.IsListEmpty(UmId("CLIPA"), false));

    CuePoint train = TrainMark(5000);
    EXPECT_EQ(user.AddCuePointToList(train), 0);
    user.ClearCuePointList();
    EXPECT_TRUE(user.AddCuePointToList(train) == 2 && train.GetNumber() == 1);
}

TEST(CuePointUser, FindsStayOnTheKeysServerAndLeaveAnEntryForUnknownClips) {
    CuePointUser user(8, 8);
    for (auto [tc, server] : {std::pair{10, 10}, {20, 10}, {30, 20}, {15, 20}}) {
        Add(user, TrainMark(tc, server));
    }
    CuePoint found;
    EXPECT_TRUE(user.FindCuePointAfter(TrainMark(12), found) && found.GetTc() == 20);
    EXPECT_FALSE(user.FindCuePointAfter(TrainMark(20), found));
    EXPECT_TRUE(user.FindCuePointBefore(TrainMark(20), found) && found.GetTc() == 10);
    EXPECT_FALSE(user.FindCuePointBefore(TrainMark(12, 20), found));
    EXPECT_TRUE(user.FindCuePointInList(TrainMark(0x100000000LL + 30, 20), found) && found.GetNumber() == 3);

    CuePoint byZoom = TrainMark(0, 20);
    byZoom.SetZoom(4);
    EXPECT_TRUE(user.FindCuePointInListByZoom(byZoom, found) && found.GetTc() == 15);
    byZoom.SetZoom(0);   // matches only a stored zoom of 0
    found = CuePoint();  // and leaves `found` untouched
    EXPECT_FALSE(user.FindCuePointInListByZoom(byZoom, found) || found.GetServerId().GetValue() != -1);

    EXPECT_EQ(user.GetClipCount(), 0);
    EXPECT_FALSE(user.FindCuePointInList(Mark(1, "GHOST"), found));
    EXPECT_EQ(*user.GetIndex(Mark(1, "GHOST")), 0);  // the find left an entry
    ExpectThrow<std::out_of_range>([&] { user.GetIndex(Mark(1, "NONE")); }, "CuePoint not found");
    std::shared_ptr<List> list;
    user.GetList(TrainMark(0), list);
    EXPECT_EQ(list, user.GetList(TrainMark(1)));
    EXPECT_EQ(list->size(), 4U);
}

TEST(CuePointUser, RemovalRules) {
    CuePointUser user(8, 8);
    for (const CuePoint& mark : {Mark(10, "ONE"), Mark(10, "TWO"), Mark(20, "TWO")}) {
        Add(user, mark);
    }
    EXPECT_FALSE(user.RemoveCuePointToListOfClip(Mark(99, "TWO")));
    EXPECT_TRUE(user.RemoveCuePointToListOfClip(Mark(20, "TWO")));
    EXPECT_EQ(user.GetCuePointCount(UmId("TWO"), false), 1);

    // The last cue point takes the entry and its counter with it.
    EXPECT_TRUE(user.RemoveCuePointToListOfClip(Mark(10, "ONE")));
    EXPECT_EQ(user.GetClipCount(), 1);
    CuePoint back = Mark(30, "ONE");
    EXPECT_TRUE(user.AddCuePointToList(back) == 2 && back.GetNumber() == 1);
    // An entry without cue points goes even when nothing matched.
    CuePoint found;
    user.FindCuePointInList(Mark(0, "EMPTY"), found);
    EXPECT_TRUE(user.RemoveCuePointToListOfClip(Mark(1, "EMPTY")));
    EXPECT_FALSE(user.RemoveCuePointToListOfClip(Mark(1, "EMPTY")));

    Add(user, TrainMark(7));
    EXPECT_FALSE(user.RemoveCuePoint(Mark(10, "TWO")));  // train list only
    EXPECT_TRUE(user.RemoveCuePointToListOfClip(TrainMark(7)));
    EXPECT_EQ(user.GetIndex(), 1);

    user.RemoveAllCuePoint(CuePointDeleteCommand(UmId::Empty(), false));
    user.RemoveAllCuePoint(CuePointDeleteCommand(UmId("NONE"), false));
    EXPECT_EQ(user.GetClipCount(), 2);
    user.RemoveAllCuePoint(CuePointDeleteCommand(UmId("TWO"), false));
    EXPECT_TRUE(user.GetClipCount() == 1 && user.GetCuePointCount(UmId("TWO"), false) == 0);
    Add(user, TrainMark(7));
    user.RemoveAllCuePoint(CuePointDeleteCommand(UmId("ONE"), true));
    EXPECT_TRUE(user.IsListEmpty() && user.GetIndex() == 0 && user.GetClipCount() == 1);

    EXPECT_TRUE(user.RemoveCuePointClip(CuePointClip(UmId("ONE"), 1)));
    EXPECT_FALSE(user.RemoveCuePointClip(CuePointClip(UmId("ONE"), 1)));
    EXPECT_TRUE(user.IsListEmpty(static_cast<const UmId*>(nullptr), false) &&
                user.IsListEmpty(UmId::Empty(), false));
}

TEST(CuePointUser, CopyFromAClipRenumbersAndKeepsZoom) {
    CuePointUser user(8, 8);
    Add(user, Mark(500, "DST"));
    for (long long tc : {30, 10, 20}) {
        CuePoint mark = Mark(tc, "SRC");
        mark.SetZoom(static_cast<int>(tc) + 1);
        mark.SetPcx(static_cast<int>(tc));
        Add(user, mark);
    }
    const KepId kep(123, 'B', ServerId(40));
    user.CopyCuePoint(CuePointCopyCommand(UmId("SRC"), false, UmId("DST"), 99, 0, 'B', ServerId(40), kep));
    // The new entry is appended though DST had one; the adds went to the first.
    EXPECT_EQ(user.GetClipCount(), 3);
    List copied;
    user.GetCuePointList(UmId("DST"), false, copied);
    EXPECT_EQ(Positions(copied), (Tcs{500, 10, 20, 30}));  // server 10 before 40
    EXPECT_EQ(Numbers(copied), (Nums{1, 2, 3, 4}));
    for (std::size_t i = 1; i < copied.size(); ++i) {
        const CuePoint& c = copied[i];
        EXPECT_TRUE(c.GetZoom() == c.GetTc() + 1 && c.GetPcx() == c.GetTc() && c.GetCamera() == 'B' &&
                    c.GetServerId().GetValue() == 40 && c.GetKepId().Equals(kep) && !c.IsTrain());
    }
    user.CopyCuePoint(CuePointCopyCommand(UmId("NONE"), false, UmId("NEW"), 0, 0, 'B', ServerId(40), kep));
    EXPECT_EQ(user.GetClipCount(), 3);
}

TEST(CuePointUser, CopyFromTheTrainTakesTheLastMarksOfTheStretch) {
    CuePointUser user(64, 4);
    for (long long tc = 1; tc <= 10; ++tc) {
        CuePoint mark = TrainMark(tc * 10);
        mark.SetZoom(static_cast<int>(tc));
        Add(user, mark);
    }
    Add(user, TrainMark(0x100000000LL + 55));  // low half inside the stretch, the whole tc not
    Add(user, TrainMark(55, 20));
    CuePointCopyCommand command(UmId("TRAIN"), true, UmId("DST"), 50, 10, 'C', ServerId(10), KepId());
    user.CopyCuePoint(command);
    EXPECT_EQ(user.GetClipCount(), 0);

    command.SetFieldIn(10);
    command.SetFieldOut(100);
    user.CopyCuePoint(command);
    List copied;
    user.GetCuePointList(UmId("DST"), false, copied);
    EXPECT_EQ(Positions(copied), (Tcs{70, 80, 90, 100}));
    EXPECT_EQ(Numbers(copied), (Nums{1, 2, 3, 4}));
    EXPECT_TRUE(copied[0].GetZoom() == 7 && copied[0].GetCamera() == 'C' && !copied[0].IsTrain());

    command.SetFieldIn(30);
    command.SetFieldOut(30);
    user.CopyCuePoint(command);
    user.GetCuePointList(UmId("DST"), false, copied);
    EXPECT_EQ(Positions(copied), (Tcs{30, 80, 90, 100}));  // 70 evicted
}

TEST(CuePointUser, PendingDeletesAndCapacities) {
    CuePointUser user(1, 1);
    const CuePointDeleteCommand command(UmId("CLIP"), true);
    for (int slot : {9, 10, -1}) {
        user.SetCurrentClipToDelete(slot, command);
    }
    EXPECT_TRUE(user.GetCurrentClipToDelete(9) == command);
    EXPECT_TRUE(user.GetCurrentClipToDelete(10) == CuePointDeleteCommand());
    EXPECT_TRUE(user.GetCurrentClipToDelete(0) == CuePointDeleteCommand());
    user.ClearAllCurrentClipToDelete();
    EXPECT_TRUE(user.GetCurrentClipToDelete(9) == CuePointDeleteCommand(UmId::Empty(), false));

    ExpectThrow<std::invalid_argument>([] { CuePointUser(0, 1); }, "Invalid maxTrainCuePoints: 0");
    ExpectThrow<std::invalid_argument>([] { CuePointUser(1, -5); }, "Invalid maxClipCuePoints: -5");
}

TEST(CuePointUser, KeepsTheListSortedAsAppendingAndSortingWould) {
    std::mt19937_64 random(7);
    CuePointUser user(256, 32);
    List model;  // what callers see: append, then sort the whole list by CuePoint <
    // Positions within one 2^31 window (the order is consistent there), spread over the high halves
    // and across the 32-bit wrap.
    for (int i = 0; i < 3000; ++i) {
        const auto tc =
            static_cast<long long>((random() & ~0xFFFFFFFFULL) + 0xC0000000ULL + random() % 0x7FFFFFFFULL);
        CuePoint mark = TrainMark(tc, random() % 4 == 0 ? 20 : 10);
        if (user.AddCuePointToList(mark) == 2) {
            if (model.size() == 256) {
                model.erase(model.begin());
            }
            model.push_back(mark);
            std::stable_sort(model.begin(), model.end(), [](auto& a, auto& b) { return a < b; });
        }
        if (*user.GetIndex(mark) == 998) {
            *user.GetIndex(mark) = 0;
        }
    }
    ASSERT_EQ(model.size(), 256U);
    EXPECT_EQ(Positions(user.GetCuePoints()), Positions(model));

    // A restore appends unsorted; the next add sorts the whole list.
    CuePointUser small(4, 4);
    Add(small, TrainMark(2));
    small.SetCuePoint({TrainMark(3), TrainMark(1)}, 5);
    EXPECT_EQ(Positions(small.GetCuePoints()), (Tcs{2, 3, 1}));
    CuePoint zero = TrainMark(0);
    EXPECT_TRUE(small.AddCuePointToList(zero) == 2 && zero.GetNumber() == 6);
    EXPECT_EQ(Positions(small.GetCuePoints()), (Tcs{0, 1, 2, 3}));
    Add(small, TrainMark(4));
    EXPECT_EQ(Positions(small.GetCuePoints()), (Tcs{1, 2, 3, 4}));
}

// Restores append behind what the list holds, however often; the next add then sorts the whole list
// (stably, as appending and sorting would), here 65,536 cue points, which insertion sorted in seconds.
TEST(CuePointUser, AnAddSortsAListGrownByRepeatedRestores) {
    std::mt19937_64 random(3);
    List saved;
    for (int i = 0; i < 256; ++i) {
        saved.push_back(TrainMark(static_cast<long long>(random() % 0x7FFFFFFFULL), i % 3 == 0 ? 20 : 10));
    }
    CuePointUser user(256, 32);
    List model;
    for (int restore = 0; restore < 256; ++restore) {
        user.SetCuePoint(saved, 1);
        model.insert(model.end(), saved.begin(), saved.end());
    }
    CuePoint mark = TrainMark(0x40000000LL);
    ASSERT_EQ(user.AddCuePointToList(mark), 2);
    model.erase(model.begin());
    model.push_back(mark);
    std::stable_sort(model.begin(), model.end(), [](auto& a, auto& b) { return a < b; });
    ASSERT_EQ(user.GetCuePoints().size(), 65536U);
    EXPECT_TRUE(Positions(user.GetCuePoints()) == Positions(model));
    EXPECT_TRUE(std::equal(model.begin(), model.end(), user.GetCuePoints().begin(),
                           [](auto& a, auto& b) { return a.GetServerId() == b.GetServerId(); }));
}

TEST(CuePointUser, ArbitraryPositionsNeverLeaveTheList) {
    // Positions more than 2^31 apart make the order inconsistent; adding must stay in bounds (the
    // sanitizer builds check) and keep the capacity and the numbering. Low halves exactly 2^31
    // apart are each less than the other: sixteen of one then one of the other is a list that
    // std::sort with this order reads outside of.
    CuePointUser crafted(18, 1);
    List restored = {TrainMark(1)};
    for (long long high = 1; high <= 16; ++high) {
        restored.push_back(TrainMark((high << 32) + 0x80000000LL));
    }
    restored.push_back(TrainMark(0x700000000LL));
    crafted.SetCuePoint(restored, 1);
    CuePoint between = TrainMark(0x40000000LL);
    EXPECT_EQ(crafted.AddCuePointToList(between), 2);
    restored.front() = between;  // the first evicted
    const Tcs positions = Positions(crafted.GetCuePoints()), expected = Positions(restored);
    EXPECT_TRUE(std::is_permutation(positions.begin(), positions.end(), expected.begin(), expected.end()));

    std::mt19937_64 random(11);
    CuePointUser user(256, 32);
    List unsorted;
    for (int i = 0; i < 300; ++i) {
        unsorted.push_back(TrainMark(static_cast<long long>(random())));
    }
    user.SetCuePoint(unsorted, 0);
    for (int i = 0; i < 900; ++i) {
        const auto tc = static_cast<long long>(random());
        CuePoint mark = i % 2 == 0 ? TrainMark(tc) : Mark(tc);
        ASSERT_EQ(user.AddCuePointToList(mark), 2);
    }
    EXPECT_EQ(user.GetCuePoints().size(), 300U);  // one evicted per add
    EXPECT_EQ(user.GetCuePointCount(UmId("CLIPA"), false), 32);
}
