#include "Samples.h"

#include "PlurexData/notification/PlurexClipNotifyer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Korv::Plurex::Notification;
using namespace NotificationTests;
using Korv::Plurex::Data::OperationResult;
using Korv::Plurex::Data::Clips::Angle;
using CommandType = ClipCommandEvent::Type;
using StatusType = ClipStatusEvent::Type;

namespace {

using Calls = std::vector<std::string>;
using Make = std::function<std::shared_ptr<ClipCommandEventArgs>()>;

#define COMMON 1u, Source::Local, 2u, std::uint16_t{3}, SampleGuid(), 4LL

template <class Args, class... Rest>
Make Maker(Rest... rest) {
    return [=] { return std::make_shared<Args>(rest...); };
}

// Every type value with arguments of the class it promises, and values outside the table carrying
// classes that have no list of their own.
struct Route {
    std::int32_t type;
    Make make;
};

std::vector<Route> Routes() {
    const Clip clip;
    const OperationResult failure = OperationResult::Failure;
    const std::int16_t code = -1;
    const std::vector<Angle> angles(2);
    return {
        {0, Maker<ClipCreationEventArgs>(COMMON, clip, clip, ClipCreationEventArgs::CreationType::Make,
                                         ClipCreationEventArgs::NetworkType::Sdti)},
        {1,
         Maker<ClipCreationFinishedEventArgs>(COMMON, clip, clip, ClipCreationEventArgs::CreationType::Copy,
                                              ClipCreationEventArgs::NetworkType::Drovik)},
        {2, Maker<ClipCreationFailedEventArgs>(COMMON, failure, code, clip, clip,
                                               ClipCreationEventArgs::CreationType::Copy,
                                               ClipCreationEventArgs::NetworkType::Drovik)},
        {3, Maker<ClipUpdateFinishedEventArgs>(COMMON, true, clip, clip)},
        {4, Maker<ClipUpdateFailedEventArgs>(COMMON, failure, code, clip, clip)},
        {5, Maker<ClipDeletionFinishedEventArgs>(COMMON, clip, std::uint8_t{1}, std::uint8_t{2})},
        {6, Maker<ClipDeletionFailedEventArgs>(COMMON, failure, code, clip, std::uint8_t{1}, std::uint8_t{2},
                                               std::uint8_t{3}, true, false)},
        {7, Maker<ClipMoveEventArgs>(COMMON, clip, clip)},
        {8, Maker<ClipMoveFinishedEventArgs>(COMMON, clip, clip)},
        {9, Maker<ClipMoveFailedEventArgs>(COMMON, failure, code, clip, clip)},
        {10, Maker<MassClipUpdateEventArgs>(COMMON, 5u)},
        {11, Maker<MassClipUpdateFailedEventArgs>(COMMON, failure, code, 5u)},
        {12, Maker<MassClipDeletionEventArgs>(COMMON, 5u)},
        {13, Maker<MassClipDeletionFailedEventArgs>(COMMON, failure, code, 5u)},
        {14, Maker<AnglesGroupCreationFinishedEventArgs>(9u, SampleGuid(), 1u, Angle{}, Angle{}, angles)},
        {15, Maker<AnglesGroupCreationFailedEventArgs>(9u, SampleGuid(), failure, code, 1u, Angle{}, Angle{},
                                                       angles)},
        {16, Maker<AnglesGroupUpdateFinishedEventArgs>(9u, SampleGuid(), 1u, Angle{}, Angle{}, angles)},
        {17, Maker<AnglesGroupUpdateFailedEventArgs>(9u, SampleGuid(), failure, code, 1u, Angle{}, Angle{},
                                                     angles)},
        {18, Maker<AnglesGroupDeletionFinishedEventArgs>(9u, SampleGuid(), 1u)},
        {19, Maker<AnglesGroupDeletionFailedEventArgs>(9u, SampleGuid(), failure, code, 1u)},
        // The started stages have no value of their own; posted above 19 they reach the generic list.
        {20, Maker<ClipUpdateEventArgs>(COMMON, clip, clip)},
        {25, Maker<ClipDeletionEventArgs>(COMMON, clip, std::uint8_t{1}, std::uint8_t{2})},
        {-1, Maker<AnglesGroupDeletionEventArgs>(9u, SampleGuid(), 1u)},
        {0x7FFFFFFF, Maker<ClipCommandEventArgs>(COMMON)},
    };
}

// One logging callback on every list, named after the type value it serves; the generic ones log
// "g" or "s" and the type.
void WatchAll(PlurexClipNotifyer& notifier, Log& log) {
    Watch(notifier.clipCreationCallbacks, "0", log);
    Watch(notifier.clipCreationFinishedCallbacks, "1", log);
    Watch(notifier.clipCreationFailedCallbacks, "2", log);
    Watch(notifier.clipUpdateFinishedCallbacks, "3", log);
    Watch(notifier.clipUpdateFailedCallbacks, "4", log);
    Watch(notifier.clipDeletionFinishedCallbacks, "5", log);
    Watch(notifier.clipDeletionFailedCallbacks, "6", log);
    Watch(notifier.clipMoveCallbacks, "7", log);
    Watch(notifier.clipMoveFinishedCallbacks, "8", log);
    Watch(notifier.clipMoveFailedCallbacks, "9", log);
    Watch(notifier.massClipUpdateCallbacks, "10", log);
    Watch(notifier.massClipUpdateFailedCallbacks, "11", log);
    Watch(notifier.massClipDeletionCallbacks, "12", log);
    Watch(notifier.massClipDeletionFailedCallbacks, "13", log);
    Watch(notifier.anglesGroupCreationFinishedCallbacks, "14", log);
    Watch(notifier.anglesGroupCreationFailedCallbacks, "15", log);
    Watch(notifier.anglesGroupUpdateFinishedCallbacks, "16", log);
    Watch(notifier.anglesGroupUpdateFailedCallbacks, "17", log);
    Watch(notifier.anglesGroupDeletionFinishedCallbacks, "18", log);
    Watch(notifier.anglesGroupDeletionFailedCallbacks, "19", log);
    Watch(notifier.recordingRangesChangedCallbacks, "ranges", log);
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);
}

std::shared_ptr<MassClipUpdateEventArgs> Mass(std::uint32_t count) {
    return std::make_shared<MassClipUpdateEventArgs>(COMMON, count);
}

}  // namespace

TEST(PlurexClipNotifyer, EveryTypeValueReachesItsListThenTheGenericOne) {
    PlurexClipNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    for (const Route& route : Routes()) {
        log.Clear();
        const std::shared_ptr<ClipCommandEventArgs> args = route.make();
        notifier.SendEvent(args, static_cast<CommandType>(route.type));
        notifier.Run();
        const std::string generic = "g" + std::to_string(route.type);
        const Calls expected =
            route.type >= 0 && route.type <= 19 ? Calls{std::to_string(route.type), generic} : Calls{generic};
        EXPECT_EQ(log.calls, expected) << route.type;
        for (const auto* object : log.objects) {
            EXPECT_EQ(object, args.get()) << route.type;  // shared, never copied
        }
    }

    for (const std::int32_t type : {0, 1, -1}) {
        log.Clear();
        const auto args = std::make_shared<RecordingRangesChangedEventArgs>();
        notifier.SendEvent(args, static_cast<StatusType>(type));
        notifier.Run();
        const std::string generic = "s" + std::to_string(type);
        EXPECT_EQ(log.calls, type == 0 ? Calls({"ranges", generic}) : Calls({generic})) << type;
        EXPECT_EQ(log.objects.back(), args.get());
    }
}

TEST(PlurexClipNotifyer, DeliversOneEventPerQueuePerRunInOrder) {
    PlurexClipNotifyer notifier;
    Log log;
    notifier.Run();  // nothing queued, nothing registered

    Watch(notifier.massClipUpdateCallbacks, "a", log);
    Watch(notifier.massClipUpdateCallbacks, "b", log);
    WatchGeneric(notifier.genericCommandCallbacks, "ga", log);
    WatchGeneric(notifier.genericCommandCallbacks, "gb", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());

    const auto e1 = Mass(1), e2 = Mass(2), e3 = Mass(3);
    const auto status = std::make_shared<ClipStatusEventArgs>();
    for (const auto& e : {e1, e2, e3}) {
        notifier.SendEvent(e, CommandType::MassClipUpdate);
    }
    notifier.SendEvent(status, StatusType(5));
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"a", "b", "ga10", "gb10", "s5"}));
    EXPECT_EQ(log.objects, (std::vector<const Korv::System::EventArgs*>{e1.get(), e1.get(), e1.get(),
                                                                        e1.get(), status.get()}));
    log.Clear();
    notifier.Run();
    notifier.Run();
    EXPECT_EQ(log.objects,
              (std::vector<const Korv::System::EventArgs*>{e2.get(), e2.get(), e2.get(), e2.get(), e3.get(),
                                                           e3.get(), e3.get(), e3.get()}));
    log.Clear();
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());
}

TEST(PlurexClipNotifyer, ACallbackMayPostToTheSameQueue) {
    PlurexClipNotifyer notifier;
    Log log;
    std::weak_ptr<MassClipUpdateEventArgs> released;
    notifier.massClipUpdateCallbacks.push_back([&](const MassClipUpdateEventArgs& args) {
        log.calls.push_back("count" + std::to_string(args.GetCount()));
        if (args.GetCount() < 3) {
            notifier.SendEvent(Mass(args.GetCount() + 1), CommandType::MassClipUpdate);
        }
    });
    auto first = Mass(1);
    released = first;
    notifier.SendEvent(std::move(first), CommandType::MassClipUpdate);
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"count1"}));
    EXPECT_TRUE(released.expired());  // the notifier let go of the delivered event
    notifier.Run();
    notifier.Run();
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"count1", "count2", "count3"}));
}

TEST(PlurexClipNotifyer, AnEmptyCallbackLosesTheEventAndSkipsTheRestOfRun) {
    PlurexClipNotifyer notifier;
    Log log;
    Watch(notifier.massClipUpdateCallbacks, "before", log);
    notifier.massClipUpdateCallbacks.push_back(nullptr);
    Watch(notifier.massClipUpdateCallbacks, "after", log);
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);

    auto lost = Mass(1);
    const std::weak_ptr<MassClipUpdateEventArgs> released = lost;
    notifier.SendEvent(std::move(lost), CommandType::MassClipUpdate);
    notifier.SendEvent(Mass(2), CommandType::MassClipDeletion);
    notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(1));
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_EQ(log.calls, Calls({"before"}));
    EXPECT_TRUE(released.expired());

    notifier.Run();  // the next event, and the status event that waited
    EXPECT_EQ(log.calls, Calls({"before", "g12", "s1"}));
}

TEST(PlurexClipNotifyer, ACallbackExceptionLeavesRunTheSameWay) {
    PlurexClipNotifyer notifier;
    Log log;
    notifier.genericCommandCallbacks.push_back(
        [](CommandType, const ClipCommandEventArgs&) { throw std::runtime_error("callback failed"); });
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);
    notifier.SendEvent(Mass(1), CommandType::MassClipUpdate);
    notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(3));
    try {
        notifier.Run();
        ADD_FAILURE() << "Run did not throw";
    } catch (const std::runtime_error& e) {
        EXPECT_STREQ(e.what(), "callback failed");
    }
    EXPECT_TRUE(log.calls.empty());
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"s3"}));

    // A failing status callback comes after the command half, which is delivered.
    notifier.genericCommandCallbacks.clear();
    notifier.genericStatusCallbacks.insert(notifier.genericStatusCallbacks.begin(), nullptr);
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    notifier.SendEvent(Mass(1), CommandType::MassClipUpdate);
    notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(4));
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_EQ(log.calls, Calls({"s3", "g10"}));
}

TEST(PlurexClipNotifyer, RefusesNullArgumentsAndDropsWhatIsLeftWhenDestroyed) {
    std::weak_ptr<ClipStatusEventArgs> left;
    {
        PlurexClipNotifyer notifier;
        Log log;
        WatchAll(notifier, log);
        try {
            notifier.SendEvent(std::shared_ptr<ClipCommandEventArgs>(), CommandType::ClipMove);
            ADD_FAILURE() << "no exception";
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), "Null EventArgs");
        }
        EXPECT_THROW(
            notifier.SendEvent(std::shared_ptr<ClipStatusEventArgs>(), StatusType::RecordingRangesChanged),
            std::invalid_argument);
        notifier.Run();
        EXPECT_TRUE(log.calls.empty());

        auto status = std::make_shared<ClipStatusEventArgs>();
        left = status;
        notifier.SendEvent(std::move(status), StatusType(2));
        EXPECT_FALSE(left.expired());
    }
    EXPECT_TRUE(left.expired());
}
