#pragma once

#include "PlurexData/data/Guid.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"
#include "PlurexData/system/EventArgs.h"

#include <cstdint>
#include <string>
#include <vector>

namespace NotificationTests {

using Korv::Plurex::Data::Guid;
using Korv::Plurex::Data::Clips::Clip;
using Source = Korv::Plurex::Notification::ClipCommandEventArgs::RequestSource;

inline const Guid& SampleGuid() {
    static const Guid guid = Guid::FromString("00112233-4455-6677-8899-aabbccddeeff");
    return guid;
}

// A default clip told apart from others by a field the clip's equality compares.
inline Clip TaggedClip(std::int32_t tag) {
    Clip clip;
    clip.value1 = tag;
    return clip;
}

// What the callbacks of a test saw: a name per call and the object each one received.
struct Log {
    std::vector<std::string> calls;
    std::vector<const Korv::System::EventArgs*> objects;

    void Add(std::string name, const Korv::System::EventArgs& args) {
        calls.push_back(std::move(name));
        objects.push_back(&args);
    }
    void Clear() {
        calls.clear();
        objects.clear();
    }
};

// Appends to `list` a callback that logs `name`.
template <class List>
void Watch(List& list, const std::string& name, Log& log) {
    list.push_back([&log, name](const auto& args) { log.Add(name, args); });
}

// The same for a generic list, which logs `prefix` and the event type.
template <class List>
void WatchGeneric(List& list, const std::string& prefix, Log& log) {
    list.push_back([&log, prefix](auto type, const auto& args) {
        log.Add(prefix + std::to_string(static_cast<std::int32_t>(type)), args);
    });
}

}  // namespace NotificationTests
