#include "PlurexData/data/clips/ClipValue.h"

#include "PlurexData/data/clips/TextField.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Korv::Plurex::Data::Clips {

namespace {

using Kind = Value::Kind;
using TimePoints::Rate;
using TimePoints::TimeCode;
using TimePoints::TimeCodeBuilder;
using TimePoints::VideoRates;

[[noreturn]] void Refuse(const std::string& message) {
    throw std::invalid_argument(message);
}

// ---- bytes and text ------------------------------------------------------------------------------

// The length of the well-formed UTF-8 character at `at`, or 0 with `bad` set to the bytes that
// begin one and stop short (at least 1): a message shows those as one U+FFFD.
std::size_t Utf8Length(std::string_view text, std::size_t at, std::size_t& bad) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    std::size_t length = 0;
    unsigned char low = 0x80, high = 0xBF;  // the second byte's range
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;   // no overlong forms
        high = lead == 0xED ? 0x9F : 0xBF;  // no surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;  // nothing above U+10FFFF
    }
    for (std::size_t k = 1; k < length; ++k) {
        if (at + k >= text.size() || byte(at + k) < (k == 1 ? low : 0x80) ||
            byte(at + k) > (k == 1 ? high : 0xBF)) {
            bad = k;
            return 0;
        }
    }
    bad = length == 0 ? 1 : 0;
    return length;
}

// Text from the input as a JSON string writes it, without the quotes: quotes, backslashes and
// control characters escaped, so that a message stays on one line, and what is not UTF-8 as U+FFFD.
std::string Shown(std::string_view text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        if (static_cast<unsigned char>(c) >= 0x80) {
            std::size_t bad = 0;
            const std::size_t length = Utf8Length(text, i, bad);
            shown += length == 0 ? std::string_view("\xEF\xBF\xBD") : text.substr(i, length);
            i += length == 0 ? bad : length;
            continue;
        }
        ++i;
        const char* escaped = c == '"'    ? "\\\""
                              : c == '\\' ? "\\\\"
                              : c == '\b' ? "\\b"
                              : c == '\t' ? "\\t"
                              : c == '\n' ? "\\n"
                              : c == '\f' ? "\\f"
                              : c == '\r' ? "\\r"
                                          : nullptr;
        if (escaped != nullptr) {
            shown += escaped;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
            shown += code;
        } else {
            shown += c;
        }
    }
    return shown;
}

std::string ToHex(const unsigned char* bytes, std::size_t size) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < size; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

// Hex digits are text only: a number's digits would read as bytes (1234 as 12 34), and any other value
// has no digits at all.
std::string FromHex(const Value& value, std::size_t size, const std::string& field) {
    if (value.GetKind() != Kind::String) {
        Refuse(field + ": hexadecimal text expected");
    }
    const std::string& text = value.AsString();
    const auto digit = [&](char c) {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        Refuse(field + ": not hexadecimal: " + Shown(text));
    };
    if (text.size() != 2 * size) {
        Refuse(field + ": " + std::to_string(size) + " bytes expected in hex, got \"" + Shown(text) + "\"");
    }
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(digit(text[2 * i]) * 16 + digit(text[2 * i + 1]));
    }
    return bytes;
}

TextField KeywordField(std::size_t k) {
    return static_cast<TextField>(static_cast<std::size_t>(TextField::Keyword0) + k);
}

// The text as UTF-8 and its flag, with "hex" added when writing the text back would not give the stored
// bytes (a byte after the first NUL, a lone surrogate).
Value TextValue(const Clip& clip, TextField field, Unicode::Charset charset) {
    const bool unicode = IsTextUtf16(clip, field);
    const std::string stored = GetTextBytes(clip, field);
    const std::string text = GetTextUtf8(clip, field, charset);
    Value out = Value::Object({{"text", text}});
    if (field >= TextField::Name) {  // texts 1 to 4 have no flag
        out.Set("unicode", unicode);
    }
    Clip rewritten = clip;
    bool same = false;
    try {
        SetTextUtf8(rewritten, field, text, unicode, charset);
        same = GetTextBytes(rewritten, field) == stored;
    } catch (const std::invalid_argument&) {
    }
    if (!same) {
        out.Set("hex", ToHex(reinterpret_cast<const unsigned char*>(stored.data()), stored.size()));
    }
    return out;
}

// ---- reading values -------------------------------------------------------------------------------

// The members of an object, each taken once; whatever is left is an unknown field.
class Fields {
public:
    Fields(const Value& object, std::string where) : object_(object), where_(std::move(where)) {
        if (object_.GetKind() != Kind::Object) {
            Refuse(Name("") + "an object expected");
        }
    }

    const Value* Take(const std::string& key) {
        taken_.insert(key);
        return object_.Find(key);
    }

    std::string Name(const std::string& key) const {
        return where_.empty() ? key : key.empty() ? where_ + ": " : where_ + "." + key;
    }

    void CheckAllTaken() const {
        for (const auto& member : object_.Members()) {
            if (taken_.count(member.first) == 0) {
                Refuse("unknown field: " + Name(Shown(member.first)));
            }
        }
    }

private:
    const Value& object_;
    std::string where_;
    std::set<std::string> taken_;
};

std::int64_t Integer(const Value& value, std::int64_t low, std::int64_t high, const std::string& field) {
    const Kind kind = value.GetKind();
    if (kind != Kind::Int && kind != Kind::UInt) {
        Refuse(field + ": an integer expected");
    }
    // An unsigned integer is above INT64_MAX, beyond every field.
    if (kind == Kind::UInt || value.AsInt64() < low || value.AsInt64() > high) {
        const std::string digits =
            kind == Kind::UInt ? std::to_string(value.AsUInt64()) : std::to_string(value.AsInt64());
        Refuse(field + ": " + digits + " is out of range");
    }
    return value.AsInt64();
}

template <class T>
void ReadInteger(Fields& fields, const std::string& key, T& target) {
    if (const Value* value = fields.Take(key)) {
        target = static_cast<T>(
            Integer(*value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), fields.Name(key)));
    }
}

// An array of exactly `size` items, else `message`.
const std::vector<Value>& ItemsOf(const Value& value, std::size_t size, const std::string& message) {
    if (value.GetKind() != Kind::Array || value.Items().size() != size) {
        Refuse(message);
    }
    return value.Items();
}

void ReadBool(Fields& fields, const std::string& key, bool& target) {
    if (const Value* value = fields.Take(key)) {
        if (value->GetKind() != Kind::Bool) {
            Refuse(fields.Name(key) + ": true or false expected");
        }
        target = value->AsBool();
    }
}

// ---- enumerations ---------------------------------------------------------------------------------

// An enumeration as its name when the name reads back to the value, else as its number.
template <class E, class Parse>
Value EnumValue(E value, Parse parse) {
    const std::string& name = ToString(value);
    if (parse(name) == value) {
        return name;
    }
    return static_cast<std::int32_t>(value);
}

template <class E, class Parse>
E EnumFrom(const Value& value, Parse parse, const std::string& field) {
    if (value.GetKind() == Kind::String) {
        const std::string& name = value.AsString();
        const E parsed = parse(name);
        if (ToString(parsed) != name) {
            Refuse(field + ": unknown name " + Shown(name));
        }
        return parsed;
    }
    return static_cast<E>(Integer(value, INT32_MIN, INT32_MAX, field));
}

// Every enumerated attribute of the clip (const or not), with its key.
template <class C, class Visit>
void VisitAttributes(C& clip, Visit&& visit) {
    visit("attribute2", clip.attribute2, ToArchiveStatus);
    visit("attribute3", clip.attribute3, ToCamera);
    visit("attribute4", clip.attribute4, ToVideoFormat);
    visit("attribute5", clip.attribute5, ToAlphaArchiveStatus);
    visit("attribute6", clip.attribute6, ToAudioConfiguration);
    visit("attribute7", clip.attribute7, ToTimecodeType);
    visit("attribute8", clip.attribute8, ToUserProtect);
    visit("attribute9", clip.attribute9, ToPrimaryTimecode);
    visit("attribute10", clip.attribute10, ToTrainStatus);
    visit("attribute11", clip.attribute11, ToRating);
    visit("attribute12", clip.attribute12, ToFillAndKeyStatus);
    visit("attribute13", clip.attribute13, ToWideColorGamut);
    visit("attribute14", clip.attribute14, ToHdrProfile);
    visit("attribute15", clip.attribute15, ToAfdAspectRatio);
    visit("attribute16", clip.attribute16, ToCodedFrameAspectRatio);
    visit("attribute17", clip.attribute17, ToUhdDivisionMode);
    visit("attribute18", clip.attribute18, ToSourceEngine);
}

// The integer fields from the positions to value 5 (const or not), with their keys.
template <class C, class Visit>
void VisitNumbers(C& clip, Visit&& visit) {
    visit("inPosition", clip.inPosition);
    visit("shortInPosition", clip.shortInPosition);
    visit("shortOutPosition", clip.shortOutPosition);
    visit("outPosition", clip.outPosition);
    visit("value1", clip.value1);
    visit("shortValue1", clip.shortValue1);
    visit("value2", clip.value2);
    visit("value3", clip.value3);
    visit("shortValue2", clip.shortValue2);
    visit("value4", clip.value4);
    visit("byteValue", clip.byteValue);
    visit("value5", clip.value5);
}

// The essence's enumerations with their keys and their setters, which refuse a value the type does not suit.
template <class Visit>
void VisitEssenceEnums(Clip::Essence& essence, Visit&& visit) {
    visit("metadata", essence.metadata, Essences::ToMetadata,
          [&](Essences::Metadata v) { return essence.Metadata(v); });
    visit("videoCompressionType", essence.videoCompressionType, Essences::ToVideoCompressionType,
          [&](Essences::VideoCompressionType v) { return essence.VideoCompressionType(v); });
    visit("audioCompressionType", essence.audioCompressionType, Essences::ToAudioCompressionType,
          [&](Essences::AudioCompressionType v) { return essence.AudioCompressionType(v); });
    visit("videoCompressionInfo", essence.videoCompressionInfo, Essences::ToVideoCompressionInfo,
          [&](Essences::VideoCompressionInfo v) { return essence.VideoCompressionInfo(v); });
}

// ---- timecodes ------------------------------------------------------------------------------------

// A timecode at the clip's rate: from date, time and frame through the builder, or from the count;
// given both, they must agree.
TimeCode TimecodeFrom(const Value& value, const Rate& clipRate, const std::string& where) {
    Fields fields(value, where);
    std::int64_t rate = clipRate.GetNumerator();
    bool drop = false;
    ReadInteger(fields, "rate", rate);
    ReadBool(fields, "drop", drop);
    const Value* count = fields.Take("count");
    const Value* date = fields.Take("date");
    const Value* time = fields.Take("time");
    const Value* frame = fields.Take("frame");
    fields.CheckAllTaken();
    if (rate != 50 && rate != 60) {
        Refuse(fields.Name("rate") + ": 50 or 60 expected");
    }
    const Rate& timeRate = rate == 50 ? VideoRates::Rate50() : VideoRates::Rate60();
    if (date == nullptr && time == nullptr && frame == nullptr) {
        if (count == nullptr) {
            Refuse(where + ": a count, or a date, time and frame expected");
        }
        return TimeCode(timeRate, Integer(*count, 0, INT64_MAX, fields.Name("count")), drop);
    }
    if (date == nullptr || date->GetKind() != Kind::String) {
        Refuse(fields.Name("date") + ": YYYY-MM-DD expected");
    }
    if (time == nullptr || time->GetKind() != Kind::String) {
        Refuse(fields.Name("time") + ": HH:MM:SS expected");
    }
    if (frame == nullptr) {
        Refuse(fields.Name("frame") + ": a frame number expected");
    }
    // The builder would take a negative frame as counting back into the previous second; no timecode
    // is written so.
    const auto frameNumber = static_cast<int>(Integer(*frame, 0, INT32_MAX, fields.Name("frame")));
    char frameText[16];
    std::snprintf(frameText, sizeof frameText, "%c%02d", drop ? ';' : ':', frameNumber);
    const std::string text = date->AsString() + " " + time->AsString() + frameText;
    TimeCode built = TimeCode(timeRate, 0);
    try {
        built = TimeCode::Parse(text, timeRate);
    } catch (const std::invalid_argument&) {
        Refuse(where + ": date YYYY-MM-DD and time HH:MM:SS expected, got \"" + Shown(text) + "\"");
    }
    if (count != nullptr) {
        const std::int64_t counted = Integer(*count, 0, INT64_MAX, fields.Name("count"));
        if (counted != built.GetTotalSample()) {
            Refuse(where + ": count " + std::to_string(counted) + " is not " + Shown(text) + " (count " +
                   std::to_string(built.GetTotalSample()) + ")");
        }
    }
    return built;
}

// ---- the clip as a value --------------------------------------------------------------------------

Value EssenceValue(Clip::Essence essence) {
    Value out = Value::Object({{"type", EnumValue(essence.type, Essences::ToType)},
                               {"flag", essence.flag},
                               {"field2", essence.field2},
                               {"field4", essence.field4}});
    VisitEssenceEnums(essence, [&](const char* key, auto value, auto parse, auto) {
        out.Set(key, EnumValue(value, parse));
    });
    out.Set("values", Value::Array({essence.value1, essence.value2, essence.value3, essence.value4}));
    return out;
}

// A text object into its field: {"text"} (8-bit, or UTF-16 when "unicode" is set) through the library,
// or the stored bytes as "hex". Texts 1 to 4 have no "unicode".
void ReadText(const Value* value, Clip& clip, TextField field, Unicode::Charset charset) {
    if (value == nullptr) {
        return;
    }
    Fields text(*value, ToString(field));
    bool unicode = false;
    if (field >= TextField::Name) {  // texts 1 to 4 have no flag
        ReadBool(text, "unicode", unicode);
    }
    const Value* readable = text.Take("text");
    const Value* hex = text.Take("hex");
    text.CheckAllTaken();
    if (hex != nullptr) {
        const std::size_t size = GetTextBytes(clip, field).size();
        SetTextBytes(clip, field, FromHex(*hex, size, text.Name("hex")), unicode);
        return;
    }
    if (readable == nullptr || readable->GetKind() != Kind::String) {
        Refuse(text.Name("text") + ": a text expected");
    }
    SetTextUtf8(clip, field, readable->AsString(), unicode, charset);
}

Clip::Essence EssenceFrom(const Value& value, Essences::Type type, const std::string& where) {
    Clip::Essence essence(type);
    Fields fields(value, where);
    if (const Value* given = fields.Take("type")) {
        if (EnumFrom<Essences::Type>(*given, Essences::ToType, fields.Name("type")) != type) {
            Refuse(fields.Name("type") + ": the slot makes it " + ToString(type));
        }
    }
    ReadInteger(fields, "flag", essence.flag);
    ReadInteger(fields, "field2", essence.field2);
    ReadInteger(fields, "field4", essence.field4);
    VisitEssenceEnums(essence, [&](const char* key, auto, auto parse, auto set) {
        if (const Value* given = fields.Take(key)) {
            using E = decltype(parse(std::string()));
            const E wanted = EnumFrom<E>(*given, parse, fields.Name(key));
            if (!set(wanted)) {
                Refuse(fields.Name(key) + ": " + ToString(wanted) + " (" +
                       std::to_string(static_cast<std::int32_t>(wanted)) + ") does not suit a " +
                       ToString(type) + " essence");
            }
        }
    });
    if (const Value* values = fields.Take("values")) {
        const auto& items = ItemsOf(*values, 4, fields.Name("values") + ": four integers expected");
        std::int32_t* targets[] = {&essence.value1, &essence.value2, &essence.value3, &essence.value4};
        for (std::size_t i = 0; i < 4; ++i) {
            *targets[i] = static_cast<std::int32_t>(Integer(
                items[i], INT32_MIN, INT32_MAX, fields.Name("values") + "[" + std::to_string(i) + "]"));
        }
    }
    fields.CheckAllTaken();
    return essence;
}

}  // namespace

Value TimecodeToValue(const TimeCode& timeCode) {
    Value out = Value::Object({{"rate", timeCode.GetRate().GetNumerator()},
                               {"drop", timeCode.IsDropFrame()},
                               {"count", timeCode.GetTotalSample()}});
    if (const auto split = TimeCodeBuilder::TryFromTimeCode(timeCode)) {
        const std::string text = timeCode.ToString();  // "YYYY-MM-DD HH:MM:SS:FF"
        out.Set("date", text.substr(0, 10));
        out.Set("time", text.substr(11, 8));
        out.Set("frame", split->GetFields().sample);
    }
    return out;
}

Value ClipToValue(const Clip& clip, Unicode::Charset charset) {
    Value out = Value::Object();
    for (int i = 0; i < 4; ++i) {
        out.Set("text" + std::to_string(i + 1), TextValue(clip, static_cast<TextField>(i), charset));
    }
    out.Set("name", TextValue(clip, TextField::Name, charset));
    out.Set("varId", TextValue(clip, TextField::VarId, charset));
    Value keywords = Value::Array();
    for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
        keywords.Append(TextValue(clip, KeywordField(k), charset));
    }
    out.Set("keywords", std::move(keywords));
    out.Set("rawBytes", ToHex(clip.rawBytes, sizeof clip.rawBytes));
    out.Set("is3D", clip.is3D);
    out.Set("isDual", clip.isDual);
    out.Set("isTwinRec", clip.isTwinRec);
    out.Set("isLegacyTimecodeDrop", clip.isLegacyTimecodeDrop);
    out.Set("attribute1", clip.attribute1);
    VisitAttributes(clip,
                    [&](const char* key, auto value, auto parse) { out.Set(key, EnumValue(value, parse)); });
    out.Set("videoStandard", EnumValue(clip.videoStandard, ToVideoStandard));
    VisitNumbers(clip, [&](const char* key, auto value) { out.Set(key, value); });
    out.Set("inBoundTodTimecode", TimecodeToValue(clip.inBoundTodTimecode));
    out.Set("inBoundUserTimecode", TimecodeToValue(clip.inBoundUserTimecode));
    out.Set("value64", clip.value64);
    Value essences = Value::Array();
    for (const auto& essence : clip.essences) {
        essences.Append(EssenceValue(essence));
    }
    out.Set("essences", std::move(essences));
    return out;
}

Clip ClipFromValue(const Value& value, Unicode::Charset charset) {
    Clip clip;
    Fields fields(value, "");
    for (int i = 0; i < 4; ++i) {
        ReadText(fields.Take("text" + std::to_string(i + 1)), clip, static_cast<TextField>(i), charset);
    }
    ReadText(fields.Take("name"), clip, TextField::Name, charset);
    ReadText(fields.Take("varId"), clip, TextField::VarId, charset);
    if (const Value* keywords = fields.Take("keywords")) {
        const auto& items = ItemsOf(*keywords, Clip::KeywordCount, "keywords: five texts expected");
        for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
            ReadText(&items[k], clip, KeywordField(k), charset);
        }
    }
    if (const Value* raw = fields.Take("rawBytes")) {
        const std::string bytes = FromHex(*raw, sizeof clip.rawBytes, "rawBytes");
        std::copy(bytes.begin(), bytes.end(), clip.rawBytes);
    }
    ReadBool(fields, "is3D", clip.is3D);
    ReadBool(fields, "isDual", clip.isDual);
    ReadBool(fields, "isTwinRec", clip.isTwinRec);
    // Set after the standard: VideoStandard(Pal) clears it.
    bool legacyDrop = false;
    ReadBool(fields, "isLegacyTimecodeDrop", legacyDrop);
    ReadInteger(fields, "attribute1", clip.attribute1);
    VisitAttributes(clip, [&](const char* key, auto& target, auto parse) {
        if (const Value* given = fields.Take(key)) {
            target = EnumFrom<std::decay_t<decltype(target)>>(*given, parse, key);
        }
    });
    if (const Value* standard = fields.Take("videoStandard")) {
        clip.VideoStandard(EnumFrom<VideoStandard>(*standard, ToVideoStandard, "videoStandard"));
    }
    clip.isLegacyTimecodeDrop = legacyDrop;
    VisitNumbers(clip, [&](const char* key, auto& target) { ReadInteger(fields, key, target); });
    if (const Value* tod = fields.Take("inBoundTodTimecode")) {
        clip.InBoundTodTimecode(TimecodeFrom(*tod, clip.GetRate(), "inBoundTodTimecode"));
    }
    if (const Value* user = fields.Take("inBoundUserTimecode")) {
        clip.InBoundUserTimecode(TimecodeFrom(*user, clip.GetRate(), "inBoundUserTimecode"));
    }
    ReadInteger(fields, "value64", clip.value64);
    if (const Value* essences = fields.Take("essences")) {
        const auto& items = ItemsOf(*essences, 3, "essences: three essences expected");
        for (std::size_t i = 0; i < 3; ++i) {
            clip.essences[i] =
                EssenceFrom(items[i], clip.essences[i].type, "essences[" + std::to_string(i) + "]");
        }
    }
    fields.CheckAllTaken();
    return clip;
}

}  // namespace Korv::Plurex::Data::Clips
