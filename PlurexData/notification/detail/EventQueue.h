#pragma once

// The queue handling the three notifiers share. Private to the library's sources.

#include <atomic>
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
// references) and `check(record)` may refuse the record by throwing.
template <class Record, class Check>
void Append(std::deque<Record>& queue, std::mutex& mutex, std::atomic<std::size_t>& size, Record record,
            Check&& check) {
    if (!record.args) {
        throw std::invalid_argument("Null EventArgs");
    }
    check(record);
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

}  // namespace Korv::Plurex::Notification::detail
