#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>

namespace PlurexBench {

// Runs `candidate` and `baseline` in alternating batches inside one benchmark, so that both see the
// same machine at the same moment. The benchmark's own time is the candidate's time per batch; the
// counters give both times per call and their ratio (candidate / baseline: below 1 is faster).
template <class Candidate, class Baseline>
void CompareWithBaseline(benchmark::State& state, Candidate&& candidate, Baseline&& baseline,
                         std::int64_t batch = 256) {
    using Clock = std::chrono::steady_clock;
    std::chrono::duration<double> candidateTime{0};
    std::chrono::duration<double> baselineTime{0};
    std::int64_t batches = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (std::int64_t i = 0; i < batch; ++i) {
            candidate();
        }
        const auto middle = Clock::now();
        for (std::int64_t i = 0; i < batch; ++i) {
            baseline();
        }
        const auto end = Clock::now();
        candidateTime += middle - start;
        baselineTime += end - middle;
        ++batches;
        state.SetIterationTime(std::chrono::duration<double>(middle - start).count());
    }
    const double calls = static_cast<double>(batches * batch);
    state.counters["ns_per_call"] = candidateTime.count() * 1e9 / calls;
    state.counters["baseline_ns"] = baselineTime.count() * 1e9 / calls;
    state.counters["ratio"] = candidateTime.count() / baselineTime.count();
    state.SetItemsProcessed(batches * batch);
}

}  // namespace PlurexBench
