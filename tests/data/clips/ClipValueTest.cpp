#include "PlurexData/data/clips/ClipValue.h"

#include "PlurexData/data/clips/Serializer.h"
#include "PlurexData/data/clips/TextField.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Korv::Plurex::Data::Clips;
using Korv::Plurex::Data::Value;
using Korv::Plurex::Unicode::Charset;
using Korv::TimePoints::TimeCode;

namespace {

// The object's keys in order, a space after each.
std::string Keys(const Value& object) {
    std::string keys;
    for (const auto& member : object.Members()) {
        keys += member.first + " ";
    }
    return keys;
}

std::array<unsigned char, Serializer::RecordSize> Record(const Clip& clip) {
    std::array<unsigned char, Serializer::RecordSize> record{};
    Serializer::SaveToBuffer(clip, record.data(), Serializer::RecordSize, false);
    return record;
}

// A clip with every field drawn at random: texts stored as raw bytes (so some carry bytes after a NUL or
// lone surrogates, and need "hex") or written as text, enumerations named or not, either standard with
// timecodes inside and beyond the builder's years, and essences through their setters.
Clip RandomClip(std::mt19937_64& random) {
    const auto draw = [&](std::int64_t low, std::int64_t high) {
        return std::uniform_int_distribution<std::int64_t>(low, high)(random);
    };
    Clip clip;
    clip.VideoStandard(draw(0, 1) ? VideoStandard::Pal : VideoStandard::Ntsc);
    for (int f = 0; f <= static_cast<int>(TextField::Keyword4); ++f) {
        const auto field = static_cast<TextField>(f);
        const bool unicode = f >= static_cast<int>(TextField::Name) && draw(0, 1);
        std::string bytes(
            static_cast<std::size_t>(draw(0, static_cast<std::int64_t>(GetTextBytes(clip, field).size()))),
            ' ');
        for (char& byte : bytes) {
            byte = static_cast<char>(draw(0, 15) == 0 ? 0 : draw(0, 3) ? draw(0x20, 0x7E) : draw(0, 255));
        }
        draw(0, 1) ? SetTextBytes(clip, field, bytes, unicode) : SetTextUtf8(clip, field, "Café", unicode);
    }
    for (unsigned char& byte : clip.rawBytes) {
        byte = static_cast<unsigned char>(draw(0, 255));
    }
    clip.is3D = draw(0, 1);
    clip.isTwinRec = draw(0, 1);
    clip.isLegacyTimecodeDrop = clip.videoStandard == VideoStandard::Ntsc && draw(0, 1);
    clip.attribute1 = static_cast<std::int32_t>(draw(INT32_MIN, INT32_MAX));
    clip.attribute3 = static_cast<Camera>(draw(0, 1) ? draw(0, 3) : draw(INT32_MIN, INT32_MAX));
    clip.attribute8 = static_cast<UserProtect>(draw(0, 65535));
    clip.attribute18 = static_cast<SourceEngine>(draw(-5, 300));
    clip.outPosition = draw(INT64_MIN, INT64_MAX);
    clip.shortValue1 = static_cast<std::uint16_t>(draw(0, 65535));
    clip.value64 = draw(INT64_MIN, INT64_MAX);
    const auto& rate = clip.GetRate();
    // Up to about year 2400 at either rate: past 2261 no builder makes a date.
    clip.InBoundTodTimecode(TimeCode(rate, draw(0, 60LL * 86400 * 365 * 500), draw(0, 1)));
    clip.InBoundUserTimecode(TimeCode(rate, draw(0, 1000), false));
    for (Clip::Essence& essence : clip.essences) {
        essence.flag = static_cast<std::int32_t>(draw(INT32_MIN, INT32_MAX));
        essence.value4 = static_cast<std::int32_t>(draw(INT32_MIN, INT32_MAX));
        essence.VideoCompressionType(static_cast<Essences::VideoCompressionType>(draw(0, 20)));
        essence.Metadata(static_cast<Essences::Metadata>(draw(0, 4)));
    }
    return clip;
}

TEST(ClipValue, DefaultClipKeysInOrder) {
    const Value value = ClipToValue(Clip());
    EXPECT_EQ(
        Keys(value),
        "text1 text2 text3 text4 name varId keywords rawBytes is3D isDual isTwinRec isLegacyTimecodeDrop "
        "attribute1 attribute2 attribute3 attribute4 attribute5 attribute6 attribute7 attribute8 attribute9 "
        "attribute10 attribute11 attribute12 attribute13 attribute14 attribute15 attribute16 attribute17 "
        "attribute18 videoStandard inPosition shortInPosition shortOutPosition outPosition value1 "
        "shortValue1 value2 value3 shortValue2 value4 byteValue value5 inBoundTodTimecode "
        "inBoundUserTimecode value64 essences ");
    EXPECT_EQ(*value.Find("text1"), Value::Object({{"text", "        "}}));
    EXPECT_EQ(*value.Find("name"), Value::Object({{"text", std::string(24, ' ')}, {"unicode", false}}));
    EXPECT_EQ(*value.Find("rawBytes"), Value("0000000000000000"));
    EXPECT_EQ(*value.Find("attribute13"), Value("Unknown"));
    EXPECT_EQ(*value.Find("videoStandard"), Value("Pal"));
    EXPECT_EQ(*value.Find("value64"), Value(INT64_MIN + 1));
    EXPECT_EQ(*value.Find("inBoundTodTimecode"), Value::Object({{"rate", 50},
                                                                {"drop", false},
                                                                {"count", 0},
                                                                {"date", "1900-01-01"},
                                                                {"time", "00:00:00"},
                                                                {"frame", 0}}));
    const Value& essence = value.Find("essences")->Items()[1];
    EXPECT_EQ(Keys(essence),
              "type flag field2 field4 metadata videoCompressionType audioCompressionType "
              "videoCompressionInfo values ");
    EXPECT_EQ(*essence.Find("type"), Value("LongGop"));
    EXPECT_EQ(*essence.Find("values"), Value::Array({0, 0, 0, 0}));
}

// Every clip reads back from its value to the same clip and the same record, in either 8-bit charset,
// and both texts' forms and both kinds of timecode occur.
TEST(ClipValue, RoundTripsRandomClips) {
    std::mt19937_64 random(20261123);
    int hexTexts = 0, dated = 0, undated = 0;
    for (int i = 0; i < 400; ++i) {
        const Clip clip = RandomClip(random);
        const Charset charset = i % 2 ? Charset::CodePage28591 : Charset::CodePage28592;
        const Value value = ClipToValue(clip, charset);
        const Clip back = ClipFromValue(value, charset);
        ASSERT_EQ(Record(back), Record(clip)) << i;
        ASSERT_TRUE(back == clip) << i;
        ASSERT_EQ(ClipToValue(back, charset), value) << i;
        for (const char* key : {"text1", "name", "varId"}) {
            hexTexts += value.Find(key)->Find("hex") != nullptr;
        }
        (value.Find("inBoundTodTimecode")->Find("date") ? dated : undated)++;
    }
    EXPECT_GT(hexTexts, 20);
    EXPECT_GT(dated, 20);
    EXPECT_GT(undated, 20);
}

TEST(ClipValue, UnnamedValuesAreNumbers) {
    Clip clip;
    clip.attribute3 = static_cast<Camera>(-7);
    clip.essences[0].type = static_cast<Essences::Type>(9);
    const Value value = ClipToValue(clip);
    EXPECT_EQ(*value.Find("attribute3"), Value(-7));
    EXPECT_EQ(*value.Find("essences")->Items()[0].Find("type"), Value(9));
}

// Each input refused, with its exact message: the member's path, then what is wrong.
TEST(ClipValue, RefusesWithFieldPaths) {
    using O = std::vector<Value::Member>;
    const auto tod = [](O members) {
        return Value::Object({{"inBoundTodTimecode", Value::Object(members)}});
    };
    const Value empty = Value::Object();
    const struct {
        Value input;
        std::string message;
    } cases[] = {
        {Value(5), "an object expected"},
        {Value::Object({{"nmae", 1}}), "unknown field: nmae"},
        {Value::Object({{"name", Value::Object({{"text", "a"}, {"x\n\"", 1}})}}),
         "unknown field: name.x\\n\\\""},
        {Value::Object({{"name", 3}}), "name: an object expected"},
        {Value::Object({{"name", empty}}), "name.text: a text expected"},
        {Value::Object({{"text1", Value::Object({{"unicode", false}})}}), "unknown field: text1.unicode"},
        {Value::Object({{"name", Value::Object({{"text", "\xE2\x82\xAC"}})}}),
         "name: U+20AC not in iso-8859-1"},
        {Value::Object({{"name", Value::Object({{"hex", 12}})}}), "name.hex: hexadecimal text expected"},
        {Value::Object({{"text1", Value::Object({{"hex", "0a\n"}})}}),
         "text1.hex: 8 bytes expected in hex, got \"0a\\n\""},
        {Value::Object({{"rawBytes", "00000000000000g0"}}), "rawBytes: not hexadecimal: 00000000000000g0"},
        {Value::Object({{"keywords", Value::Array({empty})}}), "keywords: five texts expected"},
        {Value::Object({{"keywords", Value::Array({empty, empty, empty, empty, empty})}}),
         "keywords[0].text: a text expected"},
        {Value::Object({{"is3D", 1}}), "is3D: true or false expected"},
        {Value::Object({{"value1", 1.5}}), "value1: an integer expected"},
        {Value::Object({{"value1", std::int64_t{1} << 31}}), "value1: 2147483648 is out of range"},
        {Value::Object({{"shortValue1", -1}}), "shortValue1: -1 is out of range"},
        {Value::Object({{"value64", UINT64_MAX}}), "value64: 18446744073709551615 is out of range"},
        {Value::Object({{"attribute3", "Cam\t"}}), "attribute3: unknown name Cam\\t"},
        {Value::Object({{"videoStandard", true}}), "videoStandard: an integer expected"},
        {Value::Object({{"videoStandard", "Ntsc"},
                        {"inBoundTodTimecode", Value::Object({{"rate", 50}, {"count", 0}})}}),
         "Timecode Rate inconsistent with Clip Rate"},
        {tod({{"rate", 30}}), "inBoundTodTimecode.rate: 50 or 60 expected"},
        {tod({}), "inBoundTodTimecode: a count, or a date, time and frame expected"},
        {tod({{"count", -1}}), "inBoundTodTimecode.count: -1 is out of range"},
        {tod({{"time", "00:00:00"}, {"frame", 0}}), "inBoundTodTimecode.date: YYYY-MM-DD expected"},
        {tod({{"date", "1900-01-01"}, {"frame", 0}}), "inBoundTodTimecode.time: HH:MM:SS expected"},
        {tod({{"date", "1900-01-01"}, {"time", "00:00:00"}}),
         "inBoundTodTimecode.frame: a frame number expected"},
        {tod({{"date", "1900-01-01"}, {"time", "00:00:00"}, {"frame", -1}}),
         "inBoundTodTimecode.frame: -1 is out of range"},
        {tod({{"date", "1900-1-1"}, {"time", "0"}, {"frame", 0}}),
         "inBoundTodTimecode: date YYYY-MM-DD and time HH:MM:SS expected, got \"1900-1-1 0:00\""},
        {tod({{"date", "1900-01-01"}, {"time", "00:00:01"}, {"frame", 0}, {"count", 7}}),
         "inBoundTodTimecode: count 7 is not 1900-01-01 00:00:01:00 (count 50)"},
        {tod({{"date", "2262-01-01"}, {"time", "00:00:00"}, {"frame", 0}}),
         "year 2262 must be between 1900 and 2261"},
        {Value::Object({{"essences", Value::Array({empty, empty})}}), "essences: three essences expected"},
        {Value::Object({{"essences", Value::Array({Value::Object({{"type", "LowRes"}}), empty, empty})}}),
         "essences[0].type: the slot makes it Intra"},
        {Value::Object(
             {{"essences",
               Value::Array({empty, Value::Object({{"videoCompressionType", "IntraDnxHd"}}), empty})}}),
         "essences[1].videoCompressionType: IntraDnxHd (4) does not suit a LongGop essence"},
        {Value::Object({{"essences", Value::Array({empty, empty,
                                                   Value::Object({{"values", Value::Array({0, 0, 0})}})})}}),
         "essences[2].values: four integers expected"},
        {Value::Object({{"essences", Value::Array({Value::Object({{"values", Value::Array({0, 0, 0, "1"})}}),
                                                   empty, empty})}}),
         "essences[0].values[3]: an integer expected"},
    };
    for (const auto& c : cases) {
        try {
            ClipFromValue(c.input);
            ADD_FAILURE() << "accepted, expected: " << c.message;
        } catch (const std::exception& e) {
            EXPECT_EQ(e.what(), c.message);
        }
    }
}

// Bytes that are not UTF-8 show as U+FFFD, one for each run that starts a character and stops short.
TEST(ClipValue, MessagesShowBrokenUtf8AsReplacement) {
    try {
        ClipFromValue(
            Value::Object({{"a\xE2\x82"
                            "b\xFF\xF0\x9F\x98\x80",
                            1}}));
        FAIL();
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(),
                     "unknown field: a\xEF\xBF\xBD"
                     "b\xEF\xBF\xBD\xF0\x9F\x98\x80");
    }
}

}  // namespace
