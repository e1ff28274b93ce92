#include "Samples.h"

#include "PlurexData/notification/PlurexChannelNotifyer.h"
#include "PlurexData/notification/PlurexServerNotifyer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Korv::Plurex::Notification;
using namespace NotificationTests;
using Korv::Plurex::Data::Channels::PlayerState;
using Korv::Plurex::Data::Channels::RecorderState;
using ChannelGuid = Korv::Plurex::Data::Channels::Guid;

namespace {

using Calls = std::vector<std::string>;

void WatchAll(PlurexChannelNotifyer& notifier, Log& log) {
    Watch(notifier.recorderTransportProcessedCallbacks, "0", log);
    Watch(notifier.playerLoadProcessedCallbacks, "1", log);
    Watch(notifier.playerTransportProcessedCallbacks, "2", log);
    Watch(notifier.recorderStateChangedCallbacks, "recorder", log);
    Watch(notifier.playerStateChangedCallbacks, "player", log);
    WatchGeneric(notifier.genericCommandCallbacks, "g", log);
    WatchGeneric(notifier.genericStatusCallbacks, "s", log);
}

void WatchAll(PlurexServerNotifyer& notifier, Log& log) {
    Watch(notifier.serverAddedCallbacks, "0", log);
    Watch(notifier.serverRemovedCallbacks, "1", log);
    Watch(notifier.disconnectedFromNetworkCallbacks, "2", log);
    WatchGeneric(notifier.genericCallbacks, "g", log);
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
    const std::vector<std::function<std::shared_ptr<ChannelCommandEventArgs>()>> commands = {
        [] { return std::make_shared<RecorderTransportProcessedEventArgs>(); },
        [] { return std::make_shared<PlayerLoadProcessedEventArgs>(); },
        [] { return std::make_shared<PlayerTransportProcessedEventArgs>(); },
        [] { return std::make_shared<ChannelCommandEventArgs>(); },
    };
    for (std::int32_t type = 0; type < 4; ++type) {
        log.Clear();
        const auto args = commands[static_cast<std::size_t>(type)]();
        notifier.SendEvent(args, static_cast<ChannelCommandEvent::Type>(type));
        notifier.Run();
        const std::string generic = "g" + std::to_string(type);
        EXPECT_EQ(log.calls, type < 3 ? Calls({std::to_string(type), generic}) : Calls({generic})) << type;
        EXPECT_EQ(log.objects.back(), args.get());
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
        log.Clear();
        notifier.SendEvent(statuses[type], static_cast<ChannelStatusEvent::Type>(type));
        notifier.Run();
        EXPECT_EQ(log.calls, expected[type]) << type;
        EXPECT_EQ(log.objects.front(), statuses[type].get());
    }

    // One Run: the command first, then the status event.
    log.Clear();
    notifier.SendEvent(statuses[1], ChannelStatusEvent::Type::PlayerStateChanged);
    notifier.SendEvent(commands[1](), ChannelCommandEvent::Type::PlayerLoadProcessed);
    notifier.Run();
    EXPECT_EQ(log.calls, Calls({"1", "g1", "player", "s1"}));
    log.Clear();
    notifier.Run();
    EXPECT_TRUE(log.calls.empty());
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

TEST(PlurexServerNotifyer, RoutesEveryTypeValueThroughItsSingleQueue) {
    PlurexServerNotifyer notifier;
    Log log;
    notifier.Run();
    WatchAll(notifier, log);
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
