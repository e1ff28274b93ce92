// Identifier costs against the Boost operations they are built on.
#include "BenchRatio.h"

#include "PlurexData/data/Guid.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/servers/ServerId.h"

#include <boost/lexical_cast.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <string>

namespace {

using Korv::Plurex::Data::Guid;
using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Servers::ServerId;

const std::string ValidText = "00112233-4455-6677-8899-aabbccddeeff";
const std::string InvalidText = "00112233-4455-6677-8899-aabbccddeefg";

// Goal: within 1.2x of Boost's Mersenne Twister UUID generator.
void GuidNew(benchmark::State& state) {
    boost::uuids::random_generator_mt19937 boostGenerator;
    PlurexBench::CompareWithBaseline(
        state, [] { benchmark::DoNotOptimize(Guid()); }, [&] { benchmark::DoNotOptimize(boostGenerator()); });
}
BENCHMARK(GuidNew)->UseManualTime();

// Goal: no slower than boost::uuids::to_string.
void GuidToString(benchmark::State& state) {
    const Guid guid = Guid::FromString(ValidText);
    const auto uuid = boost::lexical_cast<boost::uuids::uuid>(ValidText);
    PlurexBench::CompareWithBaseline(
        state, [&] { benchmark::DoNotOptimize(guid.ToString()); },
        [&] { benchmark::DoNotOptimize(boost::uuids::to_string(uuid)); });
}
BENCHMARK(GuidToString)->UseManualTime();

// The conversion that parsing goes through, as the baseline of both FromString figures.
void GuidFromStringValid(benchmark::State& state) {
    PlurexBench::CompareWithBaseline(
        state, [] { benchmark::DoNotOptimize(Guid::FromString(ValidText)); },
        [] { benchmark::DoNotOptimize(boost::lexical_cast<boost::uuids::uuid>(ValidText)); });
}
BENCHMARK(GuidFromStringValid)->UseManualTime();

// Goal: rejecting malformed text costs no more than parsing valid text (ratio <= 1).
void GuidFromStringInvalid(benchmark::State& state) {
    PlurexBench::CompareWithBaseline(
        state, [] { benchmark::DoNotOptimize(Guid::FromString(InvalidText)); },
        [] { benchmark::DoNotOptimize(Guid::FromString(ValidText)); });
}
BENCHMARK(GuidFromStringInvalid)->UseManualTime();

// Text forms, against formatting the same number with std::to_string.
void ServerIdToString(benchmark::State& state) {
    const ServerId id(120);
    PlurexBench::CompareWithBaseline(
        state, [&] { benchmark::DoNotOptimize(id.ToString()); },
        [&] { benchmark::DoNotOptimize(std::to_string(id.GetValue())); });
}
BENCHMARK(ServerIdToString)->UseManualTime();

void KepIdToString(benchmark::State& state) {
    const KepId id(1, 2, 3, 'B', ServerId(120));
    PlurexBench::CompareWithBaseline(
        state, [&] { benchmark::DoNotOptimize(id.ToString()); },
        [&] { benchmark::DoNotOptimize(std::to_string(id.GetPosition())); });
}
BENCHMARK(KepIdToString)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
