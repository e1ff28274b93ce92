#pragma once

// The queue handling the three notifiers share. Private to the library's sources.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Korv::Plurex::Notification::detail {

// Appends `record` under the lock and publishes the new size for the lock-free emptiness test of
// TakeFront. Before anything is queued, a null arguments pointer is refused (callbacks receive
// references) and `check(record)` may refuse the record by throwing. Returns whether a consumer
// waits in RunFor: read under the queue lock, see WaitUnlessWoken.
template <class Record, class Check>
bool Append(std::deque<Record>& queue, std::mutex& mutex, std::atomic<std::size_t>& size,
            const std::atomic<std::size_t>& waiters, Record record, Check&& check) {
    if (!record.args) {
        throw std::invalid_argument("Null EventArgs");
    }
    check(record);
    const std::lock_guard<std::mutex> lock(mutex);
    queue.push_back(std::move(record));
    size.store(queue.size(), std::memory_order_relaxed);
    return waiters.load(std::memory_order_relaxed) != 0;
}

// Whether the queue holds a record, for RunFor. A non-zero published size is taken at its word: only
// the consumer removes records, and it reads its own latest store or a producer's later one.
template <class Record>
bool IsQueued(const std::deque<Record>& queue, std::mutex& mutex, const std::atomic<std::size_t>& size) {
    if (size.load(std::memory_order_relaxed) != 0) {
        return true;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    return !queue.empty();
}

// Moves the front record into `front` and removes it. An empty queue is recognised from the published
// size without locking, so an idle Run costs no lock; the size is only a hint, the queue itself is
// tested again under the lock.
template <class Record>
bool TakeFront(std::deque<Record>& queue, std::mutex& mutex, std::atomic<std::size_t>& size, Record& front) {
    if (size.load(std::memory_order_relaxed) == 0) {
        return false;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    if (queue.empty()) {
        return false;
    }
    front = std::move(queue.front());
    queue.pop_front();
    size.store(queue.size(), std::memory_order_relaxed);
    return true;
}

// Refuses arguments that are not of the class a specific list receives (or derived from it): Run
// hands them to that list through a static downcast. The exact class is tested first, as comparing
// type information costs less than a dynamic_cast.
template <class Args, class Base>
void CheckClass(const std::vector<std::function<void(const Args&)>>&, const Base& args) {
    if (typeid(args) != typeid(Args) && dynamic_cast<const Args*>(&args) == nullptr) {
        throw std::invalid_argument("EventArgs do not match the event type");
    }
}

// Calls every callback of a specific list, first registered first, with the arguments seen as that
// list's class, which SendEvent has checked. The size is read again at each step, so a callback
// appended by a callback runs in the same walk; the callable runs from a copy, because that append
// may move the vector's storage and the running callable with it. An empty callback throws
// std::bad_function_call.
template <class Args, class Base>
void CallEach(const std::vector<std::function<void(const Args&)>>& callbacks, const Base& args) {
    for (std::size_t i = 0; i < callbacks.size(); ++i) {
        const std::function<void(const Args&)> callback = callbacks[i];
        callback(static_cast<const Args&>(args));
    }
}

// The same for a generic list, which also receives the event type.
template <class Type, class Args>
void CallEach(const std::vector<std::function<void(Type, const Args&)>>& callbacks, Type type,
              const Args& args) {
    for (std::size_t i = 0; i < callbacks.size(); ++i) {
        const std::function<void(Type, const Args&)> callback = callbacks[i];
        callback(type, args);
    }
}

// RunFor's wait, over a notifier's private Waiting members: a mutex, a condition variable, the count
// of waiters and two flags guarded by the mutex, `signalled` (an event was queued while a consumer
// waited) and `woken` (Wake was called and no RunFor has answered it yet).
//
// No lost wake-up without a fence on the producer's side: the consumer counts itself in `waiters`
// before it tests the queues under their locks, and a producer reads `waiters` under the queue lock
// after its append. Whichever takes the queue lock second sees the other: the consumer sees the
// record, or the producer sees the count and sets `signalled` under the wait mutex, where the
// consumer tests it before it sleeps. `signalled` is cleared before each test of the queues, so a
// stale one (from a waiter that has since left) costs one more test, never a missed event. The wait
// mutex is never held with a queue mutex.
//
// Returns false when woken, consuming the wake; true when an event may be queued or the deadline
// has passed.
template <class Waiting, class Queued>
bool WaitUnlessWoken(Waiting& waiting, std::chrono::milliseconds timeout, Queued&& queued) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point now = Clock::now();
    // Saturated: now + milliseconds::max() would overflow the clock's representation.
    const auto room = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::time_point::max() - now);
    const Clock::time_point deadline = now + std::min(timeout, room);

    struct Count {
        std::atomic<std::size_t>& waiters;
        explicit Count(std::atomic<std::size_t>& w) : waiters(w) {
            waiters.fetch_add(1, std::memory_order_relaxed);
        }
        ~Count() { waiters.fetch_sub(1, std::memory_order_relaxed); }
        Count(const Count&) = delete;
        Count& operator=(const Count&) = delete;
    } const count(waiting.waiters);

    std::unique_lock<std::mutex> lock(waiting.mutex);
    for (;;) {
        if (waiting.woken) {
            waiting.woken = false;
            return false;
        }
        waiting.signalled = false;
        lock.unlock();
        if (queued()) {
            return true;
        }
        lock.lock();
        if (!waiting.changed.wait_until(lock, deadline, [&] { return waiting.signalled || waiting.woken; })) {
            return true;  // Run still takes what came at the last moment
        }
    }
}

// Sets one of the Waiting flags and wakes the waiter. The notify follows the unlock, so the woken
// thread does not sleep again on the mutex.
template <class Waiting>
void Raise(Waiting& waiting, bool Waiting::*flag) {
    {
        const std::lock_guard<std::mutex> lock(waiting.mutex);
        waiting.*flag = true;
    }
    waiting.changed.notify_one();
}

}  // namespace Korv::Plurex::Notification::detail
