// Cue point lists at capacity against the plainest sorted insertion into a std::vector.
#include "BenchRatio.h"

#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointUser.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/ServerId.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using Korv::Plurex::BusinessObjects::CuePoints::CuePoint;
using Korv::Plurex::BusinessObjects::CuePoints::CuePointUser;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;

constexpr std::int32_t TrainCapacity = 256;
constexpr std::int32_t ClipCapacity = 32;
constexpr int Clips = 8;

// Distinct, mostly rising positions: key i lies at (i + jitter) * 4096 + i % 4096 with a jitter below
// twice the capacity, so that a new mark lands anywhere in a full list, most often near its top,
// and the lowest one is evicted. The low halves wrap past 2^32 without breaking the order.
class Keys {
public:
    explicit Keys(std::int32_t capacity) : jitter_(4096) {
        std::mt19937 random(42);
        for (auto& j : jitter_) {
            j = static_cast<long long>(random() % static_cast<unsigned>(2 * capacity));
        }
    }
    long long Next() noexcept {
        const long long i = next_++;
        return (i + jitter_[static_cast<std::size_t>(i & 4095)]) * 4096 + (i & 4095);
    }

private:
    std::vector<long long> jitter_;
    long long next_ = 0;
};

CuePoint Mark(long long tc, bool train, const UmId& clip) {
    return CuePoint(tc, 0, ServerId(10), clip, train);
}

// The practical limit: upper_bound into a plain vector, dropping the lowest when full.
struct SortedVector {
    std::vector<CuePoint> list;
    std::size_t capacity;
    void Add(const CuePoint& mark) {
        if (list.size() + 1 > capacity) {
            list.erase(list.begin());
        }
        list.insert(std::upper_bound(list.begin(), list.end(), mark,
                                     [](const CuePoint& a, const CuePoint& b) { return a < b; }),
                    mark);
    }
};

// AddCuePointToList on a full list, duplicate search and numbering included; the counter is put
// back before it runs out of numbers.
void AddAtCapacity(benchmark::State& state, bool train) {
    const std::int32_t capacity = train ? TrainCapacity : ClipCapacity;
    const UmId target(train ? "TRAIN" : "CLIP7");
    CuePointUser user(TrainCapacity, ClipCapacity);
    SortedVector baseline{{}, static_cast<std::size_t>(capacity)};
    baseline.list.reserve(baseline.capacity);
    Keys userKeys(capacity), baselineKeys(capacity);
    for (int c = 0; c < Clips; ++c) {
        const UmId clip(("CLIP" + std::to_string(c)).c_str());
        Keys keys(capacity);
        for (int i = 0; i < ClipCapacity; ++i) {
            CuePoint mark = Mark(keys.Next(), false, clip);
            user.AddCuePointToList(mark);
        }
    }
    for (int i = 0; i < 4 * capacity; ++i) {
        CuePoint mark = Mark(userKeys.Next(), train, target);
        user.AddCuePointToList(mark);
        baseline.Add(Mark(baselineKeys.Next(), train, target));
    }
    CuePoint mark = Mark(0, train, target);
    const std::shared_ptr<std::int32_t> counter = user.GetIndex(mark);
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            mark.SetTc(userKeys.Next());
            mark.SetZoom(0);
            *counter = 0;
            benchmark::DoNotOptimize(user.AddCuePointToList(mark));
        },
        [&] {
            mark.SetTc(baselineKeys.Next());
            baseline.Add(mark);
            benchmark::ClobberMemory();
        });
    if (user.GetCuePointCount(target, train) != capacity) {
        state.SkipWithError("the list is not at capacity");
    }
}

// Goal: within 3x of the baseline.
void AddCuePointTrainAtCapacity(benchmark::State& state) {
    AddAtCapacity(state, true);
}
BENCHMARK(AddCuePointTrainAtCapacity)->UseManualTime();

// Goal: within 3x of the baseline; the clip is the last of eight.
void AddCuePointClipAtCapacity(benchmark::State& state) {
    AddAtCapacity(state, false);
}
BENCHMARK(AddCuePointClipAtCapacity)->UseManualTime();

// The next mark after a key in a full train list, against the same front-to-back search over a plain
// vector.
void FindCuePointAfter(benchmark::State& state) {
    const UmId train("TRAIN");
    CuePointUser user(TrainCapacity, ClipCapacity);
    std::vector<CuePoint> plain;
    std::vector<CuePoint> keys;
    std::mt19937 random(7);
    for (int i = 0; i < TrainCapacity; ++i) {
        CuePoint mark = Mark(1000 * (i + 1), true, train);
        user.AddCuePointToList(mark);
        plain.push_back(mark);
    }
    for (int i = 0; i < 1024; ++i) {
        keys.push_back(Mark(static_cast<long long>(random() % (1000 * TrainCapacity)), true, train));
    }
    std::size_t userNext = 0, baselineNext = 0;
    CuePoint found;
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            benchmark::DoNotOptimize(user.FindCuePointAfter(keys[userNext++ & 1023], found));
            benchmark::DoNotOptimize(found);
        },
        [&] {
            const CuePoint& key = keys[baselineNext++ & 1023];
            const auto match = std::find_if(plain.begin(), plain.end(), [&key](const CuePoint& mark) {
                return key < mark && mark.GetServerId() == key.GetServerId();
            });
            if (match != plain.end()) {
                found = *match;
            }
            benchmark::DoNotOptimize(found);
        });
}
BENCHMARK(FindCuePointAfter)->UseManualTime();

// The first add after 256 restores of a full train list (65,536 cue points, unsorted behind each
// other), which sorts the whole list, against restoring the same and sorting it with
// std::stable_sort. Goal: within 3x of the baseline.
void AddAfterRepeatedRestores(benchmark::State& state) {
    const UmId train("TRAIN");
    std::mt19937 random(5);
    std::vector<CuePoint> saved;
    for (int i = 0; i < TrainCapacity; ++i) {
        saved.push_back(Mark(static_cast<long long>(random() % 0x7FFFFFFFU), true, train));
    }
    CuePointUser user(TrainCapacity, ClipCapacity);
    std::vector<CuePoint> plain;
    const CuePoint next = Mark(0x40000000LL, true, train);
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            user.RemoveAllCuePoint();
            for (int restore = 0; restore < 256; ++restore) {
                user.SetCuePoint(saved, 1);
            }
            CuePoint mark = next;
            benchmark::DoNotOptimize(user.AddCuePointToList(mark));
        },
        [&] {
            plain.clear();
            for (int restore = 0; restore < 256; ++restore) {
                plain.insert(plain.end(), saved.begin(), saved.end());
            }
            plain.erase(plain.begin());
            plain.push_back(next);
            std::stable_sort(plain.begin(), plain.end(),
                             [](const CuePoint& a, const CuePoint& b) { return a < b; });
            benchmark::DoNotOptimize(plain.data());
        },
        1);
}
BENCHMARK(AddAfterRepeatedRestores)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
