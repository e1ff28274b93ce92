// Building timecodes from calendar fields, against the C library turning the same fields into a
// time (timegm) and scaling it to samples.
#include "BenchRatio.h"

#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include <cstddef>
#include <ctime>
#include <random>
#include <vector>

namespace {

using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCodeBuilder;

struct Inputs {
    std::vector<TimeCodeBuilder> builders;
    std::vector<std::tm> times;
    std::vector<int> samples;
};

// Valid fields spread over the whole range of years, the same for both sides.
Inputs MakeInputs(long long numerator, bool drop) {
    std::mt19937 random(42);
    Inputs inputs;
    for (int i = 0; i < 256; ++i) {
        std::tm tm{};
        tm.tm_year = static_cast<int>(random() % 362);
        tm.tm_mon = static_cast<int>(random() % 12);
        tm.tm_mday = 1 + static_cast<int>(random() % 28);
        tm.tm_hour = static_cast<int>(random() % 24);
        tm.tm_min = static_cast<int>(random() % 60);
        tm.tm_sec = 1 + static_cast<int>(random() % 59);
        const int sample = static_cast<int>(random() % numerator);
        inputs.builders.emplace_back(tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min,
                                     tm.tm_sec, sample, Rate(numerator, 1), drop);
        inputs.times.push_back(tm);
        inputs.samples.push_back(sample);
    }
    return inputs;
}

void Build(benchmark::State& state, long long numerator, bool drop) {
    Inputs inputs = MakeInputs(numerator, drop);
    const std::size_t count = inputs.builders.size();
    std::size_t i = 0;
    std::size_t j = 0;
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            benchmark::DoNotOptimize(inputs.builders[i].Build());
            i = i + 1 == count ? 0 : i + 1;
        },
        [&] {
            benchmark::DoNotOptimize(static_cast<long long>(timegm(&inputs.times[j])) * numerator +
                                     inputs.samples[j]);
            j = j + 1 == count ? 0 : j + 1;
        });
}

// Goal: validation and counting together no slower than timegm alone (ratio <= 1).
void BuildAt50(benchmark::State& state) {
    Build(state, 50, false);
}
void BuildDropFrameAt60(benchmark::State& state) {
    Build(state, 60, true);
}

BENCHMARK(BuildAt50)->UseManualTime();
BENCHMARK(BuildDropFrameAt60)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
