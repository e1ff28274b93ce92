#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Charset.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace Korv::Plurex::Unicode {

/// What a byte order mark at the start of UTF-16 or UTF-32 text decides: the charset of the text
/// after it, and how many bytes the mark takes (0 when there is none).
struct ByteOrderMark {
    Charset charset;   ///< the byte order the mark says, as one of the charsets of fixed byte order
    std::size_t size;  ///< the bytes to skip before the text: 2 or 4 for a mark, 0 without one
};

/// The charset for "utf-16" or "utf-32", the names whose byte order a mark decides (with ToCharset's
/// leniency: case, "-", "_" and spaces are ignored, so "UTF16" and "utf_32" qualify), as their
/// big-endian form (Utf16BE, Utf32BE), which ReadByteOrderMark takes as the family to look for. Empty
/// for any other name, the names ToCharset accepts included.
PLUREXDATA_API std::optional<Charset> ToMarkedCharset(std::string_view name);

/// The byte order that the mark at the start of `input` says, for text in UTF-16 or UTF-32 (`charset`
/// either byte order of one of them: it chooses which marks are looked for). UTF-16: FF FE gives
/// Utf16LE, FE FF Utf16BE. UTF-32: FF FE 00 00 gives Utf32LE, 00 00 FE FF Utf32BE. Without a mark the
/// text is big-endian and the size 0, whatever byte order `charset` names. Throws
/// std::invalid_argument("Not a UTF-16 or UTF-32 charset: " followed by the ToString of `charset`)
/// for any other charset.
PLUREXDATA_API ByteOrderMark ReadByteOrderMark(std::string_view input, Charset charset);

/// The mark written ahead of text in `charset`: EF BB BF for Utf8, FF FE for Utf16LE, FE FF for
/// Utf16BE, FF FE 00 00 for Utf32LE, 00 00 FE FF for Utf32BE; empty for ASCII and the 8-bit code
/// pages. The view is of static storage. Throws std::invalid_argument("Unknown charset: " followed by
/// the number) for a value outside the enumeration.
PLUREXDATA_API std::string_view GetByteOrderMark(Charset charset);

}  // namespace Korv::Plurex::Unicode
