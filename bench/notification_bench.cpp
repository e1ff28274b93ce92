// SendEvent + Run against the same callbacks called directly, and against the plainest hand-off: a
// std::deque guarded by a std::mutex, drained by a consumer that calls the same callbacks. RunFor's
// wake-up latency against a std::condition_variable guarding a std::deque.
#include "BenchRatio.h"

#include "PlurexData/data/Guid.h"
#include "PlurexData/notification/PlurexClipNotifyer.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

using Korv::Plurex::Data::Guid;
using Korv::Plurex::Notification::ClipCommandEvent;
using Korv::Plurex::Notification::ClipCommandEventArgs;
using Korv::Plurex::Notification::MassClipUpdateEventArgs;
using Korv::Plurex::Notification::MassClipUpdateFailedEventArgs;
using Korv::Plurex::Notification::PlurexClipNotifyer;
using Type = ClipCommandEvent::Type;

// Events each producer sends in one measured round; large enough that starting the producer threads
// is a few percent of a round.
constexpr std::uint32_t EventsPerProducer = 16384;

std::shared_ptr<ClipCommandEventArgs> MakeEvent(std::uint32_t n) {
    return std::make_shared<MassClipUpdateEventArgs>(n, ClipCommandEventArgs::RequestSource::Local, 0, 0,
                                                     Guid::Empty(), 0, n);
}

// The consumer's callbacks: one specific and one generic, as a client registers them.
struct Callbacks {
    std::uint64_t sum = 0;
    std::uint64_t count = 0;
    PlurexClipNotifyer::Callbacks<MassClipUpdateEventArgs> specific{
        [this](const MassClipUpdateEventArgs& args) { sum += args.GetCount(); }};
    PlurexClipNotifyer::CommandCallbacks generic{[this](Type, const ClipCommandEventArgs&) { ++count; }};

    Callbacks() = default;
    Callbacks(const Callbacks&) = delete;
    Callbacks& operator=(const Callbacks&) = delete;

    // What Run does for a MassClipUpdate event, without the queue.
    void Call(Type type, const ClipCommandEventArgs& args) {
        for (const auto& callback : specific) {
            callback(static_cast<const MassClipUpdateEventArgs&>(args));
        }
        for (const auto& callback : generic) {
            callback(type, args);
        }
    }
};

// Runs `produce(events)` on `producers` threads while `consume(total)` runs on this one.
template <class Produce, class Consume>
void Round(int producers, Produce&& produce, Consume&& consume) {
    std::vector<std::thread> threads;
    for (int p = 0; p < producers; ++p) {
        threads.emplace_back([&produce] { produce(EventsPerProducer); });
    }
    consume(static_cast<std::uint64_t>(producers) * EventsPerProducer);
    for (auto& thread : threads) {
        thread.join();
    }
}

struct NotifierRound {
    PlurexClipNotifyer notifier;
    Callbacks callbacks;

    NotifierRound() {
        notifier.massClipUpdateCallbacks = callbacks.specific;
        notifier.genericCommandCallbacks = callbacks.generic;
    }
    void operator()(int producers) {
        const std::uint64_t start = callbacks.count;
        Round(
            producers,
            [this](std::uint32_t events) {
                for (std::uint32_t i = 0; i < events; ++i) {
                    notifier.SendEvent(MakeEvent(i), Type::MassClipUpdate);
                }
            },
            [this, start](std::uint64_t total) {
                while (callbacks.count - start < total) {
                    notifier.Run();
                }
            });
    }
};

// Each producer calls its own copy of the callbacks on its own thread: no hand-off at all.
struct DirectRound {
    void operator()(int producers) {
        Round(
            producers,
            [](std::uint32_t events) {
                Callbacks callbacks;
                for (std::uint32_t i = 0; i < events; ++i) {
                    const auto args = MakeEvent(i);
                    callbacks.Call(Type::MassClipUpdate, *args);
                }
                benchmark::DoNotOptimize(callbacks.sum);
            },
            [](std::uint64_t) {});
    }
};

struct BareRound {
    std::deque<ClipCommandEvent> queue;
    std::mutex mutex;
    Callbacks callbacks;

    void operator()(int producers) {
        const std::uint64_t start = callbacks.count;
        Round(
            producers,
            [this](std::uint32_t events) {
                for (std::uint32_t i = 0; i < events; ++i) {
                    ClipCommandEvent event{MakeEvent(i), Type::MassClipUpdate};
                    const std::lock_guard<std::mutex> lock(mutex);
                    queue.push_back(std::move(event));
                }
            },
            [this, start](std::uint64_t total) {
                while (callbacks.count - start < total) {
                    ClipCommandEvent event;
                    {
                        const std::lock_guard<std::mutex> lock(mutex);
                        if (queue.empty()) {
                            continue;
                        }
                        event = std::move(queue.front());
                        queue.pop_front();
                    }
                    callbacks.Call(event.type, *event.args);
                }
            });
    }
};

// The helper times whole rounds; report per event instead.
void PerEvent(benchmark::State& state, int producers) {
    const double events = static_cast<double>(producers) * EventsPerProducer;
    state.counters["ns_per_call"] = state.counters["ns_per_call"].value / events;
    state.counters["baseline_ns"] = state.counters["baseline_ns"].value / events;
    state.SetItemsProcessed(static_cast<std::int64_t>(static_cast<double>(state.iterations()) * events));
}

template <class Baseline>
void SendRun(benchmark::State& state) {
    const int producers = static_cast<int>(state.range(0));
    NotifierRound notifier;
    Baseline baseline;
    PlurexBench::CompareWithBaseline(
        state, [&] { notifier(producers); }, [&] { baseline(producers); }, 1);
    PerEvent(state, producers);
}

// Producer and consumer on one thread: SendEvent then Run for each event.
void SameThreadCandidate(PlurexClipNotifyer& notifier) {
    notifier.SendEvent(MakeEvent(1), Type::MassClipUpdate);
    notifier.Run();
}

void SendRunSameThreadVsDirect(benchmark::State& state) {
    NotifierRound notifier;
    Callbacks direct;
    PlurexBench::CompareWithBaseline(
        state, [&] { SameThreadCandidate(notifier.notifier); },
        [&] {
            const auto args = MakeEvent(1);
            direct.Call(Type::MassClipUpdate, *args);
        });
    benchmark::DoNotOptimize(direct.sum);
}

void SendRunSameThreadVsBare(benchmark::State& state) {
    NotifierRound notifier;
    BareRound bare;
    PlurexBench::CompareWithBaseline(
        state, [&] { SameThreadCandidate(notifier.notifier); },
        [&] {
            {
                ClipCommandEvent event{MakeEvent(1), Type::MassClipUpdate};
                const std::lock_guard<std::mutex> lock(bare.mutex);
                bare.queue.push_back(std::move(event));
            }
            ClipCommandEvent event;
            {
                const std::lock_guard<std::mutex> lock(bare.mutex);
                event = std::move(bare.queue.front());
                bare.queue.pop_front();
            }
            bare.callbacks.Call(event.type, *event.args);
        });
}

// What SendEvent's check of the arguments' class costs: a send and a run of arguments whose class is
// checked (the exact class: one type_info comparison; a derived class: a dynamic_cast too) against
// the same under a type value without a list, which checks nothing. Goal: within 1.1x.
void SendRunCheckedVsUnchecked(benchmark::State& state, const std::shared_ptr<ClipCommandEventArgs>& args) {
    PlurexClipNotifyer notifier;
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            notifier.SendEvent(args, Type::MassClipUpdate);
            notifier.Run();
        },
        [&] {
            notifier.SendEvent(args, Type(30));
            notifier.Run();
        });
}

// Latency from SendEvent to the callback on a thread waiting in RunFor, as a ping-pong: this thread
// posts to `there`, whose echo thread waits in RunFor and answers from its callback by posting to
// `here`, where this thread waits in RunFor. One call is a round trip: two hand-offs, each to a
// sleeping thread. The events are made once and posted again, so no allocation is measured.
struct NotifierPingPong {
    PlurexClipNotifyer here;
    PlurexClipNotifyer there;
    const std::shared_ptr<ClipCommandEventArgs> ping = MakeEvent(1);
    const std::shared_ptr<ClipCommandEventArgs> pong = MakeEvent(2);
    std::uint64_t answers = 0;
    std::atomic<bool> stop{false};
    std::thread echo;

    NotifierPingPong() {
        there.massClipUpdateCallbacks.push_back(
            [this](const MassClipUpdateEventArgs&) { here.SendEvent(pong, Type::MassClipUpdate); });
        here.massClipUpdateCallbacks.push_back([this](const MassClipUpdateEventArgs&) { ++answers; });
        echo = std::thread([this] {
            while (!stop.load(std::memory_order_relaxed)) {
                there.RunFor(std::chrono::seconds(1));
            }
        });
    }
    NotifierPingPong(const NotifierPingPong&) = delete;
    NotifierPingPong& operator=(const NotifierPingPong&) = delete;
    ~NotifierPingPong() {
        stop = true;
        there.Wake();
        echo.join();
    }

    void operator()() {
        const std::uint64_t before = answers;
        there.SendEvent(ping, Type::MassClipUpdate);
        while (answers == before) {
            here.RunFor(std::chrono::seconds(1));
        }
    }
};

// The textbook hand-off: a std::deque and a std::condition_variable under one std::mutex, notified
// on every push; the receiver waits with a timeout and calls the same kind of callback.
class WaitQueue {
public:
    void Push(ClipCommandEvent event) {
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            queue_.push_back(std::move(event));
        }
        changed_.notify_one();
    }
    // Waits up to `timeout` for an event or Stop; false when there was none.
    bool Pop(ClipCommandEvent& event, std::chrono::milliseconds timeout) {
        std::unique_lock<std::mutex> lock(mutex_);
        if (!changed_.wait_for(lock, timeout, [this] { return !queue_.empty() || stopped_; }) ||
            queue_.empty()) {
            return false;
        }
        event = std::move(queue_.front());
        queue_.pop_front();
        return true;
    }
    void Stop() {
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            stopped_ = true;
        }
        changed_.notify_one();
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<ClipCommandEvent> queue_;
    bool stopped_ = false;
};

struct BarePingPong {
    WaitQueue here;
    WaitQueue there;
    const std::shared_ptr<ClipCommandEventArgs> ping = MakeEvent(1);
    const std::shared_ptr<ClipCommandEventArgs> pong = MakeEvent(2);
    PlurexClipNotifyer::Callbacks<MassClipUpdateEventArgs> echoCallbacks{
        [this](const MassClipUpdateEventArgs&) {
            here.Push({pong, Type::MassClipUpdate});
        }};
    std::uint64_t answers = 0;
    PlurexClipNotifyer::Callbacks<MassClipUpdateEventArgs> answerCallbacks{
        [this](const MassClipUpdateEventArgs&) { ++answers; }};
    std::atomic<bool> stop{false};
    std::thread echo;

    BarePingPong() {
        echo = std::thread([this] {
            ClipCommandEvent event;
            while (!stop.load(std::memory_order_relaxed)) {
                if (there.Pop(event, std::chrono::seconds(1))) {
                    Call(echoCallbacks, event);
                }
            }
        });
    }
    BarePingPong(const BarePingPong&) = delete;
    BarePingPong& operator=(const BarePingPong&) = delete;
    ~BarePingPong() {
        stop = true;
        there.Stop();
        echo.join();
    }

    static void Call(const PlurexClipNotifyer::Callbacks<MassClipUpdateEventArgs>& callbacks,
                     const ClipCommandEvent& event) {
        for (const auto& callback : callbacks) {
            callback(static_cast<const MassClipUpdateEventArgs&>(*event.args));
        }
    }

    void operator()() {
        there.Push({ping, Type::MassClipUpdate});
        ClipCommandEvent event;
        while (!here.Pop(event, std::chrono::seconds(1))) {
        }
        Call(answerCallbacks, event);
    }
};

// Goal: within 1.5x of the condition variable.
void RunForPingPongVsConditionVariable(benchmark::State& state) {
    NotifierPingPong notifier;
    BarePingPong bare;
    PlurexBench::CompareWithBaseline(
        state, [&] { notifier(); }, [&] { bare(); }, 64);
}

}  // namespace

BENCHMARK_CAPTURE(SendRunCheckedVsUnchecked, exact_class, MakeEvent(1))->UseManualTime();
BENCHMARK_CAPTURE(SendRunCheckedVsUnchecked, derived_class,
                  std::make_shared<MassClipUpdateFailedEventArgs>(
                      1u, ClipCommandEventArgs::RequestSource::Local, 0, 0, Guid::Empty(), 0,
                      Korv::Plurex::Data::OperationResult::Failure, 0, 1u))
    ->UseManualTime();
BENCHMARK(SendRunSameThreadVsDirect)->UseManualTime();
BENCHMARK(SendRunSameThreadVsBare)->UseManualTime();
BENCHMARK_TEMPLATE(SendRun, DirectRound)->ArgName("producers")->Arg(1)->Arg(2)->UseManualTime();
BENCHMARK_TEMPLATE(SendRun, BareRound)->ArgName("producers")->Arg(1)->Arg(2)->UseManualTime();
BENCHMARK(RunForPingPongVsConditionVariable)->UseManualTime();

BENCHMARK_MAIN();
