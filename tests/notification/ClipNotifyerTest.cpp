#include "Samples.h"

#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>
#include <utility>

using namespace NotificationTests;
using testing::StrEq;
using testing::ThrowsMessage;
using CommandType = ClipCommandEvent::Type;
using StatusType = ClipStatusEvent::Type;
using CT = ClipCreationEventArgs::CreationType;
using NT = ClipCreationEventArgs::NetworkType;

namespace {

// Every type value with arguments of the class it promises, and values outside the table carrying
// classes that have no list of their own.
std::vector<std::pair<std::int32_t, std::shared_ptr<ClipCommandEventArgs>>> Routes() {
    using std::make_shared;
    const Clip c;
    const OperationResult f = OperationResult::Failure;
    const std::int16_t e = -1;
    const std::uint8_t b = 1;
    const Angle a;
    const std::vector<Angle> angles(2);
    const Guid& g = SampleGuid();
    return {
        {0, make_shared<ClipCreationEventArgs>(COMMON, c, c, CT::Make, NT::Sdti)},
        {1, make_shared<ClipCreationFinishedEventArgs>(COMMON, c, c, CT::Copy, NT::Drovik)},
        {2, make_shared<ClipCreationFailedEventArgs>(COMMON, f, e, c, c, CT::Copy, NT::Drovik)},
        {3, make_shared<ClipUpdateFinishedEventArgs>(COMMON, true, c, c)},
        {4, make_shared<ClipUpdateFailedEventArgs>(COMMON, f, e, c, c)},
        {5, make_shared<ClipDeletionFinishedEventArgs>(COMMON, c, b, b)},
        {6, make_shared<ClipDeletionFailedEventArgs>(COMMON, f, e, c, b, b, b, true, false)},
        {7, make_shared<ClipMoveEventArgs>(COMMON, c, c)},
        {8, make_shared<ClipMoveFinishedEventArgs>(COMMON, c, c)},
        {9, make_shared<ClipMoveFailedEventArgs>(COMMON, f, e, c, c)},
        {10, make_shared<MassClipUpdateEventArgs>(COMMON, 5u)},
        {11, make_shared<MassClipUpdateFailedEventArgs>(COMMON, f, e, 5u)},
        {12, make_shared<MassClipDeletionEventArgs>(COMMON, 5u)},
        {13, make_shared<MassClipDeletionFailedEventArgs>(COMMON, f, e, 5u)},
        {14, make_shared<AnglesGroupCreationFinishedEventArgs>(9u, g, 1u, a, a, angles)},
        {15, make_shared<AnglesGroupCreationFailedEventArgs>(9u, g, f, e, 1u, a, a, angles)},
        {16, make_shared<AnglesGroupUpdateFinishedEventArgs>(9u, g, 1u, a, a, angles)},
        {17, make_shared<AnglesGroupUpdateFailedEventArgs>(9u, g, f, e, 1u, a, a, angles)},
        {18, make_shared<AnglesGroupDeletionFinishedEventArgs>(9u, g, 1u)},
        {19, make_shared<AnglesGroupDeletionFailedEventArgs>(9u, g, f, e, 1u)},
        // The started stages have no value of their own; posted above 19 they reach the generic list.
        {20, make_shared<ClipUpdateEventArgs>(COMMON, c, c)},
        {-1, make_shared<AnglesGroupDeletionEventArgs>(9u, g, 1u)},
        {0x7FFFFFFF, make_shared<ClipCommandEventArgs>(COMMON)},
    };
}

// One logging callback on every list, named after the type value it serves; the generic ones log
// "g" or "s" and the type.
void WatchAll(PlurexClipNotifyer& n, Log& log) {
    WatchNumbered(log, n.clipCreationCallbacks, n.clipCreationFinishedCallbacks,
                  n.clipCreationFailedCallbacks, n.clipUpdateFinishedCallbacks, n.clipUpdateFailedCallbacks,
                  n.clipDeletionFinishedCallbacks, n.clipDeletionFailedCallbacks, n.clipMoveCallbacks,
                  n.clipMoveFinishedCallbacks, n.clipMoveFailedCallbacks, n.massClipUpdateCallbacks,
                  n.massClipUpdateFailedCallbacks, n.massClipDeletionCallbacks,
                  n.massClipDeletionFailedCallbacks, n.anglesGroupCreationFinishedCallbacks,
                  n.anglesGroupCreationFailedCallbacks, n.anglesGroupUpdateFinishedCallbacks,
                  n.anglesGroupUpdateFailedCallbacks, n.anglesGroupDeletionFinishedCallbacks,
                  n.anglesGroupDeletionFailedCallbacks);
    Watch(n.recordingRangesChangedCallbacks, "ranges", log);
    WatchGeneric(n.genericCommandCallbacks, "g", log);
    WatchGeneric(n.genericStatusCallbacks, "s", log);
}

// Calls check((Classes*)nullptr) for each class in turn.
template <class... Classes, class Check>
void ForEach(Check&& check) {
    (check(static_cast<Classes*>(nullptr)), ...);
}

std::shared_ptr<MassClipUpdateEventArgs> Mass(std::uint32_t count) {
    return std::make_shared<MassClipUpdateEventArgs>(COMMON, count);
}

}  // namespace

TEST(PlurexClipNotifyer, EveryTypeValueReachesItsListThenTheGenericOne) {
    PlurexClipNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    for (const auto& [type, args] : Routes()) {
        const std::string generic = "g" + std::to_string(type);
        EXPECT_EQ(Deliver(notifier, log, args, static_cast<CommandType>(type)),
                  type >= 0 && type <= 19 ? Calls({std::to_string(type), generic}) : Calls({generic}))
            << type;
    }
    for (const std::int32_t type : {0, 1, -1}) {
        const std::string generic = "s" + std::to_string(type);
        EXPECT_EQ(Deliver(notifier, log, std::make_shared<RecordingRangesChangedEventArgs>(),
                          static_cast<StatusType>(type)),
                  type == 0 ? Calls({"ranges", generic}) : Calls({generic}))
            << type;
    }
}

// The one-argument SendEvent takes exactly the class of one specific list: not a base class, not a
// class without a list, not a derived or const class, not another notifier's class, and a table
// naming a class twice gives it no type.
static_assert(TakesTyped<PlurexClipNotifyer, ClipMoveEventArgs>::value);
static_assert(TakesTyped<PlurexClipNotifyer, RecordingRangesChangedEventArgs>::value);
static_assert(!TakesTyped<PlurexClipNotifyer, ClipCommandEventArgs>::value);
static_assert(!TakesTyped<PlurexClipNotifyer, ClipUpdateEventArgs>::value);
static_assert(!TakesTyped<PlurexClipNotifyer, AnglesGroupCreationEventArgs>::value);
static_assert(!TakesTyped<PlurexClipNotifyer, const ClipMoveEventArgs>::value);
static_assert(!TakesTyped<PlurexClipNotifyer, PlayerLoadProcessedEventArgs>::value);
static_assert(!TakesTyped<PlurexChannelNotifyer, RecordingRangesChangedEventArgs>::value);
static_assert(!TakesTyped<PlurexServerNotifyer, ServerStatusEventArgs>::value);
namespace {
struct OwnMove : ClipMoveEventArgs {};
using Twice = EventTypeTable<EventTypeRow<ClipMoveEventArgs, CommandType::ClipMove>,
                             EventTypeRow<ClipMoveEventArgs, CommandType::ClipCreation>,
                             EventTypeRow<ClipMoveFinishedEventArgs, CommandType::ClipMoveFinished>>;
}  // namespace
static_assert(!TakesTyped<PlurexClipNotifyer, OwnMove>::value);
static_assert(Twice::Count<ClipMoveEventArgs> == 2 && Twice::Count<OwnMove> == 0);
static_assert(Twice::Count<ClipMoveFinishedEventArgs> == 1 &&
              Twice::TypeOf<ClipMoveFinishedEventArgs> == CommandType::ClipMoveFinished);

// Each class of a specific list, in the order of the type values (and of Routes()), posted with the
// one-argument SendEvent, goes through the same lists as under its type named.
TEST(PlurexClipNotifyer, TheOneArgumentFormPostsUnderTheTypeOfItsClass) {
    PlurexClipNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    const auto routes = Routes();
    std::size_t i = 0;
    const auto check = [&](auto* tag) {
        using Args = std::remove_pointer_t<decltype(tag)>;
        const auto& [type, base] = routes.at(i++);
        const ClipCommandEventArgs& object = *base;
        ASSERT_EQ(typeid(object), typeid(Args)) << type;
        ExpectTypedAsNamed(notifier, log, std::static_pointer_cast<Args>(base),
                           static_cast<CommandType>(type),
                           {std::to_string(type), "g" + std::to_string(type)});
    };
    ForEach<ClipCreationEventArgs, ClipCreationFinishedEventArgs, ClipCreationFailedEventArgs,
            ClipUpdateFinishedEventArgs, ClipUpdateFailedEventArgs, ClipDeletionFinishedEventArgs,
            ClipDeletionFailedEventArgs, ClipMoveEventArgs, ClipMoveFinishedEventArgs,
            ClipMoveFailedEventArgs, MassClipUpdateEventArgs, MassClipUpdateFailedEventArgs,
            MassClipDeletionEventArgs, MassClipDeletionFailedEventArgs, AnglesGroupCreationFinishedEventArgs,
            AnglesGroupCreationFailedEventArgs, AnglesGroupUpdateFinishedEventArgs,
            AnglesGroupUpdateFailedEventArgs, AnglesGroupDeletionFinishedEventArgs,
            AnglesGroupDeletionFailedEventArgs>(check);
    EXPECT_EQ(i, 20u);
    ExpectTypedAsNamed(notifier, log, std::make_shared<RecordingRangesChangedEventArgs>(),
                       StatusType::RecordingRangesChanged, {"ranges", "s0"});
    log.Clear();
    EXPECT_THAT([&] { notifier.SendEvent(std::shared_ptr<ClipMoveEventArgs>()); },
                ThrowsMessage<std::invalid_argument>(StrEq("Null EventArgs")));
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());
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
    notifier.Run();
    notifier.Run();
    using Objects = std::vector<const Korv::System::EventArgs*>;
    EXPECT_EQ(log.objects, (Objects{e1.get(), e1.get(), e1.get(), e1.get(), status.get(), e2.get(), e2.get(),
                                    e2.get(), e2.get(), e3.get(), e3.get(), e3.get(), e3.get()}));
    log.Clear();
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());
}

TEST(PlurexClipNotifyer, ACallbackMayPostToTheSameQueue) {
    PlurexClipNotifyer notifier;
    Calls calls;
    notifier.massClipUpdateCallbacks.push_back([&](const MassClipUpdateEventArgs& args) {
        calls.push_back("count" + std::to_string(args.GetCount()));
        if (args.GetCount() < 3) {
            notifier.SendEvent(Mass(args.GetCount() + 1), CommandType::MassClipUpdate);
        }
    });
    auto first = Mass(1);
    const std::weak_ptr<MassClipUpdateEventArgs> released = first;
    notifier.SendEvent(std::move(first), CommandType::MassClipUpdate);
    notifier.Run();
    EXPECT_EQ(calls, Calls({"count1"}));
    EXPECT_TRUE(released.expired());  // the notifier let go of the delivered event
    notifier.Run();
    notifier.Run();
    notifier.Run();
    EXPECT_EQ(calls, Calls({"count1", "count2", "count3"}));
}

TEST(PlurexClipNotifyer, ACallbackMayAppendCallbacksThatRunInTheSameRun) {
    PlurexClipNotifyer notifier;
    EXPECT_EQ(AppendFromACallback(notifier, notifier.massClipUpdateCallbacks,
                                  notifier.genericCommandCallbacks, Mass(1), CommandType::MassClipUpdate),
              AppendedCalls());
    PlurexClipNotifyer other;
    EXPECT_EQ(AppendFromACallback(other, other.recordingRangesChangedCallbacks, other.genericStatusCallbacks,
                                  std::make_shared<RecordingRangesChangedEventArgs>(),
                                  StatusType::RecordingRangesChanged),
              AppendedCalls());
}

// Arguments under every type value: refused, before anything is queued, unless they are of the class
// the type's specific list receives or derived from it; values without a list take any class.
TEST(PlurexClipNotifyer, RefusesArgumentsOfAnotherClassThanTheTypeNames) {
    const auto routes = Routes();
    // (type, route) pairs where the route's class derives from the type's own class.
    const std::set<std::pair<std::int32_t, std::int32_t>> derived = {{0, 1}, {0, 2},   {7, 8},
                                                                     {7, 9}, {10, 11}, {12, 13}};
    PlurexClipNotifyer notifier;
    std::size_t delivered = 0;
    notifier.genericCommandCallbacks.push_back(
        [&](CommandType, const ClipCommandEventArgs&) { ++delivered; });
    std::size_t accepted = 0;
    for (std::int32_t type = -1; type <= 21; ++type) {
        for (const auto& [route, args] : routes) {
            const bool ok = type < 0 || type > 19 || type == route || derived.count({type, route}) != 0;
            if (ok) {
                EXPECT_NO_THROW(notifier.SendEvent(args, static_cast<CommandType>(type)))
                    << type << ' ' << route;
                ++accepted;
            } else {
                const auto& posted = args;  // C++17 lambdas cannot capture a structured binding
                EXPECT_THAT(
                    [&] { notifier.SendEvent(posted, static_cast<CommandType>(type)); },
                    ThrowsMessage<std::invalid_argument>(StrEq("EventArgs do not match the event type")))
                    << type << ' ' << route;
            }
        }
    }
    for (std::size_t i = 0; i < accepted + 1; ++i) {
        notifier.Run();
    }
    EXPECT_EQ(delivered, accepted);

    EXPECT_THAT([&] { notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(0)); },
                ThrowsMessage<std::invalid_argument>(StrEq("EventArgs do not match the event type")));
    EXPECT_NO_THROW(notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(1)));
}

TEST(PlurexClipNotifyer, AFailingCallbackLosesTheEventAndSkipsTheRestOfRun) {
    PlurexClipNotifyer notifier;
    Log log;
    Watch(notifier.massClipUpdateCallbacks, "before", log);
    notifier.massClipUpdateCallbacks.push_back(nullptr);
    Watch(notifier.massClipUpdateCallbacks, "after", log);
    notifier.genericCommandCallbacks.push_back([](CommandType type, const ClipCommandEventArgs&) {
        if (type == CommandType::MassClipDeletion) {
            throw std::runtime_error("callback failed");
        }
    });
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);

    auto lost = Mass(1);
    const std::weak_ptr<MassClipUpdateEventArgs> released = lost;
    notifier.SendEvent(std::move(lost), CommandType::MassClipUpdate);
    notifier.SendEvent(std::make_shared<MassClipDeletionEventArgs>(COMMON, 2u),
                       CommandType::MassClipDeletion);
    notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(1));
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_EQ(log.calls, Calls({"before"}));
    EXPECT_TRUE(released.expired());
    EXPECT_THAT([&] { notifier.Run(); }, ThrowsMessage<std::runtime_error>(StrEq("callback failed")));
    notifier.Run();  // the status event waited through both failures
    EXPECT_EQ(log.calls, Calls({"before", "s1"}));

    // A failing status callback comes after the command half, which is delivered.
    notifier.genericStatusCallbacks.insert(notifier.genericStatusCallbacks.begin(), nullptr);
    notifier.SendEvent(Mass(4), CommandType(30));
    notifier.SendEvent(std::make_shared<ClipStatusEventArgs>(), StatusType(4));
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_EQ(log.calls, Calls({"before", "s1", "g30"}));
}

TEST(PlurexClipNotifyer, RefusesNullArgumentsAndDropsWhatIsLeftWhenDestroyed) {
    std::weak_ptr<ClipStatusEventArgs> left;
    {
        PlurexClipNotifyer notifier;
        Log log;
        WatchGeneric(notifier.genericCommandCallbacks, "g", log);
        WatchGeneric(notifier.genericStatusCallbacks, "s", log);
        EXPECT_THAT(
            [&] { notifier.SendEvent(std::shared_ptr<ClipCommandEventArgs>(), CommandType::ClipMove); },
            ThrowsMessage<std::invalid_argument>(StrEq("Null EventArgs")));
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
