#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/TranscodeProblem.h"

#include <optional>
#include <string>
#include <string_view>

namespace Korv::Plurex::Unicode {

/// Converts `input` from one charset to another, byte for byte as feeding the decoder of `from` and
/// handing each completed code point to the encoder of `to` would (text goes a block of units at a
/// time, with SSE2 where the compiler targets it and SSSE3 where the processor has it, and gives the
/// same bytes):
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

/// Converts `input` from one charset to another as Transcode does, but stops at the first character
/// it cannot convert instead of dropping or replacing it (iconv without -c), and throws
/// std::invalid_argument with the problem's message (TryTranscodeStrict returns the problem instead):
/// - Malformed: bytes that are no character of `from`. ASCII bytes 0x80 to 0xFF; UTF-8 outside RFC
///   3629 (a stray continuation byte, 0xC0, 0xC1 and 0xF5 to 0xFF, an overlong form, a surrogate, a
///   value above 0x10FFFF, a sequence cut short by a byte that does not continue it); in UTF-16 a lone
///   low surrogate, or a high surrogate followed by a unit that is not a low one; in UTF-32 a
///   surrogate or a value above 0x10FFFF (the top bit set included). The code pages 437, 8859-1 and
///   8859-2 decode every byte. what() is "byte N: cannot decode XX XX as CHARSET": N the offset where
///   the sequence starts, then its bytes in upper-case hexadecimal up to and including the one that
///   made it impossible (UTF-8 is judged byte by byte, UTF-16 and UTF-32 by whole 16- and 32-bit
///   units, so at most 4 bytes show), CHARSET the ToString of `from`.
/// - Incomplete: the input ends inside a character that could still have been completed (one to
///   three bytes of UTF-8 that so far follow the rules above, a partial UTF-32 unit, an odd trailing
///   byte or a trailing high surrogate in UTF-16). what() is "byte N: incomplete CHARSET sequence at
///   the end", N where that character starts.
/// - Unmappable: a valid character that `to` lacks: above 0x7F for ASCII, above 0xFF for ISO 8859-1,
///   and for ISO 8859-2 and code page 437 every code point but U+003F itself that their encoders
///   write as "?". The Unicode forms lack nothing. what() is "byte N: U+20AC not in CHARSET" (at least
///   four upper-case hexadecimal digits, as the clip text fields say it), CHARSET the ToString of `to`.
/// Where the input converts without a problem the result is Transcode's, byte for byte. No byte
/// order mark is read or written. Throws std::invalid_argument("Unknown charset: " followed by the
/// number) for a `from` or `to` outside the enumeration, before any byte is read.
PLUREXDATA_API std::string TranscodeStrict(std::string_view input, Charset from, Charset to);

/// The same, into `output`: replaces its contents (but is left untouched by an unknown charset), and
/// `input` may be a view of `output` itself. When it throws for a character it cannot convert,
/// `output` holds the conversion of every character before it, as iconv writes before it stops: what
/// Transcode gives for the input up to the problem's offset.
PLUREXDATA_API void TranscodeStrict(std::string_view input, Charset from, Charset to, std::string& output);

/// TranscodeStrict that returns the first problem (reason, offset, code point and the message
/// TranscodeStrict would throw) instead of throwing it; empty when the whole input converted. `output`
/// is filled as TranscodeStrict fills it. An unknown charset still throws std::invalid_argument.
PLUREXDATA_API std::optional<TranscodeProblem> TryTranscodeStrict(std::string_view input, Charset from,
                                                                  Charset to, std::string& output);

}  // namespace Korv::Plurex::Unicode
