#pragma once

// The clip as the tool shows and reads it. One JSON form serves clip new, decode --json and encode;
// decode without --json prints the same fields as rows.

#include "Output.h"

#include "PlurexData/data/clips/Clip.h"

#include <nlohmann/json.hpp>

#include <cstddef>
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

// Every field in the clip's order. Texts are {"text", "unicode"} with "hex" added when the text does not
// give back the stored bytes; enumerations are names, or numbers where no name reads back to the value;
// timecodes carry date, time and frame when a builder can make them, and always their count.
nlohmann::ordered_json ClipToJson(const Korv::Plurex::Data::Clips::Clip& clip);
// ClipToJson as printed: two-space indent, bytes that are not UTF-8 replaced.
std::string ClipJsonText(const Korv::Plurex::Data::Clips::Clip& clip);
Rows ClipToRows(const Korv::Plurex::Data::Clips::Clip& clip);

// The clip a document describes, through the library's own setters: fields left out keep the default
// clip's values; unknown fields are refused. Throws a Failure naming the field, or the library's
// exception for a value the clip refuses.
Korv::Plurex::Data::Clips::Clip ClipFromJson(const nlohmann::ordered_json& document);
// ClipFromJson of JSON text. Every error throws a Failure "NAME: WHAT": syntax and nesting with line and
// column, a field with its path, the library's message for a value the clip refuses. No exception of
// the JSON library leaves.
Korv::Plurex::Data::Clips::Clip ParseClipJson(const std::string& text, const std::string& name);

}  // namespace PlurexTool
