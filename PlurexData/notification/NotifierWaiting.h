#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace Korv::Plurex::Notification {

/// What a notifier's RunFor sleeps on and its SendEvent and Wake raise; a private member of each
/// notifier, declared here only because the notifiers' headers hold it. Its mutex is never held
/// together with a queue mutex, nor while a callback runs.
struct NotifierWaiting {
    std::mutex mutex;                     ///< guards the two flags
    std::condition_variable changed;      ///< notified when a flag is raised
    std::atomic<std::size_t> waiters{0};  ///< consumers in RunFor, read by SendEvent
    bool signalled = false;               ///< an event was queued while a consumer waited
    bool woken = false;                   ///< Wake was called and no RunFor has answered it yet
};

}  // namespace Korv::Plurex::Notification
