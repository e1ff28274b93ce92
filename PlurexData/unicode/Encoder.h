#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/CodePoint.h"

#include <cstdint>

namespace Korv::Plurex::Unicode {

/// Turns code points into the bytes of one character set. Encoders are stateless and allocate
/// nothing: ask GetNbBytes first, then have Encode write that many bytes into a buffer of at least
/// 4 bytes (4 suffice for every encoder, and the UTF-8 quirk below needs them).
class PLUREXDATA_API Encoder {
public:
    virtual ~Encoder();
    /// The number of bytes Encode writes for `codePoint`; 0 when the encoder refuses it.
    virtual std::uint32_t GetNbBytes(CodePoint codePoint) const noexcept = 0;
    /// Writes the bytes of `codePoint` at `out`; nothing for a refused code point.
    virtual void Encode(CodePoint codePoint, unsigned char* out) const noexcept = 0;

protected:
    Encoder() = default;
    /// Copyable, although there is no state to copy.
    ///@{
    Encoder(const Encoder&) = default;
    Encoder& operator=(const Encoder&) = default;
    ///@}
};

}  // namespace Korv::Plurex::Unicode
