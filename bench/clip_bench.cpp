// The clip record: Serializer::SaveToBuffer and LoadFromBuffer in both byte orders, against a memcpy of
// the 290 bytes and against a plain hand-written packer of the same layout (fields copied with memcpy,
// numbers swapped with the compiler's builtins, no checks), the practical limit.
// Goals: Save within 1.5x and Load within 2.5x of the packer; no allocation (the "allocations" counter,
// per call, from a replaced global operator new).
#include "BenchRatio.h"

#include "PlurexData/data/clips/Serializer.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {
std::atomic<long long> allocations{0};
}  // namespace

// Out of line, all of them: once inlined, g++ sees malloc and free behind new and delete and takes them
// for a mismatch.
__attribute__((noinline)) void* operator new(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}
__attribute__((noinline)) void* operator new[](std::size_t size) {
    return operator new(size);
}
__attribute__((noinline)) void operator delete(void* memory) noexcept {
    std::free(memory);
}
__attribute__((noinline)) void operator delete[](void* memory) noexcept {
    std::free(memory);
}
__attribute__((noinline)) void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
__attribute__((noinline)) void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::Serializer;
using Korv::Plurex::Data::Clips::VideoStandard;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::VideoRates;
namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;
using Record = std::array<unsigned char, 290>;

// ---- the hand-written packer ------------------------------------------------------------------------

template <bool Big, class T>
void Put(unsigned char* at, T value) {
    if constexpr (Big && sizeof(T) == 2) {
        value = static_cast<T>(__builtin_bswap16(static_cast<std::uint16_t>(value)));
    } else if constexpr (Big && sizeof(T) == 4) {
        value = static_cast<T>(__builtin_bswap32(static_cast<std::uint32_t>(value)));
    } else if constexpr (Big && sizeof(T) == 8) {
        value = static_cast<T>(__builtin_bswap64(static_cast<std::uint64_t>(value)));
    }
    std::memcpy(at, &value, sizeof value);
}

template <bool Big, class T>
T Get(const unsigned char* at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    if constexpr (Big && sizeof(T) == 2) {
        value = static_cast<T>(__builtin_bswap16(static_cast<std::uint16_t>(value)));
    } else if constexpr (Big && sizeof(T) == 4) {
        value = static_cast<T>(__builtin_bswap32(static_cast<std::uint32_t>(value)));
    } else if constexpr (Big && sizeof(T) == 8) {
        value = static_cast<T>(__builtin_bswap64(static_cast<std::uint64_t>(value)));
    }
    return value;
}

template <class E>
unsigned char B(E value) {
    return static_cast<unsigned char>(value);
}

template <bool Big>
std::uint64_t Encode(const TimeCode& timeCode) {
    const bool at60 = timeCode.GetRate().GetNumerator() == 60;
    return (static_cast<std::uint64_t>(timeCode.GetTotalSample()) & ((std::uint64_t{1} << 62) - 1)) |
           (at60 ? std::uint64_t{1} << 62 : 0) |
           (at60 && timeCode.IsDropFrame() ? std::uint64_t{1} << 63 : 0);
}

template <bool Big>
void PackerSave(const Clip& c, unsigned char* b) {
    Put<Big, std::uint16_t>(b, 1792);
    std::memcpy(b + 2, c.text1, 8);
    std::memcpy(b + 10, c.text2, 8);
    std::memcpy(b + 18, c.text3, 8);
    std::memcpy(b + 26, c.text4, 8);
    b[34] = static_cast<unsigned char>(c.name.unicode | c.varId.unicode << 1 | c.keywords[0].unicode << 2 |
                                       c.keywords[1].unicode << 3 | c.keywords[2].unicode << 4 |
                                       c.keywords[3].unicode << 5 | c.keywords[4].unicode << 6);
    std::memcpy(b + 35, c.name.text, 24);
    std::memcpy(b + 59, c.varId.text, 32);
    for (int k = 0; k < 5; ++k) {
        std::memcpy(b + 91 + 12 * k, c.keywords[k].text, 12);
    }
    std::memcpy(b + 151, c.rawBytes, 8);
    b[159] =
        static_cast<unsigned char>(c.is3D | c.isDual << 1 | c.isTwinRec << 2 | c.isLegacyTimecodeDrop << 3);
    const unsigned char attributes[] = {B(c.attribute1), B(c.attribute2), B(c.attribute3), B(c.attribute4),
                                        B(c.attribute5), B(c.attribute6), B(c.attribute7)};
    std::memcpy(b + 160, attributes, 7);
    Put<Big, std::uint16_t>(b + 167, static_cast<std::uint16_t>(c.attribute8));
    b[169] = B(c.attribute9);
    b[170] = B(c.attribute10);
    b[171] = B(c.attribute11);
    b[172] = B(c.attribute12);
    b[173] = B(c.videoStandard);
    b[174] = B(c.attribute13);
    b[175] = B(c.attribute14);
    b[176] = B(c.attribute15);
    b[177] = B(c.attribute16);
    b[178] = B(c.attribute17);
    b[179] = B(c.attribute18);
    Put<Big, std::uint32_t>(b + 180, static_cast<std::uint32_t>(c.inPosition));
    Put<Big, std::uint32_t>(b + 184, static_cast<std::uint32_t>(c.shortInPosition));
    Put<Big, std::uint32_t>(b + 188, static_cast<std::uint32_t>(c.shortOutPosition));
    Put<Big, std::uint32_t>(b + 192, static_cast<std::uint32_t>(c.outPosition));
    Put<Big, std::int32_t>(b + 196, c.value1);
    Put<Big, std::uint16_t>(b + 200, c.shortValue1);
    Put<Big, std::int32_t>(b + 202, c.value2);
    Put<Big, std::int32_t>(b + 206, c.value3);
    Put<Big, std::uint16_t>(b + 210, c.shortValue2);
    Put<Big, std::int32_t>(b + 212, c.value4);
    b[216] = B(c.byteValue);
    Put<Big, std::int32_t>(b + 217, c.value5);
    Put<Big, std::uint64_t>(b + 221, Encode<Big>(c.inBoundTodTimecode));
    Put<Big, std::uint64_t>(b + 229, Encode<Big>(c.inBoundUserTimecode));
    Put<Big, std::int64_t>(b + 237, c.value64);
    for (int i = 0; i < 3; ++i) {
        const Clip::Essence& e = c.essences[i];
        unsigned char* at = b + 245 + 15 * i;
        const unsigned char bytes[] = {B(e.flag),
                                       B(e.field2),
                                       B(e.metadata),
                                       B(e.field4),
                                       B(e.videoCompressionType),
                                       B(e.audioCompressionType),
                                       B(e.videoCompressionInfo)};
        std::memcpy(at, bytes, 7);
        Put<Big, std::uint16_t>(at + 7, static_cast<std::uint16_t>(e.value1));
        Put<Big, std::uint16_t>(at + 9, static_cast<std::uint16_t>(e.value2));
        Put<Big, std::uint16_t>(at + 11, static_cast<std::uint16_t>(e.value3));
        Put<Big, std::uint16_t>(at + 13, static_cast<std::uint16_t>(e.value4));
    }
}

template <bool Big>
TimeCode Decode(const unsigned char* at) {
    const auto value = Get<Big, std::uint64_t>(at);
    const bool at60 = (value >> 62 & 1) != 0;
    return TimeCode(at60 ? VideoRates::Rate60() : VideoRates::Rate50(),
                    static_cast<long long>(value & ((std::uint64_t{1} << 62) - 1)),
                    at60 && (value >> 63) != 0);
}

template <class E>
E As(unsigned char byte) {
    return static_cast<E>(byte);
}

template <bool Big>
void PackerLoad(const unsigned char* b, Clip& c) {
    std::memcpy(c.text1, b + 2, 8);
    std::memcpy(c.text2, b + 10, 8);
    std::memcpy(c.text3, b + 18, 8);
    std::memcpy(c.text4, b + 26, 8);
    const unsigned char textFlags = b[34];
    c.name.unicode = textFlags & 1;
    c.varId.unicode = textFlags >> 1 & 1;
    std::memcpy(c.name.text, b + 35, 24);
    std::memcpy(c.varId.text, b + 59, 32);
    for (int k = 0; k < 5; ++k) {
        c.keywords[k].unicode = textFlags >> (2 + k) & 1;
        std::memcpy(c.keywords[k].text, b + 91 + 12 * k, 12);
    }
    std::memcpy(c.rawBytes, b + 151, 8);
    const unsigned char flags = b[159];
    c.is3D = flags & 1;
    c.isDual = flags >> 1 & 1;
    c.isTwinRec = flags >> 2 & 1;
    c.isLegacyTimecodeDrop = flags >> 3 & 1;
    c.attribute1 = b[160];
    c.attribute2 = As<Clips::ArchiveStatus>(b[161]);
    c.attribute3 = As<Clips::Camera>(b[162]);
    c.attribute4 = As<Clips::VideoFormat>(b[163]);
    c.attribute5 = As<Clips::AlphaArchiveStatus>(b[164]);
    c.attribute6 = As<Clips::AudioConfiguration>(b[165]);
    c.attribute7 = As<Clips::TimecodeType>(b[166]);
    c.attribute8 = static_cast<Clips::UserProtect>(Get<Big, std::uint16_t>(b + 167));
    c.attribute9 = As<Clips::PrimaryTimecode>(b[169]);
    c.attribute10 = As<Clips::TrainStatus>(b[170]);
    c.attribute11 = As<Clips::Rating>(b[171]);
    c.attribute12 = As<Clips::FillAndKeyStatus>(b[172]);
    c.videoStandard = As<VideoStandard>(b[173]);
    c.attribute13 = As<Clips::WideColorGamut>(b[174]);
    c.attribute14 = As<Clips::HdrProfile>(b[175]);
    c.attribute15 = As<Clips::AfdAspectRatio>(b[176]);
    c.attribute16 = As<Clips::CodedFrameAspectRatio>(b[177]);
    c.attribute17 = As<Clips::UhdDivisionMode>(b[178]);
    c.attribute18 = As<Clips::SourceEngine>(b[179]);
    c.inPosition = Get<Big, std::uint32_t>(b + 180);
    c.shortInPosition = Get<Big, std::uint32_t>(b + 184);
    c.shortOutPosition = Get<Big, std::uint32_t>(b + 188);
    c.outPosition = Get<Big, std::uint32_t>(b + 192);
    c.value1 = Get<Big, std::int32_t>(b + 196);
    c.shortValue1 = Get<Big, std::uint16_t>(b + 200);
    c.value2 = Get<Big, std::int32_t>(b + 202);
    c.value3 = Get<Big, std::int32_t>(b + 206);
    c.shortValue2 = Get<Big, std::uint16_t>(b + 210);
    c.value4 = Get<Big, std::int32_t>(b + 212);
    c.byteValue = b[216];
    c.value5 = Get<Big, std::int32_t>(b + 217);
    c.inBoundTodTimecode = Decode<Big>(b + 221);
    c.inBoundUserTimecode = Decode<Big>(b + 229);
    c.value64 = Get<Big, std::int64_t>(b + 237);
    for (int i = 0; i < 3; ++i) {
        Clip::Essence& e = c.essences[i];
        const unsigned char* at = b + 245 + 15 * i;
        e.flag = at[0];
        e.field2 = at[1];
        e.metadata = As<Essences::Metadata>(at[2]);
        e.field4 = at[3];
        e.videoCompressionType = As<Essences::VideoCompressionType>(at[4]);
        e.audioCompressionType = As<Essences::AudioCompressionType>(at[5]);
        e.videoCompressionInfo = As<Essences::VideoCompressionInfo>(at[6]);
        e.value1 = Get<Big, std::uint16_t>(at + 7);
        e.value2 = Get<Big, std::uint16_t>(at + 9);
        e.value3 = Get<Big, std::uint16_t>(at + 11);
        e.value4 = Get<Big, std::uint16_t>(at + 13);
    }
}

// ---- the benchmarks ---------------------------------------------------------------------------------

// An Ntsc clip with every field set, as a server sends it.
Clip SampleClip() {
    Clip clip;
    clip.VideoStandard(VideoStandard::Ntsc);
    std::memcpy(clip.text1, "CUP-FIN2", 8);
    std::memcpy(clip.name.text, "Final, second half      ", 24);
    clip.keywords[3].unicode = true;
    clip.isDual = true;
    clip.isLegacyTimecodeDrop = true;
    clip.attribute1 = 1;
    clip.attribute3 = Clips::Camera::C;
    clip.attribute8 = Clips::UserProtect::Kep;
    clip.inPosition = 1250;
    clip.outPosition = 6250;
    clip.value1 = 42;
    clip.InBoundTodTimecode(TimeCode(VideoRates::Rate60(), 235562872932LL, true));
    clip.InBoundUserTimecode(TimeCode(VideoRates::Rate60(), 2160000));
    clip.essences[0].flag = 1;
    clip.essences[0].VideoCompressionType(Essences::VideoCompressionType::IntraDnxHd);
    clip.essences[0].value1 = 185;
    return clip;
}

enum class Baseline { Packer, Memcpy };

// Allocations per call of `call`, outside the timed loop.
template <class Call>
double AllocationsPerCall(Call&& call) {
    constexpr int calls = 1000;
    const long long before = allocations.load();
    for (int i = 0; i < calls; ++i) {
        call();
    }
    return static_cast<double>(allocations.load() - before) / calls;
}

template <bool Big>
void Save(benchmark::State& state, Baseline baseline) {
    const Clip clip = SampleClip();
    Record record{};
    Record packed{};
    Record copy{};
    PackerSave<Big>(clip, packed.data());
    if (Serializer::SaveToBuffer(clip, record.data(), 290, Big) != 290 || record != packed) {
        state.SkipWithError("the packer does not write what SaveToBuffer writes");
        return;
    }
    // Escaped, so that the memory clobbers below make every call read and write them again.
    benchmark::DoNotOptimize(&clip);
    benchmark::DoNotOptimize(packed.data());
    benchmark::DoNotOptimize(copy.data());
    const auto candidate = [&] {
        benchmark::DoNotOptimize(Serializer::SaveToBuffer(clip, record.data(), 290, Big));
        benchmark::ClobberMemory();
    };
    state.counters["allocations"] = AllocationsPerCall(candidate);
    if (baseline == Baseline::Packer) {
        PlurexBench::CompareWithBaseline(state, candidate, [&] {
            PackerSave<Big>(clip, packed.data());
            benchmark::ClobberMemory();
        });
    } else {
        PlurexBench::CompareWithBaseline(state, candidate, [&] {
            std::memcpy(copy.data(), packed.data(), copy.size());
            benchmark::ClobberMemory();
        });
    }
}

template <bool Big>
void Load(benchmark::State& state, Baseline baseline) {
    const Clip sample = SampleClip();
    Record record{};
    Serializer::SaveToBuffer(sample, record.data(), 290, Big);
    Clip loaded = sample;
    Clip unpacked = sample;
    Record copy{};
    PackerLoad<Big>(record.data(), unpacked);
    if (Serializer::LoadFromBuffer(record.data(), 290, loaded, Big) != 290 || !(loaded == sample) ||
        !(unpacked == sample)) {
        state.SkipWithError("the packer does not read what LoadFromBuffer reads");
        return;
    }
    // Escaped, so that the memory clobbers below make every call read and write them again.
    benchmark::DoNotOptimize(record.data());
    benchmark::DoNotOptimize(&unpacked);
    benchmark::DoNotOptimize(copy.data());
    const auto candidate = [&] {
        benchmark::DoNotOptimize(Serializer::LoadFromBuffer(record.data(), 290, loaded, Big));
        benchmark::ClobberMemory();
    };
    state.counters["allocations"] = AllocationsPerCall(candidate);
    if (baseline == Baseline::Packer) {
        PlurexBench::CompareWithBaseline(state, candidate, [&] {
            PackerLoad<Big>(record.data(), unpacked);
            benchmark::ClobberMemory();
        });
    } else {
        PlurexBench::CompareWithBaseline(state, candidate, [&] {
            std::memcpy(copy.data(), record.data(), copy.size());
            benchmark::ClobberMemory();
        });
    }
}

void SaveLittleEndian(benchmark::State& state, Baseline baseline) {
    Save<false>(state, baseline);
}
void SaveBigEndian(benchmark::State& state, Baseline baseline) {
    Save<true>(state, baseline);
}
void LoadLittleEndian(benchmark::State& state, Baseline baseline) {
    Load<false>(state, baseline);
}
void LoadBigEndian(benchmark::State& state, Baseline baseline) {
    Load<true>(state, baseline);
}

// Goal: within 1.5x of the packer.
BENCHMARK_CAPTURE(SaveLittleEndian, packer, Baseline::Packer)->UseManualTime();
BENCHMARK_CAPTURE(SaveBigEndian, packer, Baseline::Packer)->UseManualTime();
BENCHMARK_CAPTURE(SaveLittleEndian, memcpy, Baseline::Memcpy)->UseManualTime();
BENCHMARK_CAPTURE(SaveBigEndian, memcpy, Baseline::Memcpy)->UseManualTime();
// Goal: within 2.5x of the packer.
BENCHMARK_CAPTURE(LoadLittleEndian, packer, Baseline::Packer)->UseManualTime();
BENCHMARK_CAPTURE(LoadBigEndian, packer, Baseline::Packer)->UseManualTime();
BENCHMARK_CAPTURE(LoadLittleEndian, memcpy, Baseline::Memcpy)->UseManualTime();
BENCHMARK_CAPTURE(LoadBigEndian, memcpy, Baseline::Memcpy)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
