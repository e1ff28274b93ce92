#include "Samples.h"

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

using namespace NotificationTests;

namespace {

void WatchAll(PlurexChannelNotifyer& n, Log& log) {
    WatchNumbered(log, n.recorderTransportProcessedCallbacks, n.playerLoadProcessedCallbacks,
                  n.playerTransportProcessedCallbacks);
    Watch(n.recorderStateChangedCallbacks, "recorder", log);
    Watch(n.playerStateChangedCallbacks, "player", log);
    WatchGeneric(n.genericCommandCallbacks, "g", log);
    WatchGeneric(n.genericStatusCallbacks, "s", log);
}

const ChannelGuid& Channel() {
    static const ChannelGuid guid(ChannelGuid::Type::First, 2, 1234);
    return guid;
}

}  // namespace

TEST(PlurexChannelNotifyer, EveryTypeValueReachesItsListThenTheGenericOne) {
    PlurexChannelNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    const std::shared_ptr<ChannelCommandEventArgs> commands[] = {
        std::make_shared<RecorderTransportProcessedEventArgs>(),
        std::make_shared<PlayerLoadProcessedEventArgs>(),
        std::make_shared<PlayerTransportProcessedEventArgs>(), std::make_shared<ChannelCommandEventArgs>()};
    for (std::int32_t type = 0; type < 4; ++type) {
        const std::string generic = "g" + std::to_string(type);
        EXPECT_EQ(Deliver(notifier, log, commands[type], static_cast<ChannelCommandEvent::Type>(type)),
                  type < 3 ? Calls({std::to_string(type), generic}) : Calls({generic}));
    }

    const std::shared_ptr<ChannelStatusEventArgs> statuses[] = {
        std::make_shared<RecorderStateChangedEventArgs>(Channel(), RecorderState::StatusChange::Name,
                                                        RecorderState()),
        std::make_shared<PlayerStateChangedEventArgs>(Channel(), PlayerState::StatusChange::Mode,
                                                      PlayerState()),
        std::make_shared<ChannelStatusEventArgs>(Channel()),
    };
    const Calls expected[] = {{"recorder", "s0"}, {"player", "s1"}, {"s2"}};
    for (std::int32_t type = 0; type < 3; ++type) {
        EXPECT_EQ(Deliver(notifier, log, statuses[type], static_cast<ChannelStatusEvent::Type>(type)),
                  expected[type]);
    }

    // One Run: the command first, then the status event.
    log.Clear();
    notifier.SendEvent(statuses[1], ChannelStatusEvent::Type::PlayerStateChanged);
    notifier.SendEvent(commands[1], ChannelCommandEvent::Type::PlayerLoadProcessed);
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"1", "g1", "player", "s1"}));
    log.Clear();
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());
}

TEST(PlurexChannelNotifyer, TheOneArgumentFormPostsUnderTheTypeOfItsClass) {
    PlurexChannelNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    using Command = ChannelCommandEvent::Type;
    using Status = ChannelStatusEvent::Type;
    ExpectTypedAsNamed(notifier, log, std::make_shared<RecorderTransportProcessedEventArgs>(),
                       Command::RecorderTransportProcessed, {"0", "g0"});
    ExpectTypedAsNamed(notifier, log, std::make_shared<PlayerLoadProcessedEventArgs>(),
                       Command::PlayerLoadProcessed, {"1", "g1"});
    ExpectTypedAsNamed(notifier, log, std::make_shared<PlayerTransportProcessedEventArgs>(),
                       Command::PlayerTransportProcessed, {"2", "g2"});
    ExpectTypedAsNamed(notifier, log,
                       std::make_shared<RecorderStateChangedEventArgs>(
                           Channel(), RecorderState::StatusChange::Name, RecorderState()),
                       Status::RecorderStateChanged, {"recorder", "s0"});
    ExpectTypedAsNamed(notifier, log,
                       std::make_shared<PlayerStateChangedEventArgs>(
                           Channel(), PlayerState::StatusChange::Mode, PlayerState()),
                       Status::PlayerStateChanged, {"player", "s1"});
}

TEST(PlurexChannelNotifyer, FailuresLoseTheEventAndSkipTheRestOfRun) {
    PlurexChannelNotifyer notifier;
    Log log;
    WatchAll(notifier, log);
    notifier.playerLoadProcessedCallbacks.insert(notifier.playerLoadProcessedCallbacks.begin(), nullptr);
    notifier.recorderStateChangedCallbacks.push_back(
        [](const RecorderStateChangedEventArgs&) { throw std::out_of_range("state"); });

    notifier.SendEvent(std::make_shared<PlayerLoadProcessedEventArgs>(),
                       ChannelCommandEvent::Type::PlayerLoadProcessed);
    notifier.SendEvent(std::make_shared<PlayerTransportProcessedEventArgs>(),
                       ChannelCommandEvent::Type::PlayerTransportProcessed);
    notifier.SendEvent(std::make_shared<RecorderStateChangedEventArgs>(
                           Channel(), RecorderState::StatusChange::None, RecorderState()),
                       ChannelStatusEvent::Type::RecorderStateChanged);
    notifier.SendEvent(std::make_shared<ChannelStatusEventArgs>(Channel()), ChannelStatusEvent::Type(9));
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_TRUE(log.calls.empty());
    EXPECT_THROW(notifier.Run(), std::out_of_range);
    EXPECT_EQ(log.calls, Calls({"2", "g2", "recorder"}));
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"2", "g2", "recorder", "s9"}));
    EXPECT_THROW(notifier.SendEvent(std::shared_ptr<ChannelStatusEventArgs>(), ChannelStatusEvent::Type(0)),
                 std::invalid_argument);
}

TEST(PlurexChannelNotifyer, ACallbackMayAppendCallbacksThatRunInTheSameRun) {
    PlurexChannelNotifyer notifier;
    EXPECT_EQ(
        AppendFromACallback(notifier, notifier.playerLoadProcessedCallbacks, notifier.genericCommandCallbacks,
                            std::make_shared<PlayerLoadProcessedEventArgs>(),
                            ChannelCommandEvent::Type::PlayerLoadProcessed),
        AppendedCalls());
    PlurexChannelNotifyer other;
    EXPECT_EQ(AppendFromACallback(other, other.playerStateChangedCallbacks, other.genericStatusCallbacks,
                                  std::make_shared<PlayerStateChangedEventArgs>(
                                      Channel(), PlayerState::StatusChange::Mode, PlayerState()),
                                  ChannelStatusEvent::Type::PlayerStateChanged),
              AppendedCalls());
}

TEST(PlurexChannelNotifyer, RefusesArgumentsOfAnotherClassThanTheTypeNames) {
    PlurexChannelNotifyer notifier;
    const std::string mismatch = "EventArgs do not match the event type";
    for (std::int32_t type = 0; type < 3; ++type) {
        EXPECT_THAT(
            [&] {
                notifier.SendEvent(std::make_shared<ChannelCommandEventArgs>(),
                                   static_cast<ChannelCommandEvent::Type>(type));
            },
            testing::ThrowsMessage<std::invalid_argument>(testing::StrEq(mismatch)));
    }
    EXPECT_THROW(notifier.SendEvent(std::make_shared<PlayerLoadProcessedEventArgs>(),
                                    ChannelCommandEvent::Type::PlayerTransportProcessed),
                 std::invalid_argument);
    EXPECT_THROW(notifier.SendEvent(std::make_shared<RecorderStateChangedEventArgs>(
                                        Channel(), RecorderState::StatusChange::Name, RecorderState()),
                                    ChannelStatusEvent::Type::PlayerStateChanged),
                 std::invalid_argument);
    Log log;
    WatchAll(notifier, log);
    notifier.Run();  // nothing was queued
    EXPECT_TRUE(log.calls.empty());
}

TEST(PlurexServerNotifyer, RefusesArgumentsOfAnotherClassAndLetsCallbacksAppend) {
    PlurexServerNotifyer notifier;
    EXPECT_THROW(
        notifier.SendEvent(std::make_shared<ServerAddedEventArgs>(), ServerStatusEvent::Type::ServerRemoved),
        std::invalid_argument);
    EXPECT_THROW(notifier.SendEvent(std::make_shared<ServerStatusEventArgs>(),
                                    ServerStatusEvent::Type::DisconnectedFromNetwork),
                 std::invalid_argument);
    EXPECT_EQ(AppendFromACallback(notifier, notifier.serverRemovedCallbacks, notifier.genericCallbacks,
                                  std::make_shared<ServerRemovedEventArgs>(),
                                  ServerStatusEvent::Type::ServerRemoved),
              AppendedCalls());
}

TEST(PlurexServerNotifyer, RoutesEveryTypeValueThroughItsSingleQueue) {
    PlurexServerNotifyer notifier;
    Log log;
    WatchNumbered(log, notifier.serverAddedCallbacks, notifier.serverRemovedCallbacks,
                  notifier.disconnectedFromNetworkCallbacks);
    WatchGeneric(notifier.genericCallbacks, "g", log);
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());

    const std::shared_ptr<ServerStatusEventArgs> events[] = {
        std::make_shared<ServerAddedEventArgs>(), std::make_shared<ServerRemovedEventArgs>(),
        std::make_shared<DisconnectedFromNetworkEventArgs>(), std::make_shared<ServerStatusEventArgs>(),
        std::make_shared<ServerAddedEventArgs>()};
    const std::int32_t types[] = {0, 1, 2, 3, -5};
    for (int i = 0; i < 5; ++i) {
        notifier.SendEvent(events[i], static_cast<ServerStatusEvent::Type>(types[i]));
    }
    for (int i = 0; i < 5; ++i) {
        notifier.Run();  // one event per call, first in first out
    }
    EXPECT_EQ(log.calls, Calls({"0", "g0", "1", "g1", "2", "g2", "g3", "g-5"}));
    EXPECT_EQ(log.objects[5], events[2].get());
    EXPECT_EQ(log.objects[7], events[4].get());

    using Type = ServerStatusEvent::Type;
    ExpectTypedAsNamed(notifier, log, std::make_shared<ServerAddedEventArgs>(), Type::ServerAdded,
                       {"0", "g0"});
    ExpectTypedAsNamed(notifier, log, std::make_shared<ServerRemovedEventArgs>(), Type::ServerRemoved,
                       {"1", "g1"});
    ExpectTypedAsNamed(notifier, log, std::make_shared<DisconnectedFromNetworkEventArgs>(),
                       Type::DisconnectedFromNetwork, {"2", "g2"});

    log.Clear();
    notifier.disconnectedFromNetworkCallbacks.insert(notifier.disconnectedFromNetworkCallbacks.begin(),
                                                     nullptr);
    notifier.SendEvent(events[2], ServerStatusEvent::Type::DisconnectedFromNetwork);
    notifier.SendEvent(events[0], ServerStatusEvent::Type::ServerAdded);
    EXPECT_THROW(notifier.Run(), std::bad_function_call);
    EXPECT_TRUE(log.calls.empty());
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"0", "g0"}));
}
