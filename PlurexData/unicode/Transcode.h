#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Charset.h"

#include <string>
#include <string_view>

namespace Korv::Plurex::Unicode {

/// Converts `input` from one charset to another, byte for byte as feeding the decoder of `from` and
/// handing each completed code point to the encoder of `to` would (the same classes, used through
/// their final types so that the compiler inlines them):
/// - bytes the decoder drops (malformed UTF-8) produce nothing, and neither does a partial sequence
///   left at the end of the input; nothing is reported, as the decoders report nothing;
/// - a code point is written as the GetNbBytes bytes its encoder announces, with the encoders' own
///   quirks: "?" for what a single-byte charset lacks, any value at all in UTF-32, and for a negative
///   code point (only UTF-32 input makes one) the single byte UTF-8's GetNbBytes announces, which is
///   the first byte of the four that its Encode writes;
/// - a code point that UTF-8 or UTF-16 refuses (a surrogate or a value above 0x10FFFF: GetNbBytes 0) is
///   written as U+FFFD, the replacement character, so that the loss shows in the output.
/// No byte order mark is read or written. Throws std::invalid_argument("Unknown charset: " followed
/// by the number) for a `from` or `to` outside the enumeration.
PLUREXDATA_API std::string Transcode(std::string_view input, Charset from, Charset to);

/// The same, into `output`: replaces its contents and reuses its capacity. `input` may be a view of
/// `output` itself.
PLUREXDATA_API void Transcode(std::string_view input, Charset from, Charset to, std::string& output);

}  // namespace Korv::Plurex::Unicode
