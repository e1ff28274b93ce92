#pragma once

// The queue handling the three notifiers share. Private to the library's sources.

#include <atomic>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Korv::Plurex::Notification::detail {

// Appends `record` under the lock and publishes the new size for the lock-free emptiness test of
// TakeFront. A null arguments pointer is refused before anything is queued: callbacks receive
// references.
template <class Record>
void Append(std::deque<Record>& queue, std::mutex& mutex, std::atomic<std::size_t>& size, Record record) {
    if (!record.args) {
        throw std::invalid_argument("Null EventArgs");
    }
    const std::lock_guard<std::mutex> lock(mutex);
    queue.push_back(std::move(record));
    size.store(queue.size(), std::memory_order_relaxed);
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

// Calls every callback of a specific list, first registered first, with the arguments seen as that
// list's class: the producer guarantees the dynamic type, nothing checks it. The size is read again
// at each step. An empty callback throws std::bad_function_call.
template <class Args, class Base>
void CallEach(const std::vector<std::function<void(const Args&)>>& callbacks, const Base& args) {
    for (std::size_t i = 0; i < callbacks.size(); ++i) {
        callbacks[i](static_cast<const Args&>(args));
    }
}

// The same for a generic list, which also receives the event type.
template <class Type, class Args>
void CallEach(const std::vector<std::function<void(Type, const Args&)>>& callbacks, Type type,
              const Args& args) {
    for (std::size_t i = 0; i < callbacks.size(); ++i) {
        callbacks[i](type, args);
    }
}

}  // namespace Korv::Plurex::Notification::detail
