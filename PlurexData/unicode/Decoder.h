#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/CodePoint.h"

#include <cstdint>

namespace Korv::Plurex::Unicode {

/// Turns a byte stream into code points one byte at a time: feed each byte with Add, then look
/// whether IsComplete; GetResult is the code point while it is. The byte after a complete code point
/// always starts a new one; a partial sequence left at the end of the input is never completed.
/// Decoders are lenient: apart from dropping impossible UTF-8 sequences they report no error, and
/// they do not validate what they produce (ValidateCodePoint is the caller's business).
class PLUREXDATA_API Decoder {
public:
    virtual ~Decoder();
    /// The base step every decoder's Add begins with: drops a completed code point (through the
    /// class's Reset), then stores the byte after the bytes collected so far.
    virtual void Add(unsigned char byte) noexcept;
    /// Back to empty: no byte collected, nothing complete.
    virtual void Reset() noexcept;

    /// Whether the last byte added completed a code point.
    bool IsComplete() const noexcept { return complete_; }
    /// The finished code point; meaningful while IsComplete.
    CodePoint GetResult() const noexcept { return codePoint_; }
    /// The bytes of the code point being assembled (or just completed), GetCount of them.
    const unsigned char* GetBuffer() const noexcept { return buffer_; }
    /// How many bytes GetBuffer holds.
    std::uint32_t GetCount() const noexcept { return count_; }
    /// The value given at construction; kept and copied, not used by the decoding.
    std::uint32_t GetSize() const noexcept { return size_; }

protected:
    /// An empty decoder; `size` is only kept for GetSize.
    explicit Decoder(unsigned int size) noexcept : size_(size) {}
    /// Copies the state, a sequence in progress included.
    ///@{
    Decoder(const Decoder&) = default;
    Decoder& operator=(const Decoder&) = default;
    ///@}

    /// Marks the bytes collected so far as `codePoint`; the next Add starts over.
    void Complete(CodePoint codePoint) noexcept {
        codePoint_ = codePoint;
        complete_ = true;
    }

    unsigned char buffer_[4] = {};  ///< the bytes collected; no decoder here completes a longer sequence
    std::uint32_t count_ = 0;       ///< how many bytes of buffer_ are in use
    bool complete_ = false;         ///< whether codePoint_ is the code point of buffer_
    CodePoint codePoint_ = 0;       ///< the last completed code point
    std::uint32_t size_;            ///< the value given at construction
};

inline void Decoder::Add(unsigned char byte) noexcept {
    // A full buffer that never completed (only a decoder of another kind can leave one) starts
    // over rather than write past it.
    if (complete_ || count_ == sizeof buffer_) {
        Reset();
    }
    buffer_[count_++] = byte;
}

inline void Decoder::Reset() noexcept {
    count_ = 0;
    complete_ = false;
}

}  // namespace Korv::Plurex::Unicode
