#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/Value.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/timepoints/TimeCode.h"
#include "PlurexData/unicode/Charset.h"

namespace Korv::Plurex::Data::Clips {

/// Every field of `clip` as an object, in this order: "text1" to "text4", "name", "varId",
/// "keywords" (five), "rawBytes" (16 lower-case hex digits), "is3D", "isDual", "isTwinRec",
/// "isLegacyTimecodeDrop", "attribute1" to "attribute18" (but "attribute1" an integer),
/// "videoStandard", the positions, values and timecodes under their member names, "value64" and
/// "essences" (three objects: "type", "flag", "field2", "field4", "metadata",
/// "videoCompressionType", "audioCompressionType", "videoCompressionInfo" and "values", four
/// integers).
///
/// A text is {"text", "unicode"} (texts 1 to 4 have no "unicode"): the text as GetTextUtf8 reads it
/// through `charset`, with "hex" added, the stored bytes, when writing that text back would not give
/// them (a byte after the first NUL, a lone surrogate). An enumeration is its name when the name
/// reads back to the value, else its number. A timecode is as TimecodeToValue makes it. Throws
/// std::invalid_argument as GetTextUtf8 does for a `charset` that is not an 8-bit set.
PLUREXDATA_API Value ClipToValue(const Clip& clip,
                                 Unicode::Charset charset = Unicode::Charset::CodePage28591);

/// The clip an object of ClipToValue's form describes, made through the clip's own setters: the
/// standard first, then the timecodes at its rate. A member left out keeps the default clip's value.
/// A text is {"text"} (with "unicode" for UTF-16) written through `charset`, or {"hex"}, the stored
/// bytes. An enumeration is a name or a number. A timecode takes "rate" (50 or 60; the clip's rate
/// when left out), "drop", and either "count" or "date" (YYYY-MM-DD), "time" (HH:MM:SS) and "frame";
/// given both, they must agree.
///
/// Throws std::invalid_argument whose message names the member by its path, for example
/// "unknown field: name.colour", "keywords[2].text: a text expected", "attribute3: unknown name
/// Cam", "value1: 4294967296 is out of range", "essences[1].metadata: Intra (0) does not suit a
/// LongGop essence", "inBoundTodTimecode.rate: 50 or 60 expected"; texts from the input appear
/// escaped as in a JSON string. The clip's own refusals arrive with its messages (std::invalid_argument
/// from the text setters and the timecode setters, std::out_of_range from the timecode builder).
PLUREXDATA_API Clip ClipFromValue(const Value& value,
                                  Unicode::Charset charset = Unicode::Charset::CodePage28591);

/// A timecode as a clip's value shows it: {"rate" (the numerator), "drop", "count"}, then "date"
/// ("YYYY-MM-DD"), "time" ("HH:MM:SS") and "frame" when TimeCodeBuilder can make the timecode.
PLUREXDATA_API Value TimecodeToValue(const TimePoints::TimeCode& timeCode);

}  // namespace Korv::Plurex::Data::Clips
