#pragma once

#include "PlurexData/Export.h"

#include <string>

namespace Korv::Plurex::Data {

/// A 128-bit identifier held as 16 bytes in the order of its text form
/// (8-4-4-4-12 lower-case hexadecimal digits). The all-zero value is the empty Guid.
class PLUREXDATA_API Guid {
public:
    /// The number of bytes.
    static constexpr unsigned int Size = 16;

    /// A fresh random version-4 identifier, drawn from one Mersenne Twister shared by the process and
    /// seeded once from the operating system's entropy. Safe from any number of threads at once: the
    /// draws are locked, so concurrent calls never return the same value.
    Guid();
    /// All zero, then the first min(size, 16) bytes of `data` when `data` is not null.
    Guid(const unsigned char* data, unsigned int size) noexcept;

    /// The shared all-zero Guid.
    static const Guid& Empty();

    /// Parses the 36-character hyphenated form, in either case; anything else gives the empty Guid.
    static Guid FromString(const std::string& text);

    /// "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx", lower case.
    std::string ToString() const;
    /// Copies the first min(size, 16) bytes into `out` and returns it; returns null for a null `out`.
    unsigned char* ToBinary(unsigned char* out, unsigned int size) const noexcept;

    /// Byte-wise equality and order (unsigned bytes from byte 0), for containers.
    ///@{
    bool operator==(const Guid& other) const noexcept;
    bool operator!=(const Guid& other) const noexcept;
    bool operator<(const Guid& other) const noexcept;
    ///@}

protected:
    /// The bytes in text order; the server and channel GUIDs write their layouts here.
    unsigned char bytes_[Size];
};

}  // namespace Korv::Plurex::Data
