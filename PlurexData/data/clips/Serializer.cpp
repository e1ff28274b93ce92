#include "PlurexData/data/clips/Serializer.h"

#include "PlurexData/data/clips/detail/ClipRules.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace Korv::Plurex::Data::Clips {

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "the record's numbers are copied from memory and swapped for big-endian");

using TimePoints::Rate;
using TimePoints::TimeCode;
using TimePoints::TimeCodeBuilder;
using TimePoints::VideoRates;

namespace {

// Record offsets.
constexpr unsigned int TextsAt = 2;
constexpr unsigned int TextFlagsAt = 34;
constexpr unsigned int NameAt = 35;
constexpr unsigned int VarIdAt = 59;
constexpr unsigned int KeywordsAt = 91;
constexpr unsigned int RawBytesAt = 151;
constexpr unsigned int BoolFlagsAt = 159;
constexpr unsigned int Attribute1At = 160;
constexpr unsigned int Attribute8At = 167;
constexpr unsigned int Attribute9At = 169;
constexpr unsigned int VideoStandardAt = 173;
constexpr unsigned int Attribute13At = 174;
constexpr unsigned int PositionsAt = 180;
constexpr unsigned int Value1At = 196;
constexpr unsigned int ShortValue1At = 200;
constexpr unsigned int Value2At = 202;
constexpr unsigned int Value3At = 206;
constexpr unsigned int ShortValue2At = 210;
constexpr unsigned int Value4At = 212;
constexpr unsigned int ByteValueAt = 216;
constexpr unsigned int Value5At = 217;
constexpr unsigned int TimecodesAt = 221;

constexpr std::uint64_t CountMask = (std::uint64_t{1} << 62) - 1;
constexpr std::uint64_t Rate60Bit = std::uint64_t{1} << 62;
constexpr std::uint64_t DropBit = std::uint64_t{1} << 63;

// Numbers in the record's byte order, for a byte order fixed at compile time.
template <bool Big>
struct Order {
    static void Put16(unsigned char* at, std::uint16_t value) noexcept {
        if (Big) {
            value = __builtin_bswap16(value);
        }
        std::memcpy(at, &value, sizeof value);
    }
    static void Put32(unsigned char* at, std::uint32_t value) noexcept {
        if (Big) {
            value = __builtin_bswap32(value);
        }
        std::memcpy(at, &value, sizeof value);
    }
    static void Put64(unsigned char* at, std::uint64_t value) noexcept {
        if (Big) {
            value = __builtin_bswap64(value);
        }
        std::memcpy(at, &value, sizeof value);
    }
    static std::uint16_t Get16(const unsigned char* at) noexcept {
        std::uint16_t value;
        std::memcpy(&value, at, sizeof value);
        return Big ? __builtin_bswap16(value) : value;
    }
    static std::uint32_t Get32(const unsigned char* at) noexcept {
        std::uint32_t value;
        std::memcpy(&value, at, sizeof value);
        return Big ? __builtin_bswap32(value) : value;
    }
    static std::uint64_t Get64(const unsigned char* at) noexcept {
        std::uint64_t value;
        std::memcpy(&value, at, sizeof value);
        return Big ? __builtin_bswap64(value) : value;
    }
};

constexpr bool HasBit(unsigned char flags, unsigned int mask) noexcept {
    return (flags & mask) != 0;
}

constexpr bool KeywordBit(unsigned char flags, int k) noexcept {
    return k >= 0 && k < static_cast<int>(Clip::KeywordCount) && HasBit(flags, 0x04u << k);
}

unsigned char TextFlags(const Clip& clip) noexcept {
    unsigned int flags = (clip.name.unicode ? 0x01u : 0u) | (clip.varId.unicode ? 0x02u : 0u);
    for (unsigned int k = 0; k < Clip::KeywordCount; ++k) {
        flags |= clip.keywords[k].unicode ? 0x04u << k : 0u;
    }
    return static_cast<unsigned char>(flags);
}

unsigned char BoolFlags(const Clip& clip) noexcept {
    return static_cast<unsigned char>((clip.is3D ? 0x01 : 0) | (clip.isDual ? 0x02 : 0) |
                                      (clip.isTwinRec ? 0x04 : 0) | (clip.isLegacyTimecodeDrop ? 0x08 : 0));
}

// The low 8 bits of a 32-bit field, enumerated or not.
template <class T>
unsigned char Low8(T value) noexcept {
    return static_cast<unsigned char>(static_cast<std::uint32_t>(value));
}

template <class T>
T FromByte(unsigned char byte) noexcept {
    return static_cast<T>(byte);
}

// 00:00:00:00 on 1 January 1900 at `rate`, or 50/1 with count 0 and no drop should the builder refuse.
TimeCode Base(const Rate& rate, bool drop) noexcept {
    try {
        return TimeCodeBuilder(1900, 1, 1, 0, 0, 0, 0, rate, drop).Build();
    } catch (const std::exception&) {
        return TimeCode(VideoRates::Rate50(), 0);
    }
}

struct DecodeBases {
    TimeCode pal;
    TimeCode ntscDrop;
    TimeCode ntsc;
};

const DecodeBases& Bases() noexcept {
    static const DecodeBases bases{Base(VideoRates::Rate50(), false), Base(VideoRates::Rate60(), true),
                                   Base(VideoRates::Rate60(), false)};
    return bases;
}

[[noreturn]] void NegativeTotal(long long total) {
    char message[96];
    std::snprintf(message, sizeof message, "New TotalSample %lld must be positive (after 1/1/1900) ", total);
    throw std::out_of_range(message);
}

// The timecode word of `timeCode`; false for a rate the record has no bit for.
bool TimecodeWord(const TimeCode& timeCode, std::uint64_t& word) noexcept {
    const Rate& rate = timeCode.GetRate();
    word = static_cast<std::uint64_t>(timeCode.GetTotalSample()) & CountMask;
    if (rate.GetDenominator() != 1) {
        return false;
    }
    if (rate.GetNumerator() == 60) {
        word |= Rate60Bit | (timeCode.IsDropFrame() ? DropBit : 0);
    } else if (rate.GetNumerator() != 50) {
        return false;
    }
    return true;
}

template <bool Big>
unsigned int SaveTimecode(const TimeCode& timeCode, unsigned char* at) noexcept {
    std::uint64_t word = 0;
    if (!TimecodeWord(timeCode, word)) {
        return 0;
    }
    Order<Big>::Put64(at, word);
    return Serializer::TimecodeSize;
}

// A decoded timecode: the base's rate, the count added to it, the drop flag.
struct Decoded {
    const Rate* rate;
    long long total;
    bool drop;

    TimeCode ToTimeCode() const noexcept {
        // Flag byte 0: a valid timecode, as every built one.
        return TimeCode(*rate, total, drop);
    }
};

Decoded DecodeWord(std::uint64_t value) {
    const DecodeBases& bases = Bases();
    const TimeCode& base =
        (value & Rate60Bit) == 0 ? bases.pal : ((value & DropBit) != 0 ? bases.ntscDrop : bases.ntsc);
    // Signed 64-bit arithmetic, wrapping rather than overflowing.
    const std::uint64_t sum = static_cast<std::uint64_t>(base.GetTotalSample()) + (value & CountMask);
    const auto total = static_cast<long long>(sum);
    if (total < 0) {
        NegativeTotal(total);
    }
    const Rate& rate = base.GetRate();
    const bool drop = base.IsDropFrame() && rate.GetDenominator() == 1 &&
                      (rate.GetNumerator() == 60 || rate.GetNumerator() == 30);
    return Decoded{&rate, total, drop};
}

template <bool Big>
Decoded DecodeTimecode(const unsigned char* at) {
    return DecodeWord(Order<Big>::Get64(at));
}

template <bool Big>
unsigned int SaveEssence(const Clip::Essence& essence, unsigned char* at) noexcept {
    at[0] = Low8(essence.flag);
    at[1] = Low8(essence.field2);
    at[2] = Low8(essence.metadata);
    at[3] = Low8(essence.field4);
    at[4] = Low8(essence.videoCompressionType);
    at[5] = Low8(essence.audioCompressionType);
    at[6] = Low8(essence.videoCompressionInfo);
    Order<Big>::Put16(at + 7, static_cast<std::uint16_t>(essence.value1));
    Order<Big>::Put16(at + 9, static_cast<std::uint16_t>(essence.value2));
    Order<Big>::Put16(at + 11, static_cast<std::uint16_t>(essence.value3));
    Order<Big>::Put16(at + 13, static_cast<std::uint16_t>(essence.value4));
    return Serializer::EssenceSize;
}

template <bool Big>
unsigned int LoadEssence(const unsigned char* at, Clip::Essence& essence) noexcept {
    essence.flag = at[0];
    essence.field2 = at[1];
    essence.field4 = at[3];
    // The rules of the essence's validating setters, applied in place: a value that does not suit the
    // essence's type leaves the field as it was.
    if (Detail::Accepts(essence.type, at[2], Detail::MetadataValues)) {
        essence.metadata = FromByte<Essences::Metadata>(at[2]);
    }
    if (Detail::Accepts(essence.type, at[4], Detail::VideoCompressionTypeValues)) {
        essence.videoCompressionType = FromByte<Essences::VideoCompressionType>(at[4]);
    }
    if (Detail::Accepts(essence.type, at[5], Detail::AudioCompressionTypeValues)) {
        essence.audioCompressionType = FromByte<Essences::AudioCompressionType>(at[5]);
    }
    if (Detail::Accepts(essence.type, at[6], Detail::VideoCompressionInfoValues)) {
        essence.videoCompressionInfo = FromByte<Essences::VideoCompressionInfo>(at[6]);
    }
    essence.value1 = Order<Big>::Get16(at + 7);
    essence.value2 = Order<Big>::Get16(at + 9);
    essence.value3 = Order<Big>::Get16(at + 11);
    essence.value4 = Order<Big>::Get16(at + 13);
    return Serializer::EssenceSize;
}

template <bool Big>
unsigned int Save(const Clip& clip, unsigned char* buffer) noexcept {
    using O = Order<Big>;
    O::Put16(buffer, Serializer::RecordTag);
    const char* texts[] = {clip.text1, clip.text2, clip.text3, clip.text4};
    for (unsigned int i = 0; i < 4; ++i) {
        std::memcpy(buffer + TextsAt + Clip::TextLength * i, texts[i], Clip::TextLength);
    }
    buffer[TextFlagsAt] = TextFlags(clip);
    std::memcpy(buffer + NameAt, clip.name.text, clip.name.Size);
    std::memcpy(buffer + VarIdAt, clip.varId.text, clip.varId.Size);
    for (unsigned int k = 0; k < Clip::KeywordCount; ++k) {
        std::memcpy(buffer + KeywordsAt + clip.keywords[k].Size * k, clip.keywords[k].text,
                    clip.keywords[k].Size);
    }
    std::memcpy(buffer + RawBytesAt, clip.rawBytes, sizeof clip.rawBytes);
    buffer[BoolFlagsAt] = BoolFlags(clip);

    unsigned char* attributes = buffer + Attribute1At;
    attributes[0] = Low8(clip.attribute1);
    attributes[1] = Low8(clip.attribute2);
    attributes[2] = Low8(clip.attribute3);
    attributes[3] = Low8(clip.attribute4);
    attributes[4] = Low8(clip.attribute5);
    attributes[5] = Low8(clip.attribute6);
    attributes[6] = Low8(clip.attribute7);
    O::Put16(buffer + Attribute8At, static_cast<std::uint16_t>(clip.attribute8));
    attributes = buffer + Attribute9At;
    attributes[0] = Low8(clip.attribute9);
    attributes[1] = Low8(clip.attribute10);
    attributes[2] = Low8(clip.attribute11);
    attributes[3] = Low8(clip.attribute12);
    buffer[VideoStandardAt] = Low8(clip.videoStandard);
    attributes = buffer + Attribute13At;
    attributes[0] = Low8(clip.attribute13);
    attributes[1] = Low8(clip.attribute14);
    attributes[2] = Low8(clip.attribute15);
    attributes[3] = Low8(clip.attribute16);
    attributes[4] = Low8(clip.attribute17);
    attributes[5] = Low8(clip.attribute18);

    O::Put32(buffer + PositionsAt, static_cast<std::uint32_t>(clip.inPosition));
    O::Put32(buffer + PositionsAt + 4, static_cast<std::uint32_t>(clip.shortInPosition));
    O::Put32(buffer + PositionsAt + 8, static_cast<std::uint32_t>(clip.shortOutPosition));
    O::Put32(buffer + PositionsAt + 12, static_cast<std::uint32_t>(clip.outPosition));
    O::Put32(buffer + Value1At, static_cast<std::uint32_t>(clip.value1));
    O::Put16(buffer + ShortValue1At, clip.shortValue1);
    O::Put32(buffer + Value2At, static_cast<std::uint32_t>(clip.value2));
    O::Put32(buffer + Value3At, static_cast<std::uint32_t>(clip.value3));
    O::Put16(buffer + ShortValue2At, clip.shortValue2);
    O::Put32(buffer + Value4At, static_cast<std::uint32_t>(clip.value4));
    buffer[ByteValueAt] = Low8(clip.byteValue);
    O::Put32(buffer + Value5At, static_cast<std::uint32_t>(clip.value5));

    // From here on each item follows the ones before it: a timecode that cannot be encoded takes no
    // room, and the record comes out 8 bytes short. Kept: existing readers expect exactly this.
    unsigned int offset = TimecodesAt;
    offset += SaveTimecode<Big>(clip.inBoundTodTimecode, buffer + offset);
    offset += SaveTimecode<Big>(clip.inBoundUserTimecode, buffer + offset);
    O::Put64(buffer + offset, static_cast<std::uint64_t>(clip.value64));
    offset += 8;
    for (const Clip::Essence& essence : clip.essences) {
        offset += SaveEssence<Big>(essence, buffer + offset);
    }
    return offset;
}

template <std::size_t N>
void LoadText(const unsigned char* at, Clip::Text<N>& text, bool unicode) noexcept {
    text.unicode = unicode;
    std::memcpy(text.text, at, N);
    text.text[N] = '\0';
    text.text[N + 1] = '\0';
}

template <bool Big>
unsigned int Load(const unsigned char* buffer, Clip& clip) {
    using O = Order<Big>;
    char* texts[] = {clip.text1, clip.text2, clip.text3, clip.text4};
    for (unsigned int i = 0; i < 4; ++i) {
        std::memcpy(texts[i], buffer + TextsAt + Clip::TextLength * i, Clip::TextLength);
        texts[i][Clip::TextLength] = '\0';
    }
    const unsigned char textFlags = buffer[TextFlagsAt];
    LoadText(buffer + NameAt, clip.name, HasBit(textFlags, 0x01));
    LoadText(buffer + VarIdAt, clip.varId, HasBit(textFlags, 0x02));
    for (unsigned int k = 0; k < Clip::KeywordCount; ++k) {
        LoadText(buffer + KeywordsAt + clip.keywords[k].Size * k, clip.keywords[k],
                 KeywordBit(textFlags, static_cast<int>(k)));
    }
    std::memcpy(clip.rawBytes, buffer + RawBytesAt, sizeof clip.rawBytes);

    const unsigned char flags = buffer[BoolFlagsAt];
    clip.is3D = HasBit(flags, 0x01);
    clip.isDual = HasBit(flags, 0x02);
    clip.isTwinRec = HasBit(flags, 0x04);
    // Tested on the standard the clip has before this record's is applied: kept, existing clients
    // read the record this way.
    if (clip.videoStandard == VideoStandard::Ntsc) {
        clip.isLegacyTimecodeDrop = HasBit(flags, 0x08);
    }

    const unsigned char* attributes = buffer + Attribute1At;
    clip.attribute1 = attributes[0];
    clip.attribute2 = FromByte<ArchiveStatus>(attributes[1]);
    clip.attribute3 = FromByte<Camera>(attributes[2]);
    clip.attribute4 = FromByte<VideoFormat>(attributes[3]);
    clip.attribute5 = FromByte<AlphaArchiveStatus>(attributes[4]);
    clip.attribute6 = FromByte<AudioConfiguration>(attributes[5]);
    clip.attribute7 = FromByte<TimecodeType>(attributes[6]);
    clip.attribute8 = static_cast<UserProtect>(O::Get16(buffer + Attribute8At));
    attributes = buffer + Attribute9At;
    clip.attribute9 = FromByte<PrimaryTimecode>(attributes[0]);
    clip.attribute10 = FromByte<TrainStatus>(attributes[1]);
    clip.attribute11 = FromByte<Rating>(attributes[2]);
    clip.attribute12 = FromByte<FillAndKeyStatus>(attributes[3]);
    const auto standard = FromByte<VideoStandard>(buffer[VideoStandardAt]);
    if (standard != clip.videoStandard) {  // the setter does nothing for the same standard
        clip.VideoStandard(standard);
    }
    attributes = buffer + Attribute13At;
    clip.attribute13 = FromByte<WideColorGamut>(attributes[0]);
    clip.attribute14 = FromByte<HdrProfile>(attributes[1]);
    clip.attribute15 = FromByte<AfdAspectRatio>(attributes[2]);
    clip.attribute16 = FromByte<CodedFrameAspectRatio>(attributes[3]);
    clip.attribute17 = FromByte<UhdDivisionMode>(attributes[4]);
    clip.attribute18 = FromByte<SourceEngine>(attributes[5]);

    clip.inPosition = O::Get32(buffer + PositionsAt);
    clip.shortInPosition = O::Get32(buffer + PositionsAt + 4);
    clip.shortOutPosition = O::Get32(buffer + PositionsAt + 8);
    clip.outPosition = O::Get32(buffer + PositionsAt + 12);
    clip.value1 = static_cast<std::int32_t>(O::Get32(buffer + Value1At));
    clip.shortValue1 = O::Get16(buffer + ShortValue1At);
    clip.value2 = static_cast<std::int32_t>(O::Get32(buffer + Value2At));
    clip.value3 = static_cast<std::int32_t>(O::Get32(buffer + Value3At));
    clip.shortValue2 = O::Get16(buffer + ShortValue2At);
    clip.value4 = static_cast<std::int32_t>(O::Get32(buffer + Value4At));
    clip.byteValue = buffer[ByteValueAt];
    clip.value5 = static_cast<std::int32_t>(O::Get32(buffer + Value5At));

    // Each stored as InBoundTodTimecode and InBoundUserTimecode store it, with their check of the rate.
    unsigned int offset = TimecodesAt;
    const Decoded tod = DecodeTimecode<Big>(buffer + offset);
    if (!Detail::IsClipRate(clip.videoStandard, *tod.rate)) {
        Detail::ThrowRateInconsistent();
    }
    clip.inBoundTodTimecode = tod.ToTimeCode();
    offset += Serializer::TimecodeSize;
    const Decoded user = DecodeTimecode<Big>(buffer + offset);
    if (!Detail::IsClipRate(clip.videoStandard, *user.rate)) {
        Detail::ThrowRateInconsistent();
    }
    clip.inBoundUserTimecode = user.ToTimeCode();
    offset += Serializer::TimecodeSize;
    clip.value64 = static_cast<std::int64_t>(O::Get64(buffer + offset));
    offset += 8;
    for (Clip::Essence& essence : clip.essences) {
        offset += LoadEssence<Big>(buffer + offset, essence);
    }
    return offset;
}

}  // namespace

unsigned int Serializer::SaveToBuffer(const Clip& clip, unsigned char* buffer, unsigned int size,
                                      bool bigEndian) noexcept {
    if (buffer == nullptr || size < RecordSize) {
        return 0;
    }
    return bigEndian ? Save<true>(clip, buffer) : Save<false>(clip, buffer);
}

unsigned int Serializer::LoadFromBuffer(const unsigned char* buffer, unsigned int size, Clip& clip,
                                        bool bigEndian) {
    if (buffer == nullptr || size < RecordSize) {
        return 0;
    }
    return bigEndian ? Load<true>(buffer, clip) : Load<false>(buffer, clip);
}

std::optional<bool> Serializer::DetectByteOrder(const unsigned char* buffer, unsigned int size) noexcept {
    if (buffer == nullptr || size < 2) {
        return std::nullopt;
    }
    const unsigned int word = buffer[0] << 8 | buffer[1];
    if (word == Swap16(RecordTag, true)) {
        return false;
    }
    if (word == RecordTag) {
        return true;
    }
    return std::nullopt;
}

unsigned int Serializer::LoadWithRecordStandard(const unsigned char* buffer, unsigned int size, Clip& clip,
                                                bool bigEndian) {
    if (buffer == nullptr || size < RecordSize) {
        return 0;
    }
    clip.VideoStandard(FromByte<VideoStandard>(buffer[VideoStandardAt]));
    return LoadFromBuffer(buffer, size, clip, bigEndian);
}

std::uint64_t Serializer::ToTimecodeWord(const TimeCode& timeCode) {
    std::uint64_t word = 0;
    if (!TimecodeWord(timeCode, word)) {
        throw std::invalid_argument("Timecode rate must be 50/1 or 60/1");
    }
    return word;
}

TimeCode Serializer::FromTimecodeWord(std::uint64_t word) {
    return DecodeWord(word).ToTimeCode();
}

unsigned int Serializer::SaveEssenceToBuffer(const Clip::Essence& essence, unsigned char* buffer,
                                             unsigned int size, bool bigEndian) noexcept {
    if (buffer == nullptr || size < EssenceSize) {
        return 0;
    }
    return bigEndian ? SaveEssence<true>(essence, buffer) : SaveEssence<false>(essence, buffer);
}

unsigned int Serializer::LoadEssenceFromBuffer(const unsigned char* buffer, unsigned int size,
                                               Clip::Essence& essence, bool bigEndian) noexcept {
    if (buffer == nullptr || size < EssenceSize) {
        return 0;
    }
    return bigEndian ? LoadEssence<true>(buffer, essence) : LoadEssence<false>(buffer, essence);
}

unsigned int Serializer::SaveTimecodeToBuffer(const TimeCode& timeCode, unsigned char* buffer,
                                              unsigned int size, bool bigEndian) noexcept {
    if (buffer == nullptr || size < TimecodeSize) {
        return 0;
    }
    return bigEndian ? SaveTimecode<true>(timeCode, buffer) : SaveTimecode<false>(timeCode, buffer);
}

unsigned int Serializer::LoadTimecodeFromBuffer(const unsigned char* buffer, unsigned int size,
                                                TimeCode& timeCode, bool bigEndian) {
    if (buffer == nullptr || size < TimecodeSize) {
        return 0;
    }
    timeCode = (bigEndian ? DecodeTimecode<true>(buffer) : DecodeTimecode<false>(buffer)).ToTimeCode();
    return TimecodeSize;
}

unsigned short Serializer::Swap16(unsigned short value, bool swap) noexcept {
    return swap ? __builtin_bswap16(value) : value;
}

unsigned int Serializer::Swap32(unsigned int value, bool swap) noexcept {
    return swap ? __builtin_bswap32(value) : value;
}

unsigned long long Serializer::Swap64(unsigned long long value, bool swap) noexcept {
    return swap ? __builtin_bswap64(value) : value;
}

unsigned char Serializer::Utf16Flag(const Clip& clip) noexcept {
    return TextFlags(clip);
}

unsigned char Serializer::BoolFlag(const Clip& clip) noexcept {
    return BoolFlags(clip);
}

bool Serializer::IsNameUtf16(unsigned char flags) noexcept {
    return HasBit(flags, 0x01);
}

bool Serializer::IsVarIdUtf16(unsigned char flags) noexcept {
    return HasBit(flags, 0x02);
}

bool Serializer::IsKeywordUtf16(unsigned char flags, int k) noexcept {
    return KeywordBit(flags, k);
}

bool Serializer::Is3D(unsigned char flags) noexcept {
    return HasBit(flags, 0x01);
}

bool Serializer::IsDual(unsigned char flags) noexcept {
    return HasBit(flags, 0x02);
}

bool Serializer::IsTwinRec(unsigned char flags) noexcept {
    return HasBit(flags, 0x04);
}

bool Serializer::IsLegacyTimecodeDrop(unsigned char flags) noexcept {
    return HasBit(flags, 0x08);
}

}  // namespace Korv::Plurex::Data::Clips
