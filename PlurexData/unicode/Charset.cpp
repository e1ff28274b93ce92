#include "PlurexData/unicode/Charset.h"

#include "PlurexData/unicode/DecoderASCII.h"
#include "PlurexData/unicode/DecoderCodePage28591.h"
#include "PlurexData/unicode/DecoderCodePage28592.h"
#include "PlurexData/unicode/DecoderCodePage437.h"
#include "PlurexData/unicode/DecoderUTF16.h"
#include "PlurexData/unicode/DecoderUTF32.h"
#include "PlurexData/unicode/DecoderUTF8.h"
#include "PlurexData/unicode/EncoderASCII.h"
#include "PlurexData/unicode/EncoderCodePage28591.h"
#include "PlurexData/unicode/EncoderCodePage28592.h"
#include "PlurexData/unicode/EncoderCodePage437.h"
#include "PlurexData/unicode/EncoderUTF16.h"
#include "PlurexData/unicode/EncoderUTF32.h"
#include "PlurexData/unicode/EncoderUTF8.h"
#include "PlurexData/unicode/detail/CharsetName.h"

#include <stdexcept>

namespace Korv::Plurex::Unicode {

namespace {

struct Names {
    Charset charset;
    const char* name;
    std::vector<std::string> aliases;
};

const std::vector<Names>& Table() {
    static const std::vector<Names> table{
        {Charset::Ascii,
         "ascii",
         {"us-ascii", "ansi_x3.4-1968", "iso646-us", "us", "cp367", "ibm367", "cp20127"}},
        {Charset::CodePage437, "cp437", {"ibm437", "437", "cspc8codepage437"}},
        {Charset::CodePage28591, "iso-8859-1", {"latin1", "l1", "iso-ir-100", "cp819", "ibm819", "cp28591"}},
        {Charset::CodePage28592, "iso-8859-2", {"latin2", "l2", "iso-ir-101", "cp28592"}},
        {Charset::Utf8, "utf-8", {"cp65001"}},
        {Charset::Utf16LE, "utf-16le", {}},
        {Charset::Utf16BE, "utf-16be", {}},
        {Charset::Utf32LE, "utf-32le", {}},
        {Charset::Utf32BE, "utf-32be", {}},
    };
    return table;
}

const Names* Find(Charset charset) {
    for (const Names& names : Table()) {
        if (names.charset == charset) {
            return &names;
        }
    }
    return nullptr;
}

}  // namespace

Charset ToCharset(std::string_view name) {
    const std::string folded = Detail::FoldCharsetName(name);
    if (!folded.empty()) {
        for (const Names& names : Table()) {
            if (folded == Detail::FoldCharsetName(names.name)) {
                return names.charset;
            }
            for (const std::string& alias : names.aliases) {
                if (folded == Detail::FoldCharsetName(alias)) {
                    return names.charset;
                }
            }
        }
    }
    throw std::invalid_argument("Unknown charset: " + std::string(name));
}

std::string ToString(Charset charset) {
    const Names* names = Find(charset);
    return names == nullptr ? "unknown" : names->name;
}

const std::vector<Charset>& GetCharsets() {
    static const std::vector<Charset> charsets = [] {
        std::vector<Charset> all;
        for (const Names& names : Table()) {
            all.push_back(names.charset);
        }
        return all;
    }();
    return charsets;
}

std::vector<std::string> GetAliases(Charset charset) {
    const Names* names = Find(charset);
    return names == nullptr ? std::vector<std::string>{} : names->aliases;
}

std::unique_ptr<Decoder> MakeDecoder(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
            return std::make_unique<DecoderASCII>();
        case Charset::CodePage437:
            return std::make_unique<DecoderCodePage437>();
        case Charset::CodePage28591:
            return std::make_unique<DecoderCodePage28591>();
        case Charset::CodePage28592:
            return std::make_unique<DecoderCodePage28592>();
        case Charset::Utf8:
            return std::make_unique<DecoderUTF8>();
        case Charset::Utf16LE:
            return std::make_unique<DecoderUTF16>(false);
        case Charset::Utf16BE:
            return std::make_unique<DecoderUTF16>(true);
        case Charset::Utf32LE:
            return std::make_unique<DecoderUTF32>(false);
        case Charset::Utf32BE:
            return std::make_unique<DecoderUTF32>(true);
    }
    throw std::invalid_argument("Unknown charset: " + std::to_string(static_cast<std::int32_t>(charset)));
}

std::unique_ptr<Encoder> MakeEncoder(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
            return std::make_unique<EncoderASCII>();
        case Charset::CodePage437:
            return std::make_unique<EncoderCodePage437>();
        case Charset::CodePage28591:
            return std::make_unique<EncoderCodePage28591>();
        case Charset::CodePage28592:
            return std::make_unique<EncoderCodePage28592>();
        case Charset::Utf8:
            return std::make_unique<EncoderUTF8>();
        case Charset::Utf16LE:
            return std::make_unique<EncoderUTF16>(false);
        case Charset::Utf16BE:
            return std::make_unique<EncoderUTF16>(true);
        case Charset::Utf32LE:
            return std::make_unique<EncoderUTF32>(false);
        case Charset::Utf32BE:
            return std::make_unique<EncoderUTF32>(true);
    }
    throw std::invalid_argument("Unknown charset: " + std::to_string(static_cast<std::int32_t>(charset)));
}

}  // namespace Korv::Plurex::Unicode
