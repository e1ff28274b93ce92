#include "PlurexData/data/clips/TextField.h"

#include "PlurexData/unicode/Decoder.h"
#include "PlurexData/unicode/DecoderUTF8.h"
#include "PlurexData/unicode/Encoder.h"
#include "PlurexData/unicode/EncoderUTF16.h"
#include "PlurexData/unicode/EncoderUTF8.h"
#include "PlurexData/unicode/Transcode.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <vector>

namespace Korv::Plurex::Data::Clips {

namespace {

using Unicode::Charset;
using Unicode::CodePoint;

// Where a text field lives in the clip: its bytes, their number and its unicode flag (none for texts
// 1 to 4).
struct Place {
    char* bytes;
    std::size_t size;
    bool* unicode;
};

template <std::size_t N>
Place PlaceOf(Clip::Text<N>& text) {
    return Place{text.text, N, &text.unicode};
}

Place Locate(Clip& clip, TextField field) {
    switch (field) {
        case TextField::Text1:
            return Place{clip.text1, Clip::TextLength, nullptr};
        case TextField::Text2:
            return Place{clip.text2, Clip::TextLength, nullptr};
        case TextField::Text3:
            return Place{clip.text3, Clip::TextLength, nullptr};
        case TextField::Text4:
            return Place{clip.text4, Clip::TextLength, nullptr};
        case TextField::Name:
            return PlaceOf(clip.name);
        case TextField::VarId:
            return PlaceOf(clip.varId);
        case TextField::Keyword0:
        case TextField::Keyword1:
        case TextField::Keyword2:
        case TextField::Keyword3:
        case TextField::Keyword4:
            return PlaceOf(clip.keywords[static_cast<int>(field) - static_cast<int>(TextField::Keyword0)]);
    }
    throw std::invalid_argument("Unknown text field: " + std::to_string(static_cast<std::int32_t>(field)));
}

void CheckEightBit(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
        case Charset::CodePage437:
        case Charset::CodePage28591:
        case Charset::CodePage28592:
            return;
        default:
            throw std::invalid_argument("Not an 8-bit charset: " + ToString(charset));
    }
}

[[noreturn]] void Refuse(TextField field, const std::string& what) {
    throw std::invalid_argument(ToString(field) + ": " + what);
}

std::string CodePointName(CodePoint codePoint) {
    char name[16];
    std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned int>(codePoint));
    return name;
}

// The code points of strict UTF-8: the lenient decoder's, accepted only when the encoder writes them
// back as the very same bytes (which refuses overlong forms, surrogates and stray bytes alike).
std::vector<CodePoint> StrictUtf8(std::string_view text, TextField field) {
    std::vector<CodePoint> codePoints;
    Unicode::DecoderUTF8 decoder;
    const Unicode::EncoderUTF8 encoder;
    std::size_t checked = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        decoder.Add(static_cast<unsigned char>(text[i]));
        if (!decoder.IsComplete()) {
            continue;
        }
        const CodePoint codePoint = decoder.GetResult();
        unsigned char bytes[4];
        const std::uint32_t count = encoder.GetNbBytes(codePoint);
        encoder.Encode(codePoint, bytes);
        if (count == 0 || count != i + 1 - checked || std::memcmp(bytes, text.data() + checked, count) != 0) {
            Refuse(field, "text is not UTF-8");
        }
        checked = i + 1;
        codePoints.push_back(codePoint);
    }
    if (checked != text.size()) {
        Refuse(field, "text is not UTF-8");
    }
    return codePoints;
}

// Writes `bytes` and the flag into the field, NULs after them; refuses more bytes than it holds.
void Store(const Place& place, TextField field, std::string_view bytes, bool unicode) {
    if (bytes.size() > place.size) {
        Refuse(field, "text longer than " + std::to_string(place.size) + " bytes");
    }
    std::copy(bytes.begin(), bytes.end(), place.bytes);
    // The field, then its terminators (one for texts 1 to 4, two for the others).
    std::memset(place.bytes + bytes.size(), 0, place.size - bytes.size() + (place.unicode ? 2 : 1));
    if (place.unicode != nullptr) {
        *place.unicode = unicode;
    }
}

}  // namespace

std::string ToString(TextField field) {
    static const char* const names[] = {"text1", "text2",       "text3",       "text4",
                                        "name",  "varId",       "keywords[0]", "keywords[1]",
                                        "keywords[2]", "keywords[3]", "keywords[4]"};
    const auto index = static_cast<std::uint32_t>(field);
    return index < std::size(names) ? names[index] : "unknown";
}

std::string GetTextUtf8(const Clip& clip, TextField field, Charset charset) {
    CheckEightBit(charset);
    // Only read: the place of a const clip is the same as that of a mutable one.
    const Place place = Locate(const_cast<Clip&>(clip), field);
    const bool unicode = place.unicode != nullptr && *place.unicode;
    std::size_t length = 0;
    if (unicode) {
        while (length + 1 < place.size && (place.bytes[length] != 0 || place.bytes[length + 1] != 0)) {
            length += 2;
        }
    } else {
        length = std::find(place.bytes, place.bytes + place.size, '\0') - place.bytes;
    }
    return Unicode::Transcode(std::string_view(place.bytes, length), unicode ? Charset::Utf16LE : charset,
                              Charset::Utf8);
}

void SetTextUtf8(Clip& clip, TextField field, std::string_view text, bool unicode, Charset charset) {
    CheckEightBit(charset);
    const Place place = Locate(clip, field);
    if (unicode && place.unicode == nullptr) {
        Refuse(field, "no UTF-16 form");
    }
    const std::unique_ptr<Unicode::Encoder> eightBit = Unicode::MakeEncoder(charset);
    const std::unique_ptr<Unicode::Decoder> eightBitBack = Unicode::MakeDecoder(charset);
    const Unicode::EncoderUTF16 utf16(false);
    std::vector<unsigned char> stored;
    for (const CodePoint codePoint : StrictUtf8(text, field)) {
        if (codePoint == 0) {
            Refuse(field, "U+0000 not allowed");
        }
        unsigned char bytes[4];
        if (unicode) {
            utf16.Encode(codePoint, bytes);
            stored.insert(stored.end(), bytes, bytes + utf16.GetNbBytes(codePoint));
            continue;
        }
        // A single-byte set writes "?" for what it lacks: a character is there when its byte reads back
        // as it.
        eightBit->Encode(codePoint, bytes);
        eightBitBack->Reset();
        eightBitBack->Add(bytes[0]);
        if (!eightBitBack->IsComplete() || eightBitBack->GetResult() != codePoint) {
            Refuse(field, CodePointName(codePoint) + " not in " + ToString(charset));
        }
        stored.push_back(bytes[0]);
    }
    Store(place, field, std::string_view(reinterpret_cast<const char*>(stored.data()), stored.size()), unicode);
}

std::string GetTextBytes(const Clip& clip, TextField field) {
    const Place place = Locate(const_cast<Clip&>(clip), field);
    return std::string(place.bytes, place.size);
}

bool IsTextUtf16(const Clip& clip, TextField field) {
    const Place place = Locate(const_cast<Clip&>(clip), field);
    return place.unicode != nullptr && *place.unicode;
}

void SetTextBytes(Clip& clip, TextField field, std::string_view bytes, bool unicode) {
    const Place place = Locate(clip, field);
    if (unicode && place.unicode == nullptr) {
        Refuse(field, "no UTF-16 form");
    }
    Store(place, field, bytes, unicode);
}

}  // namespace Korv::Plurex::Data::Clips
