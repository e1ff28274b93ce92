#include "PlurexData/data/clips/Serializer.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Korv::Plurex::Data::Clips;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::VideoRates;
namespace E = Korv::Plurex::Data::Clips::Essences;

namespace {

using Record = std::array<unsigned char, 290>;

// The fully populated clip of the golden records below: every field differs from its default and
// fits its record width.
Clip GoldenClip() {
    Clip clip;
    clip.VideoStandard(VideoStandard::Ntsc);
    std::memcpy(clip.text1, "ALPHA001", 8);
    std::memcpy(clip.text2, "BRAVO002", 8);
    std::memcpy(clip.text3, "CHARL003", 8);
    std::memcpy(clip.text4, "DELTA004", 8);
    std::memcpy(clip.name.text, "Final of the cup, game 2", 24);
    clip.varId.unicode = true;
    std::memcpy(clip.varId.text, u"VAR-ID 0123456\0", 32);
    std::memcpy(clip.keywords[0].text, "keyword zero", 12);
    std::memcpy(clip.keywords[1].text, "keyword one ", 12);
    clip.keywords[2].unicode = true;
    std::memcpy(clip.keywords[2].text, u"kw2 ut", 12);
    std::memcpy(clip.keywords[3].text, "keyword 3   ", 12);
    clip.keywords[4].unicode = true;
    std::memcpy(clip.keywords[4].text, u"k4 #\0", 12);
    const unsigned char raw[8] = {0xDE, 0xAD, 0xBE, 0xEF, 0x00, 0x01, 0x7F, 0x80};
    std::memcpy(clip.rawBytes, raw, 8);
    clip.is3D = true;
    clip.isTwinRec = true;
    clip.isLegacyTimecodeDrop = true;
    clip.attribute1 = 1;
    clip.attribute2 = ArchiveStatus::Stored;
    clip.attribute3 = Camera::C;
    clip.attribute4 = VideoFormat::Uhd4k;
    clip.attribute5 = AlphaArchiveStatus::ImportantAndStored;
    clip.attribute6 = AudioConfiguration::SixteenMonos;
    clip.attribute7 = TimecodeType::AtcLtc;
    clip.attribute8 = static_cast<UserProtect>(0xA55A);
    clip.attribute9 = PrimaryTimecode::User;
    clip.attribute10 = TrainStatus::ActiveTrain;
    clip.attribute11 = Rating::Best;
    clip.attribute12 = FillAndKeyStatus::Fill;
    clip.attribute13 = WideColorGamut::Rec2020;
    clip.attribute14 = HdrProfile::Hlg;
    clip.attribute15 = AfdAspectRatio::LetterBox;
    clip.attribute16 = CodedFrameAspectRatio::SixteenNinths;
    clip.attribute17 = UhdDivisionMode::Square;
    clip.attribute18 = SourceEngine::Derush;
    clip.inPosition = 0x01020304;
    clip.shortInPosition = 0x11121314;
    clip.shortOutPosition = 0x21222324;
    clip.outPosition = 0x31323334;
    clip.value1 = 0x41424344;
    clip.shortValue1 = 0x5152;
    clip.value2 = 0x61626364;
    clip.value3 = 0x71727374;
    clip.shortValue2 = 0x8182;
    clip.value4 = static_cast<std::int32_t>(0x91929394u);
    clip.byteValue = 0xA1;
    clip.value5 = static_cast<std::int32_t>(0xB1B2B3B4u);
    clip.InBoundTodTimecode(TimeCode(VideoRates::Rate60(), 0x123456789ABCLL, true));
    clip.InBoundUserTimecode(TimeCode(VideoRates::Rate60(), 0xDEADBEEFLL));
    clip.value64 = static_cast<std::int64_t>(0x8877665544332211ULL);
    const int essences[3][11] = {{1, 0x22, 2, 0x44, 5, 0, 7, 0x0102, 0x0304, 0x0506, 0x0708},
                                 {1, 0x33, 3, 0x55, 18, 1, 9, 0x1112, 0x1314, 0x1516, 0x1718},
                                 {1, 0x66, 4, 0x77, 20, 2, 10, 0x2122, 0x2324, 0x2526, 0x2728}};
    for (int i = 0; i < 3; ++i) {
        Clip::Essence& e = clip.essences[i];
        const int* v = essences[i];
        e.flag = v[0];
        e.field2 = v[1];
        e.metadata = static_cast<E::Metadata>(v[2]);
        e.field4 = v[3];
        e.videoCompressionType = static_cast<E::VideoCompressionType>(v[4]);
        e.audioCompressionType = static_cast<E::AudioCompressionType>(v[5]);
        e.videoCompressionInfo = static_cast<E::VideoCompressionInfo>(v[6]);
        e.value1 = v[7];
        e.value2 = v[8];
        e.value3 = v[9];
        e.value4 = v[10];
    }
    return clip;
}

// The golden clip's record, written out from the layout.
// clang-format off
const Record GoldenLittle{{
    // 0: tag 1792
    0x00, 0x07,
    // 2: text 1
    0x41, 0x4C, 0x50, 0x48, 0x41, 0x30, 0x30, 0x31,
    // 10: text 2
    0x42, 0x52, 0x41, 0x56, 0x4F, 0x30, 0x30, 0x32,
    // 18: text 3
    0x43, 0x48, 0x41, 0x52, 0x4C, 0x30, 0x30, 0x33,
    // 26: text 4
    0x44, 0x45, 0x4C, 0x54, 0x41, 0x30, 0x30, 0x34,
    // 34: text flags: var-id, keywords 2 and 4 UTF-16
    0x52,
    // 35: name
    0x46, 0x69, 0x6E, 0x61, 0x6C, 0x20, 0x6F, 0x66, 0x20, 0x74, 0x68, 0x65, 0x20, 0x63, 0x75, 0x70,
    0x2C, 0x20, 0x67, 0x61, 0x6D, 0x65, 0x20, 0x32,
    // 59: var-id, UTF-16
    0x56, 0x00, 0x41, 0x00, 0x52, 0x00, 0x2D, 0x00, 0x49, 0x00, 0x44, 0x00, 0x20, 0x00, 0x30, 0x00,
    0x31, 0x00, 0x32, 0x00, 0x33, 0x00, 0x34, 0x00, 0x35, 0x00, 0x36, 0x00, 0x00, 0x00, 0x00, 0x00,
    // 91: keyword 0
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x7A, 0x65, 0x72, 0x6F,
    // 103: keyword 1
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x6F, 0x6E, 0x65, 0x20,
    // 115: keyword 2
    0x6B, 0x00, 0x77, 0x00, 0x32, 0x00, 0x20, 0x00, 0x75, 0x00, 0x74, 0x00,
    // 127: keyword 3
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x33, 0x20, 0x20, 0x20,
    // 139: keyword 4
    0x6B, 0x00, 0x34, 0x00, 0x20, 0x00, 0x23, 0x00, 0x00, 0x00, 0x00, 0x00,
    // 151: raw bytes
    0xDE, 0xAD, 0xBE, 0xEF, 0x00, 0x01, 0x7F, 0x80,
    // 159: bool flags: 3D, twin-rec, legacy drop
    0x0D,
    // 160: attributes 1 to 7
    0x01, 0x02, 0x03, 0x04, 0x02, 0x05, 0x01,
    // 167: attribute 8
    0x5A, 0xA5,
    // 169: attributes 9 to 12
    0x02, 0x02, 0x03, 0x01,
    // 173: video standard Ntsc
    0x01,
    // 174: attributes 13 to 18
    0x01, 0x02, 0x03, 0x02, 0x01, 0x03,
    // 180: positions
    0x04, 0x03, 0x02, 0x01, 0x14, 0x13, 0x12, 0x11, 0x24, 0x23, 0x22, 0x21, 0x34, 0x33, 0x32, 0x31,
    // 196: value 1
    0x44, 0x43, 0x42, 0x41,
    // 200: short value 1
    0x52, 0x51,
    // 202: value 2
    0x64, 0x63, 0x62, 0x61,
    // 206: value 3
    0x74, 0x73, 0x72, 0x71,
    // 210: short value 2
    0x82, 0x81,
    // 212: value 4
    0x94, 0x93, 0x92, 0x91,
    // 216: byte value
    0xA1,
    // 217: value 5
    0xB4, 0xB3, 0xB2, 0xB1,
    // 221: Tod timecode: 60/1 drop
    0xBC, 0x9A, 0x78, 0x56, 0x34, 0x12, 0x00, 0xC0,
    // 229: user timecode: 60/1
    0xEF, 0xBE, 0xAD, 0xDE, 0x00, 0x00, 0x00, 0x40,
    // 237: 64-bit value
    0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88,
    // 245: essence 1
    0x01, 0x22, 0x02, 0x44, 0x05, 0x00, 0x07, 0x02, 0x01, 0x04, 0x03, 0x06, 0x05, 0x08, 0x07,
    // 260: essence 2
    0x01, 0x33, 0x03, 0x55, 0x12, 0x01, 0x09, 0x12, 0x11, 0x14, 0x13, 0x16, 0x15, 0x18, 0x17,
    // 275: essence 3
    0x01, 0x66, 0x04, 0x77, 0x14, 0x02, 0x0A, 0x22, 0x21, 0x24, 0x23, 0x26, 0x25, 0x28, 0x27,
}};
const Record GoldenBig{{
    // 0: tag 1792
    0x07, 0x00,
    // 2: text 1
    0x41, 0x4C, 0x50, 0x48, 0x41, 0x30, 0x30, 0x31,
    // 10: text 2
    0x42, 0x52, 0x41, 0x56, 0x4F, 0x30, 0x30, 0x32,
    // 18: text 3
    0x43, 0x48, 0x41, 0x52, 0x4C, 0x30, 0x30, 0x33,
    // 26: text 4
    0x44, 0x45, 0x4C, 0x54, 0x41, 0x30, 0x30, 0x34,
    // 34: text flags: var-id, keywords 2 and 4 UTF-16
    0x52,
    // 35: name
    0x46, 0x69, 0x6E, 0x61, 0x6C, 0x20, 0x6F, 0x66, 0x20, 0x74, 0x68, 0x65, 0x20, 0x63, 0x75, 0x70,
    0x2C, 0x20, 0x67, 0x61, 0x6D, 0x65, 0x20, 0x32,
    // 59: var-id, UTF-16
    0x56, 0x00, 0x41, 0x00, 0x52, 0x00, 0x2D, 0x00, 0x49, 0x00, 0x44, 0x00, 0x20, 0x00, 0x30, 0x00,
    0x31, 0x00, 0x32, 0x00, 0x33, 0x00, 0x34, 0x00, 0x35, 0x00, 0x36, 0x00, 0x00, 0x00, 0x00, 0x00,
    // 91: keyword 0
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x7A, 0x65, 0x72, 0x6F,
    // 103: keyword 1
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x6F, 0x6E, 0x65, 0x20,
    // 115: keyword 2
    0x6B, 0x00, 0x77, 0x00, 0x32, 0x00, 0x20, 0x00, 0x75, 0x00, 0x74, 0x00,
    // 127: keyword 3
    0x6B, 0x65, 0x79, 0x77, 0x6F, 0x72, 0x64, 0x20, 0x33, 0x20, 0x20, 0x20,
    // 139: keyword 4
    0x6B, 0x00, 0x34, 0x00, 0x20, 0x00, 0x23, 0x00, 0x00, 0x00, 0x00, 0x00,
    // 151: raw bytes
    0xDE, 0xAD, 0xBE, 0xEF, 0x00, 0x01, 0x7F, 0x80,
    // 159: bool flags: 3D, twin-rec, legacy drop
    0x0D,
    // 160: attributes 1 to 7
    0x01, 0x02, 0x03, 0x04, 0x02, 0x05, 0x01,
    // 167: attribute 8
    0xA5, 0x5A,
    // 169: attributes 9 to 12
    0x02, 0x02, 0x03, 0x01,
    // 173: video standard Ntsc
    0x01,
    // 174: attributes 13 to 18
    0x01, 0x02, 0x03, 0x02, 0x01, 0x03,
    // 180: positions
    0x01, 0x02, 0x03, 0x04, 0x11, 0x12, 0x13, 0x14, 0x21, 0x22, 0x23, 0x24, 0x31, 0x32, 0x33, 0x34,
    // 196: value 1
    0x41, 0x42, 0x43, 0x44,
    // 200: short value 1
    0x51, 0x52,
    // 202: value 2
    0x61, 0x62, 0x63, 0x64,
    // 206: value 3
    0x71, 0x72, 0x73, 0x74,
    // 210: short value 2
    0x81, 0x82,
    // 212: value 4
    0x91, 0x92, 0x93, 0x94,
    // 216: byte value
    0xA1,
    // 217: value 5
    0xB1, 0xB2, 0xB3, 0xB4,
    // 221: Tod timecode: 60/1 drop
    0xC0, 0x00, 0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC,
    // 229: user timecode: 60/1
    0x40, 0x00, 0x00, 0x00, 0xDE, 0xAD, 0xBE, 0xEF,
    // 237: 64-bit value
    0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11,
    // 245: essence 1
    0x01, 0x22, 0x02, 0x44, 0x05, 0x00, 0x07, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08,
    // 260: essence 2
    0x01, 0x33, 0x03, 0x55, 0x12, 0x01, 0x09, 0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18,
    // 275: essence 3
    0x01, 0x66, 0x04, 0x77, 0x14, 0x02, 0x0A, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27, 0x28,
}};
// clang-format on

Record Save(const Clip& clip, bool big, unsigned int expected = 290) {
    Record record;
    record.fill(0xEE);
    EXPECT_EQ(Serializer::SaveToBuffer(clip, record.data(), 290, big), expected);
    return record;
}

Clip Load(const Record& record, bool big, VideoStandard target = VideoStandard::Pal) {
    Clip clip;
    clip.VideoStandard(target);
    EXPECT_EQ(Serializer::LoadFromBuffer(record.data(), 290, clip, big), 290u);
    return clip;
}

// "ok", or the exception's type and message.
template <class Call>
std::string Outcome(Call call) {
    try {
        call();
    } catch (const std::invalid_argument& e) {
        return std::string("invalid_argument: ") + e.what();
    } catch (const std::out_of_range& e) {
        return std::string("out_of_range: ") + e.what();
    }
    return "ok";
}

}  // namespace

TEST(Serializer, GoldenRecords) {
    const Clip golden = GoldenClip();
    for (bool big : {false, true}) {
        const Record& expected = big ? GoldenBig : GoldenLittle;
        EXPECT_EQ(Save(golden, big), expected) << big;
        const Clip loaded = Load(expected, big, VideoStandard::Ntsc);
        EXPECT_TRUE(loaded == golden) << big;
        // The four fields that equality leaves out travel all the same.
        EXPECT_EQ(loaded.attribute2, golden.attribute2);
        EXPECT_EQ(loaded.attribute5, golden.attribute5);
        EXPECT_EQ(loaded.value2, golden.value2);
        EXPECT_EQ(loaded.value4, golden.value4);
    }
}

TEST(Serializer, BufferChecks) {
    const Clip clip;
    Record record;
    record.fill(0xEE);
    const Record untouched = record;
    EXPECT_EQ(Serializer::SaveToBuffer(clip, record.data(), 289, false), 0u);
    EXPECT_EQ(Serializer::SaveToBuffer(clip, nullptr, 290, false), 0u);
    EXPECT_EQ(record, untouched);
    EXPECT_EQ(Serializer::SaveToBuffer(clip, record.data(), 290, false), 290u);
    const unsigned char head[] = {0x00, 0x07};
    EXPECT_EQ(std::memcmp(record.data(), head, 2), 0);
    EXPECT_EQ(std::string(record.begin() + 2, record.begin() + 34), std::string(32, ' '));
    EXPECT_EQ(Save(clip, true)[0], 0x07);

    Clip target = GoldenClip();
    EXPECT_EQ(Serializer::LoadFromBuffer(record.data(), 289, target, false), 0u);
    EXPECT_EQ(Serializer::LoadFromBuffer(nullptr, 290, target, false), 0u);
    EXPECT_TRUE(target == GoldenClip());

    unsigned char small[15] = {};
    TimeCode timeCode(VideoRates::Rate50(), 5);
    Clip::Essence essence(E::Type::LowRes);
    EXPECT_EQ(Serializer::SaveTimecodeToBuffer(timeCode, small, 7, false), 0u);
    EXPECT_EQ(Serializer::SaveTimecodeToBuffer(timeCode, nullptr, 8, false), 0u);
    EXPECT_EQ(Serializer::LoadTimecodeFromBuffer(small, 7, timeCode, false), 0u);
    EXPECT_EQ(Serializer::LoadTimecodeFromBuffer(nullptr, 8, timeCode, false), 0u);
    EXPECT_EQ(timeCode, TimeCode(VideoRates::Rate50(), 5));
    EXPECT_EQ(Serializer::SaveEssenceToBuffer(essence, small, 14, false), 0u);
    EXPECT_EQ(Serializer::SaveEssenceToBuffer(essence, nullptr, 15, false), 0u);
    EXPECT_EQ(Serializer::LoadEssenceFromBuffer(small, 14, essence, false), 0u);
    EXPECT_EQ(Serializer::LoadEssenceFromBuffer(nullptr, 15, essence, false), 0u);
    EXPECT_EQ(essence, Clip::Essence(E::Type::LowRes));
    EXPECT_EQ(std::count(std::begin(small), std::end(small), 0), 15);
}

TEST(Serializer, RoundTripsInBothOrders) {
    Clip pal = GoldenClip();
    pal.VideoStandard(VideoStandard::Pal);
    pal.InBoundTodTimecode(TimeCode(VideoRates::Rate50(), (1LL << 62) - 1));
    Clip unknown = GoldenClip();
    unknown.VideoStandard(VideoStandard::Unknown);
    unknown.attribute8 = UserProtect::All;
    unknown.isLegacyTimecodeDrop = false;  // only an Ntsc clip reads it
    unknown.attribute3 = static_cast<Camera>(255);
    const Clip clips[] = {Clip(), GoldenClip(), pal, unknown};
    for (std::size_t i = 0; i < std::size(clips); ++i) {
        const Clip& clip = clips[i];
        for (bool big : {false, true}) {
            // Loaded into a clip of the same standard, so that the legacy drop flag is read.
            EXPECT_TRUE(Load(Save(clip, big), big, clip.videoStandard) == clip) << i << " " << big;
        }
    }
    // Bytes 0 and 1 are not examined.
    Record tagless = GoldenLittle;
    tagless[0] = 0x12;
    tagless[1] = 0x34;
    EXPECT_TRUE(Load(tagless, false, VideoStandard::Ntsc) == GoldenClip());
}

TEST(Serializer, OtherByteOrderReversesNumbersOnly) {
    Clip pal;
    std::memcpy(pal.text2, "ABCDEFGH", 8);
    pal.outPosition = 0x01020304;
    const Clip swapped = Load(Save(pal, true), false);
    EXPECT_EQ(std::string(swapped.text2), "ABCDEFGH");
    EXPECT_EQ(swapped.outPosition, 0x04030201);
    EXPECT_EQ(swapped.shortValue2, 0xFFFF);
    EXPECT_EQ(static_cast<std::uint64_t>(swapped.value64), 0x0100000000000080u);

    // The reversed Tod timecode reads as 50/1, which the Ntsc record refuses: everything before it is in.
    Clip clip;
    EXPECT_EQ(Outcome([&] { Serializer::LoadFromBuffer(GoldenBig.data(), 290, clip, false); }),
              "invalid_argument: Timecode Rate inconsistent with Clip Rate");
    const Clip golden = GoldenClip();
    EXPECT_EQ(std::memcmp(clip.name.text, golden.name.text, 26), 0);
    EXPECT_EQ(std::memcmp(clip.varId.text, golden.varId.text, 34), 0);
    EXPECT_TRUE(clip.varId.unicode);
    EXPECT_EQ(std::string(clip.text3), "CHARL003");
    EXPECT_EQ(clip.inPosition, 0x04030201);
    EXPECT_EQ(clip.value1, 0x44434241);
    EXPECT_EQ(clip.shortValue2, 0x8281);
    EXPECT_EQ(static_cast<int>(clip.attribute8), 0x5AA5);
}

TEST(Serializer, NumbersAreCutToTheirRecordWidth) {
    Clip clip;
    clip.attribute1 = 0x1FF;
    clip.attribute3 = static_cast<Camera>(0x101);
    clip.attribute8 = UserProtect::Unknown;  // 0x10000
    clip.attribute18 = static_cast<SourceEngine>(-1);
    clip.videoStandard = static_cast<VideoStandard>(0x100);  // Pal in the record
    clip.inPosition = 0x123456789LL;
    clip.outPosition = -2;
    clip.byteValue = 0x2FE;
    clip.essences[1].value3 = 0x12345;
    clip.essences[1].field4 = 0x180;
    const Record record = Save(clip, false);
    EXPECT_EQ(record[160], 0xFF);
    EXPECT_EQ(record[162], 0x01);
    EXPECT_EQ(record[167] | record[168], 0);
    EXPECT_EQ(record[173], 0);
    EXPECT_EQ(record[179], 0xFF);
    const Clip loaded = Load(record, false);
    EXPECT_EQ(loaded.attribute1, 0xFF);
    EXPECT_EQ(loaded.attribute3, static_cast<Camera>(1));
    EXPECT_EQ(loaded.attribute8, UserProtect::None);
    EXPECT_EQ(loaded.attribute18, static_cast<SourceEngine>(255));
    EXPECT_EQ(loaded.inPosition, 0x23456789);
    EXPECT_EQ(loaded.outPosition, 0xFFFFFFFELL);  // zero-extended
    EXPECT_EQ(loaded.byteValue, 0xFE);
    EXPECT_EQ(loaded.essences[1].value3, 0x2345);
    EXPECT_EQ(loaded.essences[1].field4, 0x80);
}

TEST(Serializer, UnencodableTimecodeMakesAShortRecord) {
    const Clip golden = GoldenClip();
    const Record full = Save(golden, true);
    Clip oneOff = golden;
    oneOff.inBoundTodTimecode = TimeCode(Rate(30, 1), 5);
    const Record shorter = Save(oneOff, true, 282);
    EXPECT_TRUE(std::equal(full.begin(), full.begin() + 221, shorter.begin()));
    EXPECT_TRUE(std::equal(full.begin() + 229, full.end(), shorter.begin() + 221));
    EXPECT_EQ(std::vector<unsigned char>(shorter.begin() + 282, shorter.end()),
              std::vector<unsigned char>(8, 0xEE));

    Clip bothOff = golden;
    bothOff.inBoundTodTimecode = TimeCode(Rate(60, 2), 5);
    bothOff.inBoundUserTimecode = TimeCode(Rate(50, 0), 5);
    const Record shortest = Save(bothOff, false, 274);
    EXPECT_TRUE(std::equal(GoldenLittle.begin() + 237, GoldenLittle.end(), shortest.begin() + 221));
    EXPECT_EQ(std::vector<unsigned char>(shortest.begin() + 274, shortest.end()),
              std::vector<unsigned char>(16, 0xEE));
}

TEST(Serializer, LoadStopsAtATimecodeOfTheWrongRate) {
    // Ntsc record whose Tod timecode says 50/1.
    Record record = GoldenLittle;
    record[228] = 0x00;
    Clip clip;
    clip.inPosition = 7;
    EXPECT_EQ(Outcome([&] { Serializer::LoadFromBuffer(record.data(), 290, clip, false); }),
              "invalid_argument: Timecode Rate inconsistent with Clip Rate");
    // Everything before the timecode is in, the rest is not.
    EXPECT_EQ(std::string(clip.text4), "DELTA004");
    EXPECT_EQ(clip.videoStandard, VideoStandard::Ntsc);
    EXPECT_EQ(clip.attribute18, SourceEngine::Derush);
    EXPECT_EQ(clip.inPosition, 0x01020304);
    EXPECT_EQ(clip.value5, GoldenClip().value5);
    EXPECT_EQ(clip.inBoundTodTimecode, TimeCode(VideoRates::Rate60(), 0));  // rebuilt by the new standard
    EXPECT_EQ(clip.value64, Clip().value64);
    EXPECT_EQ(clip.essences[0], Clip::Essence(E::Type::Intra));

    // The user timecode fails after the Tod timecode is stored.
    record = GoldenBig;
    record[229] = 0x00;
    Clip ntsc;
    ntsc.VideoStandard(VideoStandard::Ntsc);
    EXPECT_EQ(Outcome([&] { Serializer::LoadFromBuffer(record.data(), 290, ntsc, true); }),
              "invalid_argument: Timecode Rate inconsistent with Clip Rate");
    EXPECT_EQ(ntsc.inBoundTodTimecode, GoldenClip().inBoundTodTimecode);
    EXPECT_EQ(ntsc.inBoundUserTimecode, TimeCode(VideoRates::Rate60(), 0));
}

TEST(Serializer, LegacyDropFlagFollowsTheClipsStandardBeforeTheLoad) {
    // Golden records carry the flag and say Ntsc.
    EXPECT_FALSE(Load(GoldenLittle, false, VideoStandard::Pal).isLegacyTimecodeDrop);
    EXPECT_TRUE(Load(GoldenLittle, false, VideoStandard::Ntsc).isLegacyTimecodeDrop);
    EXPECT_FALSE(Load(GoldenLittle, false, VideoStandard::Unknown).isLegacyTimecodeDrop);
    // A Pal clip keeps its own flag (set directly here) when the record's flag is clear.
    Record clear = GoldenLittle;
    clear[159] = 0x00;
    Clip pal;
    pal.isLegacyTimecodeDrop = true;
    Serializer::LoadFromBuffer(clear.data(), 290, pal, false);
    EXPECT_TRUE(pal.isLegacyTimecodeDrop);
    // An Ntsc clip reads the flag, then the record's Pal standard clears it.
    Record palRecord = Save(Clip(), false);
    palRecord[159] = 0x08;
    EXPECT_FALSE(Load(palRecord, false, VideoStandard::Ntsc).isLegacyTimecodeDrop);
}

// The record's own standard first: what an Ntsc clip with the legacy drop flag saves reads back equal
// on a fresh (Pal) clip, whatever standard the clip had before.
TEST(Serializer, LoadWithRecordStandardReadsTheLegacyDropFlag) {
    Clip ntsc;
    ntsc.VideoStandard(VideoStandard::Ntsc);
    ntsc.isLegacyTimecodeDrop = true;
    ntsc.inBoundTodTimecode = TimeCode(VideoRates::Rate60(), 123456, true);
    for (bool big : {false, true}) {
        const Record record = Save(ntsc, big);
        Clip plain;
        Serializer::LoadFromBuffer(record.data(), 290, plain, big);
        EXPECT_NE(plain, ntsc);
        for (VideoStandard before : {VideoStandard::Pal, VideoStandard::Ntsc, VideoStandard::Unknown}) {
            Clip clip;
            clip.VideoStandard(before);
            EXPECT_EQ(Serializer::LoadWithRecordStandard(record.data(), 290, clip, big), 290u);
            EXPECT_EQ(clip, ntsc);
        }
    }
    Clip untouched;
    EXPECT_EQ(Serializer::LoadWithRecordStandard(Save(ntsc, false).data(), 289, untouched, false), 0u);
    EXPECT_EQ(Serializer::LoadWithRecordStandard(nullptr, 290, untouched, false), 0u);
    EXPECT_EQ(untouched, Clip());
}

TEST(Serializer, TimecodeEncoding) {
    struct Case {
        TimeCode timeCode;
        std::uint64_t encoded;
        TimeCode decoded;
    };
    const Rate r50 = VideoRates::Rate50();
    const Rate r60 = VideoRates::Rate60();
    const Case cases[] = {
        {TimeCode(r50, 1234, false, 1), 1234, TimeCode(r50, 1234)},
        {TimeCode(r50, 1234, true), 1234, TimeCode(r50, 1234)},  // no drop bit at 50/1
        {TimeCode(r60, 1234), 0x4000000000000000 | 1234, TimeCode(r60, 1234)},
        {TimeCode(r60, 1234, true), 0xC000000000000000 | 1234, TimeCode(r60, 1234, true)},
        {TimeCode(r60, -1), 0x7FFFFFFFFFFFFFFF, TimeCode(r60, 0x3FFFFFFFFFFFFFFF)},  // top bits dropped
    };
    for (const Case& c : cases) {
        for (bool big : {false, true}) {
            unsigned char bytes[8];
            ASSERT_EQ(Serializer::SaveTimecodeToBuffer(c.timeCode, bytes, 8, big), 8u);
            std::uint64_t value = 0;
            for (int i = 0; i < 8; ++i) {
                value |= std::uint64_t{bytes[big ? 7 - i : i]} << (8 * i);
            }
            EXPECT_EQ(value, c.encoded);
            EXPECT_EQ(Serializer::ToTimecodeWord(c.timeCode), c.encoded);
            EXPECT_EQ(Serializer::FromTimecodeWord(c.encoded), c.decoded);
            TimeCode decoded(Rate(1, 1), -1);
            EXPECT_EQ(Serializer::LoadTimecodeFromBuffer(bytes, 8, decoded, big), 8u);
            EXPECT_EQ(decoded, c.decoded);
        }
    }
    // Bit 63 without bit 62 reads as 50/1 without drop.
    const unsigned char dropAt50[8] = {5, 0, 0, 0, 0, 0, 0, 0x80};
    TimeCode decoded(r60, 0);
    Serializer::LoadTimecodeFromBuffer(dropAt50, 8, decoded, false);
    EXPECT_EQ(decoded, TimeCode(r50, 5));
    unsigned char untouched[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    for (const Rate& rate : {Rate(30, 1), Rate(100, 2), Rate(50, -1)}) {
        EXPECT_EQ(Serializer::SaveTimecodeToBuffer(TimeCode(rate, 5), untouched, 8, false), 0u);
        EXPECT_THROW(
            try { Serializer::ToTimecodeWord(TimeCode(rate, 5)); } catch (const std::invalid_argument& e) {
                EXPECT_STREQ(e.what(), "Timecode rate must be 50/1 or 60/1");
                throw;
            },
            std::invalid_argument);
    }
    EXPECT_EQ(untouched[0] + untouched[7], 9);
}

TEST(Serializer, EssenceLoadKeepsValuesThatDoNotSuitTheSlot) {
    Record record = GoldenLittle;
    record[245 + 4] = 18;  // a LongGop compression in the Intra slot
    record[260 + 2] = 4;   // LowRes metadata in the LongGop slot
    record[275 + 5] = 0;   // Intra audio in the LowRes slot
    record[275 + 6] = 11;  // Unknown in the LowRes slot
    const Clip clip = Load(record, false, VideoStandard::Ntsc);
    EXPECT_EQ(clip.essences[0].videoCompressionType, E::VideoCompressionType::IntraMjpegRegular);
    EXPECT_EQ(clip.essences[1].metadata, E::Metadata::LongGopNone);
    EXPECT_EQ(clip.essences[2].audioCompressionType, E::AudioCompressionType::LowResMpeg1Layer2);
    EXPECT_EQ(clip.essences[2].videoCompressionInfo, E::VideoCompressionInfo::LowResNone);
    EXPECT_EQ(clip.essences[2].value4, 0x2728);
    // The type is not in the record: an essence keeps its own.
    Clip::Essence unknown(E::Type::Unknown);
    EXPECT_EQ(Serializer::LoadEssenceFromBuffer(GoldenLittle.data() + 260, 15, unknown, false), 15u);
    EXPECT_EQ(unknown.type, E::Type::Unknown);
    EXPECT_EQ(unknown.metadata, E::Metadata());
    EXPECT_EQ(unknown.field2, 0x33);
}

TEST(Serializer, FlagBytes) {
    EXPECT_EQ(Serializer::Utf16Flag(GoldenClip()), 0x52);
    EXPECT_EQ(Serializer::BoolFlag(GoldenClip()), 0x0D);
    Clip clip;
    clip.name.unicode = clip.keywords[0].unicode = true;
    clip.isDual = true;
    EXPECT_EQ(Serializer::Utf16Flag(clip), 0x05);
    EXPECT_EQ(Serializer::BoolFlag(clip), 0x02);
    for (int k = 0; k < 5; ++k) {
        const auto mask = static_cast<unsigned char>(0x04 << k);
        EXPECT_TRUE(Serializer::IsKeywordUtf16(mask, k));
        EXPECT_FALSE(Serializer::IsKeywordUtf16(static_cast<unsigned char>(~mask), k));
    }
    EXPECT_FALSE(Serializer::IsKeywordUtf16(0xFF, 5));
    EXPECT_FALSE(Serializer::IsKeywordUtf16(0xFF, -1));
    EXPECT_TRUE(Serializer::IsNameUtf16(0x01) && !Serializer::IsNameUtf16(0xFE));
    EXPECT_TRUE(Serializer::IsVarIdUtf16(0x02) && !Serializer::IsVarIdUtf16(0xFD));
    EXPECT_TRUE(Serializer::Is3D(0x01) && !Serializer::Is3D(0xFE));
    EXPECT_TRUE(Serializer::IsDual(0x02) && !Serializer::IsDual(0xFD));
    EXPECT_TRUE(Serializer::IsTwinRec(0x04) && !Serializer::IsTwinRec(0xFB));
    EXPECT_TRUE(Serializer::IsLegacyTimecodeDrop(0x08) && !Serializer::IsLegacyTimecodeDrop(0xF7));
    EXPECT_EQ(Serializer::Swap16(0x1234, true), 0x3412);
    EXPECT_EQ(Serializer::Swap16(0x1234, false), 0x1234);
    EXPECT_EQ(Serializer::Swap32(0x12345678u, true), 0x78563412u);
    EXPECT_EQ(Serializer::Swap64(0x0102030405060708ULL, true), 0x0807060504030201ULL);
    EXPECT_EQ(Serializer::Swap64(0x0102030405060708ULL, false), 0x0102030405060708ULL);
}

// The tag tells the byte order a record was saved in; any other first two bytes are no record.
TEST(Serializer, DetectByteOrderReadsTheTag) {
    for (const bool big : {false, true}) {
        Clip clip;
        clip.inPosition = 0x0700;  // a number that looks like the tag elsewhere in the record
        const auto record = Save(clip, big);
        EXPECT_EQ(Serializer::DetectByteOrder(record.data(), 290), big);
        EXPECT_EQ(Serializer::DetectByteOrder(record.data(), 2), big);
        EXPECT_EQ(Serializer::DetectByteOrder(record.data(), 1), std::nullopt);
    }
    const unsigned char others[][2] = {{0, 0}, {7, 7}, {0xFF, 0xFF}, {0, 0x70}, {0x70, 0}, {1, 7}};
    for (const auto& bytes : others) {
        EXPECT_EQ(Serializer::DetectByteOrder(bytes, 2), std::nullopt) << int(bytes[0]) << " " << int(bytes[1]);
    }
    EXPECT_EQ(Serializer::DetectByteOrder(nullptr, 290), std::nullopt);
}
