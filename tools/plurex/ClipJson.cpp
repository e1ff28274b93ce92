// The clip as JSON and rows: the form clip new, decode and encode share (see ClipJson.h).
#include "ClipJson.h"
#include "HexDump.h"

#include "PlurexData/PlurexData.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace PlurexTool {

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;
using Clips::Clip;
using Clips::Serializer;
namespace Unicode = Korv::Plurex::Unicode;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;
using Korv::TimePoints::VideoRates;
// Fields print in the clip's order.
using json = nlohmann::ordered_json;

// ---- bytes and text -------------------------------------------------------------------------------

// Text from the input as JSON writes it, without the quotes: control characters escaped, so that a
// message stays on one line.
std::string Shown(const std::string& text) {
    const std::string quoted = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    return quoted.substr(1, quoted.size() - 2);
}

// Hex digits are text only: a number's digits would read as bytes (1234 as 12 34), and any other value
// has no digits at all.
std::vector<unsigned char> FromHex(const json& value, std::size_t size, const std::string& field) {
    if (!value.is_string()) {
        throw Failure(field + ": hexadecimal text expected");
    }
    const std::string& text = value.get_ref<const std::string&>();
    const auto digit = [&](char c) {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        throw Failure(field + ": not hexadecimal: " + Shown(text));
    };
    if (text.size() != 2 * size) {
        throw Failure(field + ": " + std::to_string(size) + " bytes expected in hex, got \"" + Shown(text) +
                      "\"");
    }
    std::vector<unsigned char> bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<unsigned char>(digit(text[2 * i]) * 16 + digit(text[2 * i + 1]));
    }
    return bytes;
}

Clips::TextField KeywordField(std::size_t k) {
    return static_cast<Clips::TextField>(static_cast<std::size_t>(Clips::TextField::Keyword0) + k);
}

// The text as UTF-8 and its flag, with "hex" added when writing the text back would not give the stored
// bytes (a byte after the first NUL, a lone surrogate).
json TextJson(const Clip& clip, Clips::TextField field, Unicode::Charset charset) {
    const bool unicode = Clips::IsTextUtf16(clip, field);
    const std::string stored = Clips::GetTextBytes(clip, field);
    const std::string text = Clips::GetTextUtf8(clip, field, charset);
    json out{{"text", text}};
    if (field >= Clips::TextField::Name) {  // texts 1 to 4 have no flag
        out["unicode"] = unicode;
    }
    Clip rewritten = clip;
    bool same = false;
    try {
        Clips::SetTextUtf8(rewritten, field, text, unicode, charset);
        same = Clips::GetTextBytes(rewritten, field) == stored;
    } catch (const std::invalid_argument&) {
    }
    if (!same) {
        out["hex"] = ToHex(reinterpret_cast<const unsigned char*>(stored.data()), stored.size());
    }
    return out;
}

std::string TextRow(const Clip& clip, Clips::TextField field, Unicode::Charset charset) {
    const json text = TextJson(clip, field, charset);
    std::string row = "\"" + text["text"].get<std::string>() + "\"";
    if (text.contains("unicode")) {
        row += text["unicode"].get<bool>() ? " (UTF-16)" : " (8-bit)";
    }
    if (text.contains("hex")) {
        row += " hex " + text["hex"].get<std::string>();
    }
    return row;
}

// ---- reading JSON ------------------------------------------------------------------------------

// The members of a JSON object, each taken once; whatever is left is an unknown field.
class Fields {
public:
    Fields(const json& object, std::string where) : object_(object), where_(std::move(where)) {
        if (!object_.is_object()) {
            throw Failure(Name("") + "an object expected");
        }
    }

    const json* Take(const std::string& key) {
        taken_.insert(key);
        const auto found = object_.find(key);
        return found == object_.end() ? nullptr : &*found;
    }

    std::string Name(const std::string& key) const {
        return where_.empty() ? key : key.empty() ? where_ + ": " : where_ + "." + key;
    }

    void CheckAllTaken() const {
        for (const auto& item : object_.items()) {
            if (taken_.count(item.key()) == 0) {
                throw Failure("unknown field: " + Name(Shown(item.key())));
            }
        }
    }

private:
    const json& object_;
    std::string where_;
    std::set<std::string> taken_;
};

long long Integer(const json& value, long long low, long long high, const std::string& field) {
    if (!value.is_number_integer()) {
        throw Failure(field + ": an integer expected");
    }
    long long number = 0;
    if (value.is_number_unsigned()) {
        const auto unsignedNumber = value.get<unsigned long long>();
        if (unsignedNumber > static_cast<unsigned long long>(high)) {
            throw Failure(field + ": " + value.dump() + " is out of range");
        }
        number = static_cast<long long>(unsignedNumber);
    } else {
        number = value.get<long long>();
    }
    if (number < low || number > high) {
        throw Failure(field + ": " + value.dump() + " is out of range");
    }
    return number;
}

template <class T>
void ReadInteger(Fields& fields, const std::string& key, T& target) {
    if (const json* value = fields.Take(key)) {
        target = static_cast<T>(
            Integer(*value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), fields.Name(key)));
    }
}

void ReadBool(Fields& fields, const std::string& key, bool& target) {
    if (const json* value = fields.Take(key)) {
        if (!value->is_boolean()) {
            throw Failure(fields.Name(key) + ": true or false expected");
        }
        target = value->get<bool>();
    }
}

// ---- enumerations ------------------------------------------------------------------------------

// An enumeration as its name when the name reads back to the value, else as its number.
template <class E, class Parse>
json EnumJson(E value, Parse parse) {
    const std::string& name = ToString(value);
    if (parse(name) == value) {
        return name;
    }
    return static_cast<std::int32_t>(value);
}

template <class E>
std::string EnumRow(E value, const char* type) {
    return ToString(value) + " (" + type + " " + std::to_string(static_cast<std::int32_t>(value)) + ")";
}

template <class E, class Parse>
E EnumFrom(const json& value, Parse parse, const std::string& field) {
    if (value.is_string()) {
        const std::string name = value.get<std::string>();
        const E parsed = parse(name);
        if (ToString(parsed) != name) {
            throw Failure(field + ": unknown name " + Shown(name));
        }
        return parsed;
    }
    return static_cast<E>(Integer(value, INT32_MIN, INT32_MAX, field));
}

// Every enumerated field of the clip, with its JSON key, its row label and type name.
template <class Visit>
void VisitAttributes(Clip& clip, Visit&& visit) {
    visit("attribute2", clip.attribute2, "ArchiveStatus", Clips::ToArchiveStatus);
    visit("attribute3", clip.attribute3, "Camera", Clips::ToCamera);
    visit("attribute4", clip.attribute4, "VideoFormat", Clips::ToVideoFormat);
    visit("attribute5", clip.attribute5, "AlphaArchiveStatus", Clips::ToAlphaArchiveStatus);
    visit("attribute6", clip.attribute6, "AudioConfiguration", Clips::ToAudioConfiguration);
    visit("attribute7", clip.attribute7, "TimecodeType", Clips::ToTimecodeType);
    visit("attribute8", clip.attribute8, "UserProtect", Clips::ToUserProtect);
    visit("attribute9", clip.attribute9, "PrimaryTimecode", Clips::ToPrimaryTimecode);
    visit("attribute10", clip.attribute10, "TrainStatus", Clips::ToTrainStatus);
    visit("attribute11", clip.attribute11, "Rating", Clips::ToRating);
    visit("attribute12", clip.attribute12, "FillAndKeyStatus", Clips::ToFillAndKeyStatus);
    visit("attribute13", clip.attribute13, "WideColorGamut", Clips::ToWideColorGamut);
    visit("attribute14", clip.attribute14, "HdrProfile", Clips::ToHdrProfile);
    visit("attribute15", clip.attribute15, "AfdAspectRatio", Clips::ToAfdAspectRatio);
    visit("attribute16", clip.attribute16, "CodedFrameAspectRatio", Clips::ToCodedFrameAspectRatio);
    visit("attribute17", clip.attribute17, "UhdDivisionMode", Clips::ToUhdDivisionMode);
    visit("attribute18", clip.attribute18, "SourceEngine", Clips::ToSourceEngine);
}

template <class Visit>
void VisitEssenceEnums(Clip::Essence& essence, Visit&& visit) {
    visit("metadata", "metadata", essence.metadata, "Metadata", Essences::ToMetadata,
          [&](Essences::Metadata v) { return essence.Metadata(v); });
    visit("videoCompressionType", "video compression type", essence.videoCompressionType,
          "VideoCompressionType", Essences::ToVideoCompressionType,
          [&](Essences::VideoCompressionType v) { return essence.VideoCompressionType(v); });
    visit("audioCompressionType", "audio compression type", essence.audioCompressionType,
          "AudioCompressionType", Essences::ToAudioCompressionType,
          [&](Essences::AudioCompressionType v) { return essence.AudioCompressionType(v); });
    visit("videoCompressionInfo", "video compression info", essence.videoCompressionInfo,
          "VideoCompressionInfo", Essences::ToVideoCompressionInfo,
          [&](Essences::VideoCompressionInfo v) { return essence.VideoCompressionInfo(v); });
}

// ---- timecodes -------------------------------------------------------------------------------------

json TimecodeJson(const TimeCode& timeCode) {
    json out{{"rate", timeCode.GetRate().GetNumerator()},
             {"drop", timeCode.IsDropFrame()},
             {"count", timeCode.GetTotalSample()}};
    out.update(TimecodeDateJson(timeCode));
    return out;
}

std::string TimecodeRow(const TimeCode& timeCode) {
    std::string row;
    if (TimeCodeBuilder::TryFromTimeCode(timeCode)) {
        row = timeCode.ToString() + ", ";
    }
    row += "count " + std::to_string(timeCode.GetTotalSample()) + " at " +
           std::to_string(timeCode.GetRate().GetNumerator()) + "/" +
           std::to_string(timeCode.GetRate().GetDenominator());
    return row + (timeCode.IsDropFrame() ? " drop-frame" : "");
}

// A timecode at the clip's rate: from date, time and frame through the builder, or from the count;
// given both, they must agree.
TimeCode TimecodeFrom(const json& value, const Rate& clipRate, const std::string& where) {
    Fields fields(value, where);
    long long rate = clipRate.GetNumerator();
    bool drop = false;
    ReadInteger(fields, "rate", rate);
    ReadBool(fields, "drop", drop);
    const json* count = fields.Take("count");
    const json* date = fields.Take("date");
    const json* time = fields.Take("time");
    const json* frame = fields.Take("frame");
    fields.CheckAllTaken();
    if (rate != 50 && rate != 60) {
        throw Failure(fields.Name("rate") + ": 50 or 60 expected");
    }
    const Rate& timeRate = rate == 50 ? VideoRates::Rate50() : VideoRates::Rate60();
    if (date == nullptr && time == nullptr && frame == nullptr) {
        if (count == nullptr) {
            throw Failure(where + ": a count, or a date, time and frame expected");
        }
        return TimeCode(timeRate, Integer(*count, 0, INT64_MAX, fields.Name("count")), drop);
    }
    if (date == nullptr || !date->is_string()) {
        throw Failure(fields.Name("date") + ": YYYY-MM-DD expected");
    }
    if (time == nullptr || !time->is_string()) {
        throw Failure(fields.Name("time") + ": HH:MM:SS expected");
    }
    if (frame == nullptr) {
        throw Failure(fields.Name("frame") + ": a frame number expected");
    }
    // The builder would take a negative frame as counting back into the previous second; no timecode
    // is written so.
    const auto frameNumber = static_cast<int>(Integer(*frame, 0, INT32_MAX, fields.Name("frame")));
    char frameText[16];
    std::snprintf(frameText, sizeof frameText, "%c%02d", drop ? ';' : ':', frameNumber);
    const std::string text = date->get<std::string>() + " " + time->get<std::string>() + frameText;
    TimeCode built = TimeCode(timeRate, 0);
    try {
        built = TimeCode::Parse(text, timeRate);
    } catch (const std::invalid_argument&) {
        throw Failure(where + ": date YYYY-MM-DD and time HH:MM:SS expected, got \"" + Shown(text) + "\"");
    }
    if (count != nullptr && Integer(*count, 0, INT64_MAX, fields.Name("count")) != built.GetTotalSample()) {
        throw Failure(where + ": count " + count->dump() + " is not " + Shown(text) + " (count " +
                      std::to_string(built.GetTotalSample()) + ")");
    }
    return built;
}

// ---- the clip as JSON and rows -------------------------------------------------------------------

json EssenceJson(Clip::Essence essence) {
    json out{{"type", EnumJson(essence.type, Essences::ToType)},
             {"flag", essence.flag},
             {"field2", essence.field2},
             {"field4", essence.field4}};
    VisitEssenceEnums(essence, [&](const char* key, const char*, auto value, const char*, auto parse, auto) {
        out[key] = EnumJson(value, parse);
    });
    out["values"] = {essence.value1, essence.value2, essence.value3, essence.value4};
    return out;
}

json ClipJson(Clip clip, Unicode::Charset charset) {
    json out;
    for (int i = 0; i < 4; ++i) {
        out["text" + std::to_string(i + 1)] = TextJson(clip, static_cast<Clips::TextField>(i), charset);
    }
    out["name"] = TextJson(clip, Clips::TextField::Name, charset);
    out["varId"] = TextJson(clip, Clips::TextField::VarId, charset);
    for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
        out["keywords"].push_back(TextJson(clip, KeywordField(k), charset));
    }
    out["rawBytes"] = ToHex(clip.rawBytes, sizeof clip.rawBytes);
    out["is3D"] = clip.is3D;
    out["isDual"] = clip.isDual;
    out["isTwinRec"] = clip.isTwinRec;
    out["isLegacyTimecodeDrop"] = clip.isLegacyTimecodeDrop;
    out["attribute1"] = clip.attribute1;
    VisitAttributes(clip, [&](const char* key, auto value, const char*, auto parse) {
        out[key] = EnumJson(value, parse);
    });
    out["videoStandard"] = EnumJson(clip.videoStandard, Clips::ToVideoStandard);
    out["inPosition"] = clip.inPosition;
    out["shortInPosition"] = clip.shortInPosition;
    out["shortOutPosition"] = clip.shortOutPosition;
    out["outPosition"] = clip.outPosition;
    out["value1"] = clip.value1;
    out["shortValue1"] = clip.shortValue1;
    out["value2"] = clip.value2;
    out["value3"] = clip.value3;
    out["shortValue2"] = clip.shortValue2;
    out["value4"] = clip.value4;
    out["byteValue"] = clip.byteValue;
    out["value5"] = clip.value5;
    out["inBoundTodTimecode"] = TimecodeJson(clip.inBoundTodTimecode);
    out["inBoundUserTimecode"] = TimecodeJson(clip.inBoundUserTimecode);
    out["value64"] = clip.value64;
    for (const auto& essence : clip.essences) {
        out["essences"].push_back(EssenceJson(essence));
    }
    return out;
}

Rows ClipRows(Clip clip, Unicode::Charset charset) {
    Rows rows;
    for (int i = 0; i < 4; ++i) {
        rows.emplace_back("text " + std::to_string(i + 1),
                          TextRow(clip, static_cast<Clips::TextField>(i), charset));
    }
    rows.emplace_back("name", TextRow(clip, Clips::TextField::Name, charset));
    rows.emplace_back("var-id", TextRow(clip, Clips::TextField::VarId, charset));
    for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
        rows.emplace_back("keyword " + std::to_string(k), TextRow(clip, KeywordField(k), charset));
    }
    rows.emplace_back("raw bytes", ToHex(clip.rawBytes, sizeof clip.rawBytes));
    rows.emplace_back("3D", YesNo(clip.is3D));
    rows.emplace_back("dual", YesNo(clip.isDual));
    rows.emplace_back("twin-rec", YesNo(clip.isTwinRec));
    rows.emplace_back("legacy drop", YesNo(clip.isLegacyTimecodeDrop));
    rows.emplace_back("attribute 1", std::to_string(clip.attribute1));
    VisitAttributes(clip, [&](const char* key, auto value, const char* type, auto) {
        rows.emplace_back("attribute " + std::string(key + 9), EnumRow(value, type));
    });
    rows.emplace_back("video standard", EnumRow(clip.videoStandard, "VideoStandard"));
    rows.emplace_back("in position", std::to_string(clip.inPosition));
    rows.emplace_back("short-in position", std::to_string(clip.shortInPosition));
    rows.emplace_back("short-out position", std::to_string(clip.shortOutPosition));
    rows.emplace_back("out position", std::to_string(clip.outPosition));
    rows.emplace_back("value 1", std::to_string(clip.value1));
    rows.emplace_back("short value 1", std::to_string(clip.shortValue1));
    rows.emplace_back("value 2", std::to_string(clip.value2));
    rows.emplace_back("value 3", std::to_string(clip.value3));
    rows.emplace_back("short value 2", std::to_string(clip.shortValue2));
    rows.emplace_back("value 4", std::to_string(clip.value4));
    rows.emplace_back("byte value", std::to_string(clip.byteValue));
    rows.emplace_back("value 5", std::to_string(clip.value5));
    rows.emplace_back("Tod timecode", TimecodeRow(clip.inBoundTodTimecode));
    rows.emplace_back("user timecode", TimecodeRow(clip.inBoundUserTimecode));
    rows.emplace_back("64-bit value", std::to_string(clip.value64));
    for (int i = 0; i < 3; ++i) {
        Clip::Essence& essence = clip.essences[i];
        const std::string label = "essence " + std::to_string(i + 1) + " ";
        rows.emplace_back(label + "type", EnumRow(essence.type, "Type"));
        rows.emplace_back(label + "flag", std::to_string(essence.flag));
        rows.emplace_back(label + "field 2", std::to_string(essence.field2));
        rows.emplace_back(label + "field 4", std::to_string(essence.field4));
        VisitEssenceEnums(essence, [&](const char*, const char* name, auto value, const char* type, auto,
                                       auto) { rows.emplace_back(label + name, EnumRow(value, type)); });
        rows.emplace_back(label + "values",
                          std::to_string(essence.value1) + " " + std::to_string(essence.value2) + " " +
                              std::to_string(essence.value3) + " " + std::to_string(essence.value4));
    }
    return rows;
}

// A text object into its field: {"text"} (8-bit, or UTF-16 when "unicode" is set) through the library,
// or the stored bytes as "hex". Texts 1 to 4 have no "unicode".
void ReadText(const json* value, Clip& clip, Clips::TextField field, Unicode::Charset charset) {
    if (value == nullptr) {
        return;
    }
    Fields text(*value, Clips::ToString(field));
    bool unicode = false;
    if (field >= Clips::TextField::Name) {  // texts 1 to 4 have no flag
        ReadBool(text, "unicode", unicode);
    }
    const json* readable = text.Take("text");
    const json* hex = text.Take("hex");
    text.CheckAllTaken();
    if (hex != nullptr) {
        const std::size_t size = Clips::GetTextBytes(clip, field).size();
        const std::vector<unsigned char> bytes = FromHex(*hex, size, text.Name("hex"));
        Clips::SetTextBytes(clip, field, std::string(bytes.begin(), bytes.end()), unicode);
        return;
    }
    if (readable == nullptr || !readable->is_string()) {
        throw Failure(text.Name("text") + ": a text expected");
    }
    Clips::SetTextUtf8(clip, field, readable->get_ref<const std::string&>(), unicode, charset);
}

Clip::Essence EssenceFrom(const json& value, Clips::Essences::Type type, const std::string& where) {
    Clip::Essence essence(type);
    Fields fields(value, where);
    if (const json* given = fields.Take("type")) {
        if (EnumFrom<Essences::Type>(*given, Essences::ToType, fields.Name("type")) != type) {
            throw Failure(fields.Name("type") + ": the slot makes it " + ToString(type));
        }
    }
    ReadInteger(fields, "flag", essence.flag);
    ReadInteger(fields, "field2", essence.field2);
    ReadInteger(fields, "field4", essence.field4);
    VisitEssenceEnums(essence, [&](const char* key, const char*, auto, const char*, auto parse, auto set) {
        if (const json* given = fields.Take(key)) {
            using E = decltype(parse(std::string()));
            const E wanted = EnumFrom<E>(*given, parse, fields.Name(key));
            if (!set(wanted)) {
                throw Failure(fields.Name(key) + ": " + ToString(wanted) + " (" +
                              std::to_string(static_cast<std::int32_t>(wanted)) + ") does not suit a " +
                              ToString(type) + " essence");
            }
        }
    });
    if (const json* values = fields.Take("values")) {
        if (!values->is_array() || values->size() != 4) {
            throw Failure(fields.Name("values") + ": four integers expected");
        }
        std::int32_t* targets[] = {&essence.value1, &essence.value2, &essence.value3, &essence.value4};
        for (std::size_t i = 0; i < 4; ++i) {
            *targets[i] = static_cast<std::int32_t>(Integer(
                (*values)[i], INT32_MIN, INT32_MAX, fields.Name("values") + "[" + std::to_string(i) + "]"));
        }
    }
    fields.CheckAllTaken();
    return essence;
}

// The clip the JSON describes, through the library's own setters: the standard first, then the
// timecodes at its rate.
// The record's byte order, from the "record" member decode --json writes; its other members (index,
// offset, tag) say where the record came from and are not needed to write it.
std::optional<bool> RecordFrom(const json& value) {
    Fields fields(value, "record");
    fields.Take("index");
    fields.Take("offset");
    fields.Take("tag");
    const json* order = fields.Take("byteOrder");
    fields.CheckAllTaken();
    if (order == nullptr) {
        return std::nullopt;
    }
    if (*order == "little-endian" || *order == "big-endian") {
        return *order == "big-endian";
    }
    throw Failure(fields.Name("byteOrder") + ": \"little-endian\" or \"big-endian\" expected");
}

ClipDocument ClipFrom(const json& document, Unicode::Charset charset) {
    ClipDocument result;
    Clip& clip = result.clip;
    Fields fields(document, "");
    if (const json* record = fields.Take("record")) {
        result.bigEndian = RecordFrom(*record);
    }
    for (int i = 0; i < 4; ++i) {
        ReadText(fields.Take("text" + std::to_string(i + 1)), clip, static_cast<Clips::TextField>(i), charset);
    }
    ReadText(fields.Take("name"), clip, Clips::TextField::Name, charset);
    ReadText(fields.Take("varId"), clip, Clips::TextField::VarId, charset);
    if (const json* keywords = fields.Take("keywords")) {
        if (!keywords->is_array() || keywords->size() != Clip::KeywordCount) {
            throw Failure("keywords: five texts expected");
        }
        for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
            ReadText(&(*keywords)[k], clip, KeywordField(k), charset);
        }
    }
    if (const json* raw = fields.Take("rawBytes")) {
        const auto bytes = FromHex(*raw, sizeof clip.rawBytes, "rawBytes");
        std::copy(bytes.begin(), bytes.end(), clip.rawBytes);
    }
    ReadBool(fields, "is3D", clip.is3D);
    ReadBool(fields, "isDual", clip.isDual);
    ReadBool(fields, "isTwinRec", clip.isTwinRec);
    bool legacyDrop = false;
    ReadBool(fields, "isLegacyTimecodeDrop", legacyDrop);
    ReadInteger(fields, "attribute1", clip.attribute1);
    VisitAttributes(clip, [&](const char* key, auto& target, const char*, auto parse) {
        if (const json* given = fields.Take(key)) {
            target = EnumFrom<std::decay_t<decltype(target)>>(*given, parse, key);
        }
    });
    if (const json* standard = fields.Take("videoStandard")) {
        clip.VideoStandard(
            EnumFrom<Clips::VideoStandard>(*standard, Clips::ToVideoStandard, "videoStandard"));
    }
    clip.isLegacyTimecodeDrop = legacyDrop;
    ReadInteger(fields, "inPosition", clip.inPosition);
    ReadInteger(fields, "shortInPosition", clip.shortInPosition);
    ReadInteger(fields, "shortOutPosition", clip.shortOutPosition);
    ReadInteger(fields, "outPosition", clip.outPosition);
    ReadInteger(fields, "value1", clip.value1);
    ReadInteger(fields, "shortValue1", clip.shortValue1);
    ReadInteger(fields, "value2", clip.value2);
    ReadInteger(fields, "value3", clip.value3);
    ReadInteger(fields, "shortValue2", clip.shortValue2);
    ReadInteger(fields, "value4", clip.value4);
    ReadInteger(fields, "byteValue", clip.byteValue);
    ReadInteger(fields, "value5", clip.value5);
    if (const json* tod = fields.Take("inBoundTodTimecode")) {
        clip.InBoundTodTimecode(TimecodeFrom(*tod, clip.GetRate(), "inBoundTodTimecode"));
    }
    if (const json* user = fields.Take("inBoundUserTimecode")) {
        clip.InBoundUserTimecode(TimecodeFrom(*user, clip.GetRate(), "inBoundUserTimecode"));
    }
    ReadInteger(fields, "value64", clip.value64);
    if (const json* essences = fields.Take("essences")) {
        if (!essences->is_array() || essences->size() != 3) {
            throw Failure("essences: three essences expected");
        }
        for (std::size_t i = 0; i < 3; ++i) {
            clip.essences[i] =
                EssenceFrom((*essences)[i], clip.essences[i].type, "essences[" + std::to_string(i) + "]");
        }
    }
    fields.CheckAllTaken();
    return result;
}

// The line and column (from 1) of byte `at` of `text`, as the parser gives them.
std::string Where(const std::string& text, std::size_t at) {
    std::size_t line = 1, column = 1;
    for (std::size_t i = 0; i < at; ++i) {
        if (text[i] == '\n') {
            ++line;
            column = 1;
        } else {
            ++column;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

// Refuses nesting deeper than MaxClipJsonDepth before the parser sees it. The JSON library's walks over a
// document (dump, comparison) recurse once per level, so a deep enough document would overflow the
// stack in any of them. Brackets in strings do not count; an ill-formed document is left to the parser.
void CheckNesting(const std::string& text) {
    int depth = 0;
    bool inString = false;
    bool escaped = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inString) {
            if (escaped) {
                escaped = false;
            } else if (c == '\\') {
                escaped = true;
            } else if (c == '"') {
                inString = false;
            }
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            if (++depth > MaxClipJsonDepth) {
                throw Failure(Where(text, i) + ": nested deeper than " + std::to_string(MaxClipJsonDepth) +
                              " levels");
            }
        } else if ((c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
}

// The JSON library's message without its "[json.exception.parse_error.101] parse error at " prefix.
std::string WhatWentWrong(const json::exception& error) {
    std::string message = error.what();
    const std::size_t end = message.find("] ");
    if (message.compare(0, 16, "[json.exception.") == 0 && end != std::string::npos) {
        message.erase(0, end + 2);
    }
    const std::string parseError = "parse error at ";
    if (message.compare(0, parseError.size(), parseError) == 0) {
        message.erase(0, parseError.size());
    }
    return message;
}

}  // namespace

nlohmann::ordered_json TimecodeDateJson(const TimeCode& timeCode) {
    json out = json::object();
    if (const auto split = TimeCodeBuilder::TryFromTimeCode(timeCode)) {
        const std::string text = timeCode.ToString();  // "YYYY-MM-DD HH:MM:SS:FF"
        out["date"] = text.substr(0, 10);
        out["time"] = text.substr(11, 8);
        out["frame"] = split->GetFields().sample;
    }
    return out;
}

Clip DecodeRecord(const unsigned char* record, bool bigEndian) {
    Clip clip;
    Serializer::LoadWithRecordStandard(record, Serializer::RecordSize, clip, bigEndian);
    return clip;
}

nlohmann::ordered_json ClipToJson(const Clip& clip, Unicode::Charset charset) {
    return ClipJson(clip, charset);
}

Rows ClipToRows(const Clip& clip, Unicode::Charset charset) {
    return ClipRows(clip, charset);
}

ClipDocument ClipFromJson(const nlohmann::ordered_json& document, Unicode::Charset charset) {
    try {
        return ClipFrom(document, charset);
    } catch (const std::invalid_argument& error) {  // the clip's own refusals
        throw Failure(error.what());
    } catch (const std::out_of_range& error) {  // the timecode builder's
        throw Failure(error.what());
    }
}

ClipDocument ParseClipJson(const std::string& text, Unicode::Charset charset) {
    CheckNesting(text);
    json document;
    try {
        document = json::parse(text);
    } catch (const json::exception& error) {
        // A parse error, or a number too large for a double (out_of_range 406).
        throw Failure(WhatWentWrong(error));
    }
    return ClipFromJson(document, charset);
}

}  // namespace PlurexTool
