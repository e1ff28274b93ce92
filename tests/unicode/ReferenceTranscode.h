#pragma once

// Transcode's documented behaviour, one virtual call at a time: the reference the whole-buffer path
// is checked against, by the tests and by the fuzz target.

#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Decoder.h"
#include "PlurexData/unicode/Encoder.h"

#include <string>

namespace PlurexTest {

inline std::string ReferenceTranscode(const std::string& input, Korv::Plurex::Unicode::Charset from,
                                      Korv::Plurex::Unicode::Charset to) {
    using namespace Korv::Plurex::Unicode;
    const auto decoder = MakeDecoder(from);
    const auto encoder = MakeEncoder(to);
    std::string output;
    for (const char c : input) {
        decoder->Add(static_cast<unsigned char>(c));
        if (decoder->IsComplete()) {
            CodePoint codePoint = decoder->GetResult();
            if (encoder->GetNbBytes(codePoint) == 0) {
                codePoint = 0xFFFD;
            }
            unsigned char bytes[4];
            encoder->Encode(codePoint, bytes);
            output.append(reinterpret_cast<const char*>(bytes), encoder->GetNbBytes(codePoint));
        }
    }
    return output;
}

}  // namespace PlurexTest
