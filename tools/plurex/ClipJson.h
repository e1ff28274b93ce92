#pragma once

// The clip as the tool shows and reads it. One JSON form serves clip new, decode --json and encode;
// decode without --json prints the same fields as rows.

#include "Output.h"

#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/unicode/Charset.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <string>

namespace PlurexTool {

// Clip JSON larger than this is refused before it is parsed; a clip takes about 5 kB.
constexpr std::size_t MaxClipJsonSize = 1024 * 1024;
// Clip JSON nests four deep (clip, essences, essence, values); deeper nesting is refused before parsing.
constexpr int MaxClipJsonDepth = 16;

// The clip as the library loads it from a 290-byte record: it starts at the record's own standard (byte
// 173), as at a client already running it, since the legacy drop flag is read only by an Ntsc clip.
// Throws the library's exception for a record the clip refuses.
Korv::Plurex::Data::Clips::Clip DecodeRecord(const unsigned char* record, bool bigEndian);

// A timecode's "date" (YYYY-MM-DD), "time" (HH:MM:SS) and "frame", as the clip's timecodes and
// timecode decode show them; empty for a timecode no builder makes.
nlohmann::ordered_json TimecodeDateJson(const Korv::TimePoints::TimeCode& timeCode);

// The charset 8-bit clip texts are shown in and read from, unless --charset says otherwise.
constexpr auto DefaultTextCharset = Korv::Plurex::Unicode::Charset::CodePage28591;

// Every field in the clip's order: the library's Clips::ClipToValue as JSON, 8-bit texts read through
// `charset`.
nlohmann::ordered_json ClipToJson(const Korv::Plurex::Data::Clips::Clip& clip,
                                  Korv::Plurex::Unicode::Charset charset = DefaultTextCharset);
Rows ClipToRows(const Korv::Plurex::Data::Clips::Clip& clip,
                Korv::Plurex::Unicode::Charset charset = DefaultTextCharset);

// A clip document as encode reads it: the clip, and the byte order its "record" member names (decode
// --json writes one), if any.
struct ClipDocument {
    Korv::Plurex::Data::Clips::Clip clip;
    std::optional<bool> bigEndian;
};

// The clip a parsed document describes (see ParseClipJson); throws as it does, the JSON being parsed.
ClipDocument ClipFromJson(const nlohmann::ordered_json& document,
                          Korv::Plurex::Unicode::Charset charset = DefaultTextCharset);
// The clip a document describes, read by the library's Clips::ClipFromValue: fields left out keep the
// default clip's values; unknown fields are refused; 8-bit texts are written through `charset`. Every
// error throws a Failure: syntax and nesting with line and column, a field with its path, the library's
// message for a value the clip refuses. No exception of the JSON library leaves.
ClipDocument ParseClipJson(const std::string& text,
                           Korv::Plurex::Unicode::Charset charset = DefaultTextCharset);

}  // namespace PlurexTool
