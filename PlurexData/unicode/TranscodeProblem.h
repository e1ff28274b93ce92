#pragma once

#include "PlurexData/unicode/CodePoint.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Korv::Plurex::Unicode {

/// Where and why strict conversion (TryTranscodeStrict) stopped: the first character it could not
/// convert.
struct TranscodeProblem {
    /// Why a character could not be converted.
    enum class Reason : std::int32_t {
        Malformed = 0,   ///< bytes that are no character of the source charset
        Incomplete = 1,  ///< the input ends inside a character that could still have been completed
        Unmappable = 2,  ///< a valid character that the target charset lacks
    };

    Reason reason = Reason::Malformed;  ///< why it failed
    std::size_t offset = 0;             ///< the byte offset in the input where the character starts
    CodePoint codePoint = 0;            ///< the code point the target lacks (Unmappable); else 0
    std::string message;                ///< what TranscodeStrict throws: "byte N: ..."
};

}  // namespace Korv::Plurex::Unicode
