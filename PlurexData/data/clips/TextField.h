#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/unicode/Charset.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Korv::Plurex::Data::Clips {

/// The texts of a clip, for reading and writing them as UTF-8 (GetTextUtf8, SetTextUtf8).
enum class TextField : std::int32_t {
    Text1 = 0,  ///< text 1, 8 bytes of 8-bit characters
    Text2 = 1,  ///< text 2
    Text3 = 2,  ///< text 3
    Text4 = 3,  ///< text 4
    Name = 4,   ///< the name, 24 bytes, 8-bit or UTF-16
    VarId = 5,  ///< the var-id, 32 bytes, 8-bit or UTF-16
    Keyword0 = 6,  ///< keyword 0 (the first), 12 bytes, 8-bit or UTF-16
    Keyword1 = 7,  ///< keyword 1
    Keyword2 = 8,  ///< keyword 2
    Keyword3 = 9,  ///< keyword 3
    Keyword4 = 10  ///< keyword 4
};

/// The field's name in messages and in the tool's JSON: "text1" to "text4", "name", "varId",
/// "keywords[0]" to "keywords[4]"; "unknown" for a value outside the enumeration.
PLUREXDATA_API std::string ToString(TextField field);

/// The text of `field` as UTF-8: its bytes up to the first NUL (a NUL code unit for UTF-16), read by
/// the decoder of `charset` for 8-bit text or as UTF-16 little-endian when the field's unicode flag is
/// set, then written by the UTF-8 encoder. Nothing is refused: what a decoder makes of stray bytes is
/// kept, and a code point UTF-8 cannot hold (a lone surrogate) becomes U+FFFD, as Transcode does.
/// `charset` is one of the 8-bit sets: Ascii, CodePage437, CodePage28591 (ISO 8859-1) or
/// CodePage28592 (ISO 8859-2); any other throws std::invalid_argument("Not an 8-bit charset: "
/// followed by its name), as does a field outside the enumeration ("Unknown text field: " and the
/// number).
PLUREXDATA_API std::string GetTextUtf8(const Clip& clip, TextField field,
                                       Unicode::Charset charset = Unicode::Charset::CodePage28591);

/// Writes the UTF-8 `text` into `field`: as UTF-16 little-endian when `unicode` is set, else in
/// `charset`; then NULs to the end of the field and its terminators, and the field's unicode flag.
/// Texts 1 to 4 have no flag and take 8-bit text only. Every failure throws std::invalid_argument,
/// leaving the clip unchanged, with a message that names the field first: "<field>: text is not
/// UTF-8", "<field>: U+0000 not allowed" (a NUL would end the text), "<field>: U+20AC not in
/// iso-8859-1" (a character the 8-bit set lacks; the set's name as ToString gives it), "<field>:
/// text longer than 24 bytes" (the field's size), "<field>: no UTF-16 form" (`unicode` for texts 1
/// to 4); a bad `charset` or `field` as GetTextUtf8. Whatever the field holds as text reads back
/// through GetTextUtf8 and writes again to the same bytes.
PLUREXDATA_API void SetTextUtf8(Clip& clip, TextField field, std::string_view text, bool unicode = false,
                                Unicode::Charset charset = Unicode::Charset::CodePage28591);

/// The bytes `field` stores, as they are: all of them (8, 24, 32 or 12), NULs included, its
/// terminators left out. A field outside the enumeration throws as GetTextUtf8 does.
PLUREXDATA_API std::string GetTextBytes(const Clip& clip, TextField field);

/// The field's unicode flag: whether its bytes are UTF-16. Always false for texts 1 to 4, which have
/// no flag. A field outside the enumeration throws as GetTextUtf8 does.
PLUREXDATA_API bool IsTextUtf16(const Clip& clip, TextField field);

/// Stores `bytes` as they are in `field`, then NULs to the end of the field and its terminators, and
/// the field's unicode flag. Throws std::invalid_argument, leaving the clip unchanged, for more bytes
/// than the field holds ("<field>: text longer than 24 bytes"), for `unicode` on texts 1 to 4
/// ("<field>: no UTF-16 form") and for a field outside the enumeration.
PLUREXDATA_API void SetTextBytes(Clip& clip, TextField field, std::string_view bytes, bool unicode = false);

}  // namespace Korv::Plurex::Data::Clips
