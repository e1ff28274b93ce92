// The clip as JSON and rows: the form clip new, decode and encode share (see ClipJson.h). The library
// maps the clip to a value tree and back (Clips::ClipToValue, ClipFromValue); here that tree meets
// nlohmann-json, and the document's own concerns stay: syntax, size and nesting, the "record" member.
#include "ClipJson.h"

#include "PlurexData/PlurexData.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace PlurexTool {

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
using Clips::Clip;
using Clips::Serializer;
using Korv::Plurex::Data::Value;
namespace Unicode = Korv::Plurex::Unicode;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;
// Fields print in the clip's order.
using json = nlohmann::ordered_json;

// ---- between the value tree and JSON ---------------------------------------------------------------

json ToJson(const Value& value) {
    switch (value.GetKind()) {
        case Value::Kind::Null:
            return nullptr;
        case Value::Kind::Bool:
            return value.AsBool();
        case Value::Kind::Int:
            return value.AsInt64();
        case Value::Kind::UInt:
            return value.AsUInt64();
        case Value::Kind::Double:
            return value.AsDouble();
        case Value::Kind::String:
            return value.AsString();
        case Value::Kind::Array: {
            json out = json::array();
            for (const Value& item : value.Items()) {
                out.push_back(ToJson(item));
            }
            return out;
        }
        case Value::Kind::Object: {
            json out = json::object();
            for (const auto& [key, member] : value.Members()) {
                out[key] = ToJson(member);
            }
            return out;
        }
    }
    return nullptr;
}

// The value of a document; an object's member `skipped` is left out (the top level's "record", read
// here).
Value FromJson(const json& value, const char* skipped = nullptr) {
    switch (value.type()) {
        case json::value_t::boolean:
            return value.get<bool>();
        case json::value_t::number_integer:
            return value.get<std::int64_t>();
        case json::value_t::number_unsigned:
            return value.get<std::uint64_t>();
        case json::value_t::number_float:
            return value.get<double>();
        case json::value_t::string:
            return value.get_ref<const std::string&>();
        case json::value_t::array: {
            Value out = Value::Array();
            for (const json& item : value) {
                out.Append(FromJson(item));
            }
            return out;
        }
        case json::value_t::object: {
            Value out = Value::Object();
            for (const auto& item : value.items()) {
                if (skipped == nullptr || item.key() != skipped) {
                    out.Set(item.key(), FromJson(item.value()));
                }
            }
            return out;
        }
        default:  // null, and binary, which parsing never makes
            return nullptr;
    }
}

// ---- rows ------------------------------------------------------------------------------------------

// A text object of the clip's value as a row: the text, its form, and the stored bytes when given.
std::string TextRow(const Value& text) {
    std::string row = "\"" + text.Find("text")->AsString() + "\"";
    if (const Value* unicode = text.Find("unicode")) {
        row += unicode->AsBool() ? " (UTF-16)" : " (8-bit)";
    }
    if (const Value* hex = text.Find("hex")) {
        row += " hex " + hex->AsString();
    }
    return row;
}

template <class E>
std::string EnumRow(E value, const char* type) {
    return ToString(value) + " (" + type + " " + std::to_string(static_cast<std::int32_t>(value)) + ")";
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

Rows ClipRows(const Clip& clip, Unicode::Charset charset) {
    const Value value = Clips::ClipToValue(clip, charset);
    Rows rows;
    for (int i = 0; i < 4; ++i) {
        const std::string number = std::to_string(i + 1);
        rows.emplace_back("text " + number, TextRow(*value.Find("text" + number)));
    }
    rows.emplace_back("name", TextRow(*value.Find("name")));
    rows.emplace_back("var-id", TextRow(*value.Find("varId")));
    const auto& keywords = value.Find("keywords")->Items();
    for (std::size_t k = 0; k < keywords.size(); ++k) {
        rows.emplace_back("keyword " + std::to_string(k), TextRow(keywords[k]));
    }
    rows.emplace_back("raw bytes", value.Find("rawBytes")->AsString());
    rows.emplace_back("3D", YesNo(clip.is3D));
    rows.emplace_back("dual", YesNo(clip.isDual));
    rows.emplace_back("twin-rec", YesNo(clip.isTwinRec));
    rows.emplace_back("legacy drop", YesNo(clip.isLegacyTimecodeDrop));
    rows.emplace_back("attribute 1", std::to_string(clip.attribute1));
    const auto attribute = [&](int number, auto field, const char* type) {
        rows.emplace_back("attribute " + std::to_string(number), EnumRow(field, type));
    };
    attribute(2, clip.attribute2, "ArchiveStatus");
    attribute(3, clip.attribute3, "Camera");
    attribute(4, clip.attribute4, "VideoFormat");
    attribute(5, clip.attribute5, "AlphaArchiveStatus");
    attribute(6, clip.attribute6, "AudioConfiguration");
    attribute(7, clip.attribute7, "TimecodeType");
    attribute(8, clip.attribute8, "UserProtect");
    attribute(9, clip.attribute9, "PrimaryTimecode");
    attribute(10, clip.attribute10, "TrainStatus");
    attribute(11, clip.attribute11, "Rating");
    attribute(12, clip.attribute12, "FillAndKeyStatus");
    attribute(13, clip.attribute13, "WideColorGamut");
    attribute(14, clip.attribute14, "HdrProfile");
    attribute(15, clip.attribute15, "AfdAspectRatio");
    attribute(16, clip.attribute16, "CodedFrameAspectRatio");
    attribute(17, clip.attribute17, "UhdDivisionMode");
    attribute(18, clip.attribute18, "SourceEngine");
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
        const Clip::Essence& essence = clip.essences[i];
        const std::string label = "essence " + std::to_string(i + 1) + " ";
        rows.emplace_back(label + "type", EnumRow(essence.type, "Type"));
        rows.emplace_back(label + "flag", std::to_string(essence.flag));
        rows.emplace_back(label + "field 2", std::to_string(essence.field2));
        rows.emplace_back(label + "field 4", std::to_string(essence.field4));
        rows.emplace_back(label + "metadata", EnumRow(essence.metadata, "Metadata"));
        rows.emplace_back(label + "video compression type",
                          EnumRow(essence.videoCompressionType, "VideoCompressionType"));
        rows.emplace_back(label + "audio compression type",
                          EnumRow(essence.audioCompressionType, "AudioCompressionType"));
        rows.emplace_back(label + "video compression info",
                          EnumRow(essence.videoCompressionInfo, "VideoCompressionInfo"));
        rows.emplace_back(label + "values",
                          std::to_string(essence.value1) + " " + std::to_string(essence.value2) + " " +
                              std::to_string(essence.value3) + " " + std::to_string(essence.value4));
    }
    return rows;
}

// ---- reading JSON ------------------------------------------------------------------------------

// A key from the input as JSON writes it, without the quotes: control characters escaped, so that a
// message stays on one line.
std::string Shown(const std::string& text) {
    const std::string quoted = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    return quoted.substr(1, quoted.size() - 2);
}

// The record's byte order, from the "record" member decode --json writes; its other members (index,
// offset, tag) say where the record came from and are not needed to write it.
std::optional<bool> RecordFrom(const json& value) {
    if (!value.is_object()) {
        throw Failure("record: an object expected");
    }
    for (const auto& item : value.items()) {
        if (item.key() != "index" && item.key() != "offset" && item.key() != "tag" &&
            item.key() != "byteOrder") {
            throw Failure("unknown field: record." + Shown(item.key()));
        }
    }
    const auto order = value.find("byteOrder");
    if (order == value.end()) {
        return std::nullopt;
    }
    if (*order == "little-endian" || *order == "big-endian") {
        return *order == "big-endian";
    }
    throw Failure("record.byteOrder: \"little-endian\" or \"big-endian\" expected");
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
    const Value value = Clips::TimecodeToValue(timeCode);
    for (const auto& [key, member] : value.Members()) {
        if (key == "date" || key == "time" || key == "frame") {
            out[key] = ToJson(member);
        }
    }
    return out;
}

Clip DecodeRecord(const unsigned char* record, bool bigEndian) {
    Clip clip;
    Serializer::LoadWithRecordStandard(record, Serializer::RecordSize, clip, bigEndian);
    return clip;
}

nlohmann::ordered_json ClipToJson(const Clip& clip, Unicode::Charset charset) {
    return ToJson(Clips::ClipToValue(clip, charset));
}

Rows ClipToRows(const Clip& clip, Unicode::Charset charset) {
    return ClipRows(clip, charset);
}

ClipDocument ClipFromJson(const nlohmann::ordered_json& document, Unicode::Charset charset) {
    try {
        ClipDocument result;
        // The record comes first, as decode --json writes it; the clip reads the other members.
        if (document.is_object() && document.contains("record")) {
            result.bigEndian = RecordFrom(document["record"]);
        }
        result.clip = Clips::ClipFromValue(FromJson(document, "record"), charset);
        return result;
    } catch (const std::invalid_argument& error) {  // the clip's refusals, a field's path in front
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
