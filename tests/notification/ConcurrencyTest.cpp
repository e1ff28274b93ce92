#include "Samples.h"

#include <chrono>
#include <thread>

using namespace NotificationTests;

namespace {

constexpr std::uint32_t Producers = 4;
constexpr std::uint32_t EventsPerProducer = 100000;

// A status event that says who sent it and when in that producer's sequence.
class Numbered : public RecordingRangesChangedEventArgs {
public:
    Numbered(std::uint32_t from, std::uint32_t index) : producer(from), number(index) {}
    std::uint32_t producer;
    std::uint32_t number;
};

// Per producer, the number expected next; counts what arrives out of order.
struct Sequences {
    std::vector<std::uint32_t> next = std::vector<std::uint32_t>(Producers, 0);
    std::uint64_t received = 0;
    std::uint64_t outOfOrder = 0;

    void Arrived(std::uint32_t producer, std::uint32_t number) {
        ++received;
        outOfOrder += producer >= Producers || next[producer]++ != number;
    }
};

// Calls Run until `done` or a deadline, then joins the producers.
template <class Notifier, class Done>
void Consume(Notifier& notifier, std::vector<std::thread>& producers, Done done) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(2);
    while (!done() && std::chrono::steady_clock::now() < deadline) {
        notifier.Run();
    }
    for (auto& producer : producers) {
        producer.join();
    }
    notifier.Run();  // nothing more may arrive
}

}  // namespace

// Producers alternate between the two queues while the consumer drains them; every event arrives
// once, each producer's events in the order it sent them (all received and none out of order leaves
// every producer's next number at its count).
TEST(PlurexClipNotifyer, ManyProducersOneConsumer) {
    PlurexClipNotifyer notifier;
    Sequences commands, statuses;
    notifier.massClipUpdateCallbacks.push_back([&](const MassClipUpdateEventArgs& args) {
        commands.Arrived(args.GetCommandNumber(), args.GetCount());
    });
    notifier.recordingRangesChangedCallbacks.push_back([&](const RecordingRangesChangedEventArgs& args) {
        const auto& numbered = static_cast<const Numbered&>(args);
        statuses.Arrived(numbered.producer, numbered.number);
    });

    std::vector<std::thread> producers;
    for (std::uint32_t p = 0; p < Producers; ++p) {
        producers.emplace_back([&notifier, p] {
            for (std::uint32_t i = 0; i < EventsPerProducer; ++i) {
                if (i % 2 == 0) {
                    notifier.SendEvent(std::make_shared<MassClipUpdateEventArgs>(p, Source::Local, 0, 0,
                                                                                 SampleGuid(), 0, i / 2),
                                       ClipCommandEvent::Type::MassClipUpdate);
                } else {
                    notifier.SendEvent(std::make_shared<Numbered>(p, i / 2),
                                       ClipStatusEvent::Type::RecordingRangesChanged);
                }
            }
        });
    }
    const std::uint64_t perQueue = std::uint64_t{Producers} * EventsPerProducer / 2;
    Consume(notifier, producers,
            [&] { return commands.received >= perQueue && statuses.received >= perQueue; });

    EXPECT_EQ(commands.received, perQueue);
    EXPECT_EQ(statuses.received, perQueue);
    EXPECT_EQ(commands.outOfOrder, 0u);
    EXPECT_EQ(statuses.outOfOrder, 0u);
}

// The same with the single queue of the server notifier and a callback posting as it runs.
TEST(PlurexServerNotifyer, ProducersAndACallbackPostingTogether) {
    constexpr int PerProducer = 20000;
    PlurexServerNotifyer notifier;
    int added = 0, removed = 0;
    notifier.serverAddedCallbacks.push_back([&](const ServerAddedEventArgs&) {
        ++added;
        notifier.SendEvent(std::make_shared<ServerRemovedEventArgs>(),
                           ServerStatusEvent::Type::ServerRemoved);
    });
    notifier.serverRemovedCallbacks.push_back([&](const ServerRemovedEventArgs&) { ++removed; });

    std::vector<std::thread> producers;
    for (int p = 0; p < 2; ++p) {
        producers.emplace_back([&notifier] {
            for (int i = 0; i < PerProducer; ++i) {
                notifier.SendEvent(std::make_shared<ServerAddedEventArgs>(),
                                   ServerStatusEvent::Type::ServerAdded);
            }
        });
    }
    Consume(notifier, producers, [&] { return removed >= 2 * PerProducer; });
    EXPECT_EQ(added, 2 * PerProducer);
    EXPECT_EQ(removed, 2 * PerProducer);
}
