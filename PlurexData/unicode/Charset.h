#pragma once

#include "PlurexData/Export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Korv::Plurex::Unicode {

class Decoder;
class Encoder;

/// The character sets of the encoders and decoders, for whole-buffer conversion (Transcode).
enum class Charset : std::int32_t {
    Ascii = 0,
    CodePage437 = 1,
    CodePage28591 = 2,
    CodePage28592 = 3,
    Utf8 = 4,
    Utf16LE = 5,
    Utf16BE = 6,
    Utf32LE = 7,
    Utf32BE = 8,
};

/// The charset of a name, ignoring case, "-", "_" and spaces: the canonical names ("ascii", "cp437",
/// "iso-8859-1", "iso-8859-2", "utf-8", "utf-16le", "utf-16be", "utf-32le", "utf-32be") and their
/// aliases. Plain "utf-16" and "utf-32" are not names here: they imply a byte order mark, which these
/// encoders never write and these decoders never read. Throws std::invalid_argument("Unknown charset: "
/// followed by the name) for any other name.
PLUREXDATA_API Charset ToCharset(std::string_view name);

/// The canonical name; "unknown" for a value outside the enumeration.
PLUREXDATA_API std::string ToString(Charset charset);

/// Every charset, in the order of the enumeration.
PLUREXDATA_API const std::vector<Charset>& GetCharsets();

/// The other names ToCharset accepts for `charset` (spelt as usually written); empty for a value
/// outside the enumeration.
PLUREXDATA_API std::vector<std::string> GetAliases(Charset charset);

/// A new decoder or encoder of `charset`, for callers that choose the charset at run time and go one
/// byte or code point at a time (Transcode is the fast path for whole buffers). Throw
/// std::invalid_argument("Unknown charset: " followed by the number) for a value outside the enumeration.
///@{
PLUREXDATA_API std::unique_ptr<Decoder> MakeDecoder(Charset charset);
PLUREXDATA_API std::unique_ptr<Encoder> MakeEncoder(Charset charset);
///@}

}  // namespace Korv::Plurex::Unicode
