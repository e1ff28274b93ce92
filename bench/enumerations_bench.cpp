// Enumeration names both ways, on the smallest and the largest table, against the same lookups in
// standard hash maps holding the same rows.
#include "BenchRatio.h"

#include "PlurexData/data/VideoStandard.h"
#include "PlurexData/data/clips/VideoCompressionType.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

// The rows of one table, read through the library, and the hash maps the library is judged against.
template <class E>
struct Rows {
    std::vector<std::string> names;
    std::vector<E> values;
    std::unordered_map<std::string, int> byName;
    std::unordered_map<std::int32_t, std::string> byValue;

    explicit Rows(int count) {
        for (int value = 0; value < count; ++value) {
            const E e = static_cast<E>(value);
            names.push_back(ToString(e));
            values.push_back(e);
            byName.emplace(names.back(), value);
            byValue.emplace(value, names.back());
        }
    }
};

// Goal: within 1.5x of std::unordered_map<std::string, int>, cycling through every name.
template <class E, E (*To)(const std::string&) noexcept>
void NameToValue(benchmark::State& state, int count) {
    const Rows<E> rows(count);
    std::size_t i = 0;
    std::size_t j = 0;
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            benchmark::DoNotOptimize(To(rows.names[i]));
            i = i + 1 == rows.names.size() ? 0 : i + 1;
        },
        [&] {
            benchmark::DoNotOptimize(rows.byName.find(rows.names[j])->second);
            j = j + 1 == rows.names.size() ? 0 : j + 1;
        });
}

// Against std::unordered_map<std::int32_t, std::string>, returning a reference as ToString does.
template <class E>
void ValueToName(benchmark::State& state, int count) {
    const Rows<E> rows(count);
    std::size_t i = 0;
    std::size_t j = 0;
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            benchmark::DoNotOptimize(&ToString(rows.values[i]));
            i = i + 1 == rows.values.size() ? 0 : i + 1;
        },
        [&] {
            benchmark::DoNotOptimize(&rows.byValue.find(static_cast<std::int32_t>(rows.values[j]))->second);
            j = j + 1 == rows.values.size() ? 0 : j + 1;
        });
}

void NameToValueSmallest(benchmark::State& state) {
    NameToValue<Clips::VideoStandard, Clips::ToVideoStandard>(state, 3);
}
void NameToValueLargest(benchmark::State& state) {
    NameToValue<Essences::VideoCompressionType, Essences::ToVideoCompressionType>(state, 22);
}
void ValueToNameSmallest(benchmark::State& state) {
    ValueToName<Clips::VideoStandard>(state, 3);
}
void ValueToNameLargest(benchmark::State& state) {
    ValueToName<Essences::VideoCompressionType>(state, 22);
}

BENCHMARK(NameToValueSmallest)->UseManualTime();
BENCHMARK(NameToValueLargest)->UseManualTime();
BENCHMARK(ValueToNameSmallest)->UseManualTime();
BENCHMARK(ValueToNameLargest)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
