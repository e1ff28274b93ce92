#include "PlurexData/data/clips/Clip.h"

#include "PlurexData/data/clips/detail/ClipRules.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <cstring>
#include <stdexcept>

namespace Korv::Plurex::Data::Clips {

using TimePoints::Rate;
using TimePoints::TimeCode;
using TimePoints::TimeCodeBuilder;
using TimePoints::TimeCodeFields;
using TimePoints::VideoRates;

namespace {

template <std::size_t N>
void FillSpaces(Clip::Text<N>& text) noexcept {
    text.unicode = false;
    std::memset(text.text, ' ', N);
    text.text[N] = '\0';
    text.text[N + 1] = '\0';
}

template <std::size_t N>
bool SameText(const Clip::Text<N>& left, const Clip::Text<N>& right) noexcept {
    return left.unicode == right.unicode && std::memcmp(left.text, right.text, N + 2) == 0;
}

// The 8-character texts compare by their NUL-terminated length, then content: "AB" and "AB      "
// differ.
std::size_t ShortTextLength(const char* text) noexcept {
    std::size_t length = 0;
    while (length <= Clip::TextLength && text[length] != '\0') {
        ++length;
    }
    return length;
}

bool SameShortText(const char* left, const char* right) noexcept {
    const std::size_t length = ShortTextLength(left);
    return length == ShortTextLength(right) && std::memcmp(left, right, length) == 0;
}

// The in-bound timecode `timeCode` at `rate`, through TimeCodeBuilder. Carried over: the date, the
// time of day and the flag byte; the frame where the new rate has it, else the last frame of that
// second; the drop flag only at 60/1 (50/1 has no drop-frame form), a frame number that drop-frame
// skips moving on to the first one it keeps. A timecode already at `rate` is kept as it is, which is
// what rebuilding it would give, and also keeps counts past the builder's range. Any other timecode
// that no builder makes (past 2261, or at a rate without whole frames per second) becomes
// 00:00:00:00 on 1 January 1900: loading runs this for whatever a record held, so it must not throw.
TimeCode Rebuild(const TimeCode& timeCode, const Rate& rate) noexcept {
    if (timeCode.GetRate() == rate) {
        return timeCode;
    }
    const long long frames = rate.GetNumerator();
    const bool drop = timeCode.IsDropFrame() && frames == 60;
    const auto split = TimeCodeBuilder::TryFromTimeCode(timeCode);
    TimeCodeFields fields = split ? split->GetFields() : TimeCodeFields{1900, 1, 1, 0, 0, 0, 0};
    if (fields.sample >= frames) {
        fields.sample = static_cast<int>(frames - 1);
    }
    if (drop && fields.minute % 10 != 0 && fields.second == 0 && fields.sample < 4) {
        fields.sample = 4;
    }
    try {
        return TimeCodeBuilder(fields, rate, drop, timeCode.GetFlag()).Build();
    } catch (const std::exception&) {
        // The fields above always build; this only keeps the promise never to throw.
        return TimeCode(rate, 0, false, timeCode.GetFlag());
    }
}

}  // namespace

Clip::Essence::Essence() noexcept
    : type(Essences::Type::Intra),
      flag(0),
      field2(0),
      metadata(),
      field4(0),
      videoCompressionType(),
      audioCompressionType(),
      videoCompressionInfo(),
      value1(0),
      value2(0),
      value3(0),
      value4(0) {}

Clip::Essence::Essence(Essences::Type essenceType) noexcept : Essence() {
    Clear(essenceType);
}

void Clip::Essence::Clear(Essences::Type essenceType) noexcept {
    struct Defaults {
        std::int32_t metadata, field4, videoCompressionType, audioCompressionType, videoCompressionInfo;
    };
    static constexpr Defaults defaults[] = {{0, 1, 0, 0, 0}, {3, 1, 18, 1, 9}, {4, 0, 19, 2, 10}};
    type = essenceType;
    flag = 0;
    field2 = 0;
    value1 = value2 = value3 = value4 = 0;
    const auto index = static_cast<std::int32_t>(essenceType);
    if (index >= 0 && index <= 2) {
        const Defaults& row = defaults[index];
        metadata = static_cast<Essences::Metadata>(row.metadata);
        field4 = row.field4;
        videoCompressionType = static_cast<Essences::VideoCompressionType>(row.videoCompressionType);
        audioCompressionType = static_cast<Essences::AudioCompressionType>(row.audioCompressionType);
        videoCompressionInfo = static_cast<Essences::VideoCompressionInfo>(row.videoCompressionInfo);
    }
}

bool Clip::Essence::Metadata(Essences::Metadata value) noexcept {
    if (!Detail::Accepts(type, static_cast<std::int32_t>(value), Detail::MetadataValues)) {
        return false;
    }
    metadata = value;
    return true;
}

bool Clip::Essence::VideoCompressionType(Essences::VideoCompressionType value) noexcept {
    if (!Detail::Accepts(type, static_cast<std::int32_t>(value), Detail::VideoCompressionTypeValues)) {
        return false;
    }
    videoCompressionType = value;
    return true;
}

bool Clip::Essence::AudioCompressionType(Essences::AudioCompressionType value) noexcept {
    if (!Detail::Accepts(type, static_cast<std::int32_t>(value), Detail::AudioCompressionTypeValues)) {
        return false;
    }
    audioCompressionType = value;
    return true;
}

bool Clip::Essence::VideoCompressionInfo(Essences::VideoCompressionInfo value) noexcept {
    if (!Detail::Accepts(type, static_cast<std::int32_t>(value), Detail::VideoCompressionInfoValues)) {
        return false;
    }
    videoCompressionInfo = value;
    return true;
}

bool Clip::Essence::operator==(const Essence& other) const noexcept {
    return type == other.type && (flag != 0) == (other.flag != 0) && field2 == other.field2 &&
           metadata == other.metadata && field4 == other.field4 &&
           videoCompressionType == other.videoCompressionType &&
           audioCompressionType == other.audioCompressionType &&
           videoCompressionInfo == other.videoCompressionInfo && value1 == other.value1 &&
           value2 == other.value2 && value3 == other.value3 && value4 == other.value4;
}

Clip::Clip() noexcept
    : rawBytes{},
      is3D(false),
      isDual(false),
      isTwinRec(false),
      isLegacyTimecodeDrop(false),
      attribute1(0),
      attribute2(),
      attribute3(),
      attribute4(),
      attribute5(),
      attribute6(),
      attribute7(),
      attribute8(),
      attribute9(),
      attribute10(),
      attribute11(),
      attribute12(),
      videoStandard(Clips::VideoStandard::Pal),
      attribute13(static_cast<WideColorGamut>(2)),
      attribute14(),
      attribute15(),
      attribute16(),
      attribute17(),
      attribute18(),
      inPosition(0),
      shortInPosition(0),
      shortOutPosition(0),
      outPosition(0),
      value1(0),
      shortValue1(0),
      value2(0),
      value3(0),
      shortValue2(65535),
      value4(0),
      byteValue(1),
      value5(0),
      inBoundTodTimecode(DefaultTimecode()),
      inBoundUserTimecode(DefaultTimecode()),
      value64(-0x7fffffffffffffffLL),  // 0x8000000000000001: not set
      essences{Essence(Essences::Type::Intra), Essence(Essences::Type::LongGop),
               Essence(Essences::Type::LowRes)} {
    for (char* text : {text1, text2, text3, text4}) {
        std::memset(text, ' ', TextLength);
        text[TextLength] = '\0';
    }
    FillSpaces(name);
    FillSpaces(varId);
    for (Text<12>& keyword : keywords) {
        FillSpaces(keyword);
    }
}

const TimeCode& Clip::DefaultTimecode() noexcept {
    static const TimeCode defaultTimecode = []() noexcept {
        try {
            return TimeCodeBuilder(1900, 1, 1, 0, 0, 0, 0, VideoRates::Rate50()).Build();
        } catch (const std::exception&) {
            return TimeCode(VideoRates::Rate50(), 0, false, 1);
        }
    }();
    return defaultTimecode;
}

const Rate& Clip::GetRate() const noexcept {
    return videoStandard == Clips::VideoStandard::Pal ? VideoRates::Rate50() : VideoRates::Rate60();
}

void Clip::VideoStandard(Clips::VideoStandard value) noexcept {
    if (value == videoStandard) {
        return;
    }
    videoStandard = value;
    const Rate& rate = GetRate();
    inBoundTodTimecode = Rebuild(inBoundTodTimecode, rate);
    inBoundUserTimecode = Rebuild(inBoundUserTimecode, rate);
    if (value == Clips::VideoStandard::Pal) {
        isLegacyTimecodeDrop = false;
    }
}

namespace {

void CheckRate(const Clip& clip, const TimeCode& timeCode) {
    if (!Detail::IsClipRate(clip.videoStandard, timeCode.GetRate())) {
        Detail::ThrowRateInconsistent();
    }
}

// The position of `timeCode` counted from `reference`, which sits at `inPosition`. Wraps like the
// 64-bit arithmetic of the other platforms rather than overflowing.
std::int64_t Position(const TimeCode& timeCode, const TimeCode& reference, std::int64_t inPosition) {
    if (timeCode.GetRate() != reference.GetRate() || timeCode.IsDropFrame() != reference.IsDropFrame() ||
        timeCode.GetFlag() != reference.GetFlag()) {
        throw std::out_of_range("TimeCode Incompatibilty");
    }
    const auto distance = static_cast<std::uint64_t>(timeCode.GetTotalSample()) -
                          static_cast<std::uint64_t>(reference.GetTotalSample());
    return static_cast<std::int64_t>(distance + static_cast<std::uint64_t>(inPosition));
}

template <class Setter>
bool Try(Setter setter) noexcept {
    try {
        setter();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace

void Clip::InBoundTodTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    inBoundTodTimecode = timeCode;
}

void Clip::InBoundUserTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    inBoundUserTimecode = timeCode;
}

void Clip::ShortInBoundTodTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    shortInPosition = Position(timeCode, inBoundTodTimecode, inPosition);
}

void Clip::ShortOutBoundTodTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    shortOutPosition = Position(timeCode, inBoundTodTimecode, inPosition);
}

void Clip::OutBoundTodTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    outPosition = Position(timeCode, inBoundTodTimecode, inPosition);
}

void Clip::ShortInBoundUserTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    shortInPosition = Position(timeCode, inBoundUserTimecode, inPosition);
}

void Clip::ShortOutBoundUserTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    shortOutPosition = Position(timeCode, inBoundUserTimecode, inPosition);
}

void Clip::OutBoundUserTimecode(const TimeCode& timeCode) {
    CheckRate(*this, timeCode);
    outPosition = Position(timeCode, inBoundUserTimecode, inPosition);
}

bool Clip::TrySetInBoundTodTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { InBoundTodTimecode(timeCode); });
}

bool Clip::TrySetInBoundUserTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { InBoundUserTimecode(timeCode); });
}

bool Clip::TrySetShortInBoundTodTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { ShortInBoundTodTimecode(timeCode); });
}

bool Clip::TrySetShortOutBoundTodTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { ShortOutBoundTodTimecode(timeCode); });
}

bool Clip::TrySetOutBoundTodTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { OutBoundTodTimecode(timeCode); });
}

bool Clip::TrySetShortInBoundUserTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { ShortInBoundUserTimecode(timeCode); });
}

bool Clip::TrySetShortOutBoundUserTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { ShortOutBoundUserTimecode(timeCode); });
}

bool Clip::TrySetOutBoundUserTimecode(const TimeCode& timeCode) noexcept {
    return Try([&] { OutBoundUserTimecode(timeCode); });
}

bool Clip::operator==(const Clip& other) const noexcept {
    for (std::size_t k = 0; k < KeywordCount; ++k) {
        if (!SameText(keywords[k], other.keywords[k])) {
            return false;
        }
    }
    if (std::memcmp(rawBytes, other.rawBytes, sizeof rawBytes) != 0) {
        return false;
    }
    if (!SameShortText(text1, other.text1) || !SameShortText(text2, other.text2) ||
        !SameShortText(text3, other.text3) || !SameShortText(text4, other.text4)) {
        return false;
    }
    if (!SameText(name, other.name) || !SameText(varId, other.varId)) {
        return false;
    }
    if (is3D != other.is3D || isDual != other.isDual || isTwinRec != other.isTwinRec ||
        isLegacyTimecodeDrop != other.isLegacyTimecodeDrop) {
        return false;
    }
    if ((attribute1 != 0) != (other.attribute1 != 0)) {
        return false;
    }
    // Attributes 2 and 5 are not compared.
    if (attribute3 != other.attribute3 || attribute4 != other.attribute4 || attribute6 != other.attribute6 ||
        attribute7 != other.attribute7 || attribute8 != other.attribute8 || attribute9 != other.attribute9 ||
        attribute10 != other.attribute10 || attribute11 != other.attribute11 ||
        attribute12 != other.attribute12 || videoStandard != other.videoStandard ||
        attribute13 != other.attribute13 || attribute14 != other.attribute14 ||
        attribute15 != other.attribute15 || attribute16 != other.attribute16 ||
        attribute17 != other.attribute17 || attribute18 != other.attribute18) {
        return false;
    }
    // Values 2 and 4 are not compared.
    if (inPosition != other.inPosition || shortInPosition != other.shortInPosition ||
        shortOutPosition != other.shortOutPosition || outPosition != other.outPosition ||
        value1 != other.value1 || shortValue1 != other.shortValue1 || value3 != other.value3 ||
        shortValue2 != other.shortValue2 || byteValue != other.byteValue || value5 != other.value5) {
        return false;
    }
    if (inBoundTodTimecode != other.inBoundTodTimecode || inBoundUserTimecode != other.inBoundUserTimecode) {
        return false;
    }
    if (value64 != other.value64) {
        return false;
    }
    return essences[0] == other.essences[0] && essences[1] == other.essences[1] &&
           essences[2] == other.essences[2];
}

namespace Detail {

void ThrowRateInconsistent() {
    throw std::invalid_argument("Timecode Rate inconsistent with Clip Rate");
}

}  // namespace Detail

}  // namespace Korv::Plurex::Data::Clips
