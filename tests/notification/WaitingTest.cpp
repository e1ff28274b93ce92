#include "Samples.h"

#include <atomic>
#include <chrono>
#include <thread>

using namespace NotificationTests;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

// One event on queue i % 2 (the server notifier has one queue).
void Post(PlurexClipNotifyer& n, int i) {
    i % 2 ? n.SendEvent(std::make_shared<RecordingRangesChangedEventArgs>())
          : n.SendEvent(std::make_shared<MassClipUpdateEventArgs>(COMMON, 1u));
}
void Post(PlurexChannelNotifyer& n, int i) {
    i % 2 ? n.SendEvent(std::make_shared<ChannelStatusEventArgs>(ChannelGuid()), ChannelStatusEvent::Type(7))
          : n.SendEvent(std::make_shared<PlayerLoadProcessedEventArgs>());
}
void Post(PlurexServerNotifyer& n, int) {
    n.SendEvent(std::make_shared<ServerAddedEventArgs>());
}

template <class Notifier>
class Waiting : public testing::Test {
protected:
    static constexpr bool OneQueue = std::is_same_v<Notifier, PlurexServerNotifyer>;

    Waiting() {
        const auto count = [this](auto, const auto&) { ++delivered; };
        if constexpr (OneQueue) {
            notifier.genericCallbacks.push_back(count);
        } else {
            notifier.genericCommandCallbacks.push_back(count);
            notifier.genericStatusCallbacks.push_back(count);
        }
    }

    // RunFor's result, and checks that it took [least, most).
    bool RunFor(std::chrono::milliseconds timeout, std::chrono::milliseconds least,
                std::chrono::milliseconds most) {
        const auto start = Clock::now();
        const bool result = notifier.RunFor(timeout);
        const std::chrono::duration<double, std::milli> took = Clock::now() - start;
        EXPECT_GE(took.count(), least.count()) << timeout.count();
        EXPECT_LT(took.count(), most.count()) << timeout.count();
        return result;
    }

    Notifier notifier;
    std::atomic<int> delivered{0};  // read by producers too
};

using Notifiers = testing::Types<PlurexClipNotifyer, PlurexChannelNotifyer, PlurexServerNotifyer>;
TYPED_TEST_SUITE(Waiting, Notifiers, testing::internal::DefaultNameGenerator);

}  // namespace

// Queued before: delivered as by Run (one event per queue) without waiting; nothing queued: false
// after the timeout, at once for a zero or negative one.
TYPED_TEST(Waiting, DeliversWhatIsQueuedAtOnceOrTimesOut) {
    Post(this->notifier, 0);
    Post(this->notifier, 1);
    EXPECT_TRUE(this->RunFor(10s, 0s, 5s));
    EXPECT_EQ(this->delivered.load(), this->OneQueue ? 1 : 2);
    EXPECT_EQ(this->RunFor(0ms, 0s, 5s), this->OneQueue);
    EXPECT_EQ(this->delivered.load(), 2);
    EXPECT_FALSE(this->RunFor(-5ms, 0s, 5s));
    EXPECT_FALSE(this->RunFor(0ms, 0s, 5s));
    EXPECT_FALSE(this->RunFor(20ms, 20ms, 5s));
    EXPECT_EQ(this->delivered.load(), 2);
}

// A waiter without limit (milliseconds::max() saturates instead of overflowing into the past) is
// released by an event on either queue from another thread, or by Wake.
TYPED_TEST(Waiting, AWaiterIsReleasedByAnEventOrByWake) {
    for (int i = 0; i < 3; ++i) {
        std::atomic<int> result{-1};
        std::thread consumer([&] { result = this->notifier.RunFor(std::chrono::milliseconds::max()); });
        std::this_thread::sleep_for(20ms);
        EXPECT_EQ(result.load(), -1) << i;
        i < 2 ? Post(this->notifier, i) : this->notifier.Wake();
        const auto deadline = Clock::now() + 5s;
        while (result.load() == -1 && Clock::now() < deadline) {
            std::this_thread::sleep_for(1ms);
        }
        if (result.load() == -1) {
            ADD_FAILURE() << "not released " << i;
            this->notifier.Wake();
        }
        consumer.join();
        EXPECT_EQ(result.load(), i < 2) << i;
        EXPECT_EQ(this->delivered.load(), std::min(i + 1, 2)) << i;
    }
}

// A wake before the wait is kept, once, and leaves the queue alone; a consumer loop stopped with
// `stop = true; Wake();` never waits for its timeout.
TYPED_TEST(Waiting, AWakeIsKeptForTheNextRunFor) {
    this->notifier.Wake();
    this->notifier.Wake();
    Post(this->notifier, 0);
    EXPECT_FALSE(this->RunFor(10s, 0s, 5s));
    EXPECT_EQ(this->delivered.load(), 0);
    EXPECT_TRUE(this->RunFor(10s, 0s, 5s));
    EXPECT_FALSE(this->RunFor(20ms, 20ms, 5s));
    EXPECT_EQ(this->delivered.load(), 1);

    for (int round = 0; round < 20; ++round) {
        std::atomic<bool> stop{false};
        std::thread consumer([&] {
            while (!stop) {
                EXPECT_FALSE(this->RunFor(10s, 0s, 5s));
            }
        });
        std::this_thread::sleep_for(std::chrono::microseconds(round * 100));
        stop = true;
        this->notifier.Wake();
        consumer.join();
    }
}

// Producers on both queues, each waiting after every event until the consumer has caught up, so the
// consumer keeps falling asleep just as events arrive: all arrive once, and no RunFor sleeps to its
// timeout, which a lost wake-up would cause.
TYPED_TEST(Waiting, ManyProducersDeliverEverythingOnceThroughRunFor) {
    constexpr int Producers = 4, PerProducer = 500;
    std::atomic<int> sent{0};
    const auto deadline = Clock::now() + 2min;
    std::vector<std::thread> producers;
    for (int p = 0; p < Producers; ++p) {
        producers.emplace_back([&] {
            for (int i = 0; i < PerProducer; ++i) {
                const int ticket = ++sent;
                Post(this->notifier, i);
                while (this->delivered.load() < ticket && Clock::now() < deadline) {
                    std::this_thread::yield();
                }
            }
        });
    }
    while (this->delivered.load() < Producers * PerProducer && Clock::now() < deadline) {
        this->RunFor(10s, 0s, 10s);
    }
    for (auto& producer : producers) {
        producer.join();
    }
    EXPECT_EQ(this->delivered.load(), Producers * PerProducer);
    EXPECT_FALSE(this->notifier.RunFor(0ms));
}
