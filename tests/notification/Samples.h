#pragma once

#include "PlurexData/data/Guid.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/PlurexChannelNotifyer.h"
#include "PlurexData/notification/PlurexClipNotifyer.h"
#include "PlurexData/notification/PlurexServerNotifyer.h"
#include "PlurexData/system/EventArgs.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace NotificationTests {

using namespace Korv::Plurex::Notification;
using Korv::Plurex::Data::OperationResult;
using Korv::Plurex::Data::Channels::PlayerState;
using Korv::Plurex::Data::Channels::RecorderState;
using Korv::Plurex::Data::Clips::Angle;
using ChannelGuid = Korv::Plurex::Data::Channels::Guid;
using Korv::Plurex::Data::Guid;
using Korv::Plurex::Data::Clips::Clip;
using Source = Korv::Plurex::Notification::ClipCommandEventArgs::RequestSource;
using Calls = std::vector<std::string>;

inline const Guid& SampleGuid() {
    static const Guid guid = Guid::FromString("00112233-4455-6677-8899-aabbccddeeff");
    return guid;
}

// The six common arguments of the clip commands, at the edges of their widths.
#define COMMON                                                                      \
    0xFFFFFFFFu, Source::Network, 0x80000000u, std::uint16_t{0xFFFF}, SampleGuid(), \
        std::numeric_limits<long long>::min()

// What the callbacks of a test saw: a name per call and the object each one received.
struct Log {
    Calls calls;
    std::vector<const Korv::System::EventArgs*> objects;

    void Add(std::string name, const Korv::System::EventArgs& args) {
        calls.push_back(std::move(name));
        objects.push_back(&args);
    }
    void Clear() { *this = Log(); }
};

// Posts `args` alone, runs once and returns the calls, each of which got that very object.
template <class Notifier, class Args, class Type>
Calls Deliver(Notifier& notifier, Log& log, const std::shared_ptr<Args>& args, Type type) {
    log.Clear();
    notifier.SendEvent(args, type);
    notifier.Run();
    for (const auto* object : log.objects) {
        EXPECT_EQ(object, args.get()) << static_cast<std::int32_t>(type);  // shared, never copied
    }
    return log.calls;
}

// Whether the one-argument SendEvent takes arguments of class `Args` (it must not compile otherwise).
template <class Notifier, class Args, class = void>
struct TakesTyped : std::false_type {};
template <class Notifier, class Args>
struct TakesTyped<
    Notifier, Args,
    std::void_t<decltype(std::declval<Notifier&>().SendEvent(std::declval<std::shared_ptr<Args>>()))>>
    : std::true_type {};

// Posts `args` under the type named, then with the one-argument form: both make `expected`.
template <class Notifier, class Args, class Type>
void ExpectTypedAsNamed(Notifier& notifier, Log& log, const std::shared_ptr<Args>& args, Type type,
                        const Calls& expected) {
    EXPECT_EQ(Deliver(notifier, log, args, type), expected) << typeid(Args).name();
    log.Clear();
    notifier.SendEvent(args);
    notifier.Run();
    EXPECT_EQ(log.calls, expected) << typeid(Args).name();
    EXPECT_EQ(log.objects, std::vector<const Korv::System::EventArgs*>(expected.size(), args.get()));
}

// Appends to `list` a callback that logs `name`.
template <class List>
void Watch(List& list, const std::string& name, Log& log) {
    list.push_back([&log, name](const auto& args) { log.Add(name, args); });
}

// Watches each list under its position: "0", "1"...
template <class... Lists>
void WatchNumbered(Log& log, Lists&... lists) {
    int n = 0;
    (Watch(lists, std::to_string(n++), log), ...);
}

// The same for a generic list, which logs `prefix` and the event type.
template <class List>
void WatchGeneric(List& list, const std::string& prefix, Log& log) {
    list.push_back([&log, prefix](auto type, const auto& args) {
        log.Add(prefix + std::to_string(static_cast<std::int32_t>(type)), args);
    });
}

// A callback on `list` that appends 64 callbacks to its own list (enough to move the vector's storage
// several times while it runs) and one to `generic`, then reads its own capture: every appended
// callback runs in the same Run, after the ones already there. The capture is a single pointer, so
// the callable lives inside the list's storage, which the appends free. Returns the calls, in order.
template <class Notifier, class List, class Generic, class Args, class Type>
Calls AppendFromACallback(Notifier& notifier, List& list, Generic& generic, std::shared_ptr<Args> args,
                          Type type) {
    struct Appender {
        List& list;
        Generic& generic;
        Calls calls;
    } appender{list, generic, {}};
    list.push_back([self = &appender](const auto&) {
        self->calls.push_back("first");
        for (int i = 0; i < 64; ++i) {
            self->list.push_back([self, i](const auto&) { self->calls.push_back(std::to_string(i)); });
        }
        self->generic.push_back([self](auto, const auto&) { self->calls.push_back("generic"); });
        self->calls.push_back("first again");  // reads the capture after the moves
    });
    notifier.SendEvent(std::move(args), type);
    notifier.Run();
    return appender.calls;
}

// What AppendFromACallback sees.
inline Calls AppendedCalls() {
    Calls calls{"first", "first again"};
    for (int i = 0; i < 64; ++i) {
        calls.push_back(std::to_string(i));
    }
    calls.push_back("generic");
    return calls;
}

}  // namespace NotificationTests
