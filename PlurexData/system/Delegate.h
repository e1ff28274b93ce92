#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Korv::System {

template <class Signature>
class Delegate;

/// An ordered list of listeners, called synchronously on the caller's thread in the order in which
/// they were added. Not guarded: callers serialise access.
template <class Result, class... Args>
class Delegate<Result(Args...)> {
public:
    /// A listener; Invoke drops its result.
    using Listener = std::function<Result(Args...)>;
    /// Names one added listener for Remove; never 0.
    using Token = std::uint64_t;

    Delegate() = default;
    Delegate(const Delegate&) = delete;
    Delegate& operator=(const Delegate&) = delete;

    /// Appends `listener`; an empty function throws std::invalid_argument("Null listener").
    Token Add(Listener listener) {
        if (!listener) {
            throw std::invalid_argument("Null listener");
        }
        const Token token = ++lastToken_;
        listeners_.push_back(Entry{token, std::make_shared<Listener>(std::move(listener))});
        return token;
    }

    /// Removes the listener that Add returned `token` for; false when there is none.
    bool Remove(Token token) {
        for (auto it = listeners_.begin(); it != listeners_.end(); ++it) {
            if (it->token == token) {
                listeners_.erase(it);
                return true;
            }
        }
        return false;
    }

    /// Removes every listener. Tokens are never reused, not even after this.
    void Clear() noexcept { listeners_.clear(); }

    /// The number of listeners.
    std::size_t GetCount() const noexcept { return listeners_.size(); }

    /// Calls every listener with the same arguments; results are dropped. The count is read again
    /// after each call, so a listener added by a listener is called in the same round, and removing
    /// an earlier one makes the next one be skipped. A listener that removes itself stays alive
    /// until its call returns.
    void Invoke(Args... args) const {
        for (std::size_t i = 0; i < listeners_.size(); ++i) {
            const std::shared_ptr<Listener> listener = listeners_[i].listener;
            (*listener)(args...);
        }
    }

    /// The same as Invoke.
    void operator()(Args... args) const { Invoke(args...); }

private:
    struct Entry {
        Token token;
        std::shared_ptr<Listener> listener;
    };

    std::vector<Entry> listeners_;
    Token lastToken_ = 0;
};

}  // namespace Korv::System
