#pragma once

#include "PlurexData/Export.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

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
    /// Parses exactly the texts FromString accepts; empty for any other. Unlike FromString, tells a
    /// genuine all-zero text apart from a failure.
    static std::optional<Guid> TryParse(std::string_view text) noexcept;

    /// "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx", lower case.
    std::string ToString() const;
    /// Copies the first min(size, 16) bytes into `out` and returns it; returns null for a null `out`.
    unsigned char* ToBinary(unsigned char* out, unsigned int size) const noexcept;

    /// The difference of the first differing bytes (unsigned, from byte 0); 0 when all 16 match.
    int CompareTo(const Guid& other) const noexcept;
    /// Byte-wise equality and order (unsigned bytes from byte 0), for containers; `<` is CompareTo < 0.
    ///@{
    bool operator==(const Guid& other) const noexcept;
    bool operator!=(const Guid& other) const noexcept;
    bool operator<(const Guid& other) const noexcept;
    ///@}
    /// A hash of the 16 bytes, equal for equal Guids; what std::hash uses for this and the derived GUIDs.
    std::size_t Hash() const noexcept;

protected:
    /// The bytes in text order; the server and channel GUIDs write their layouts here.
    unsigned char bytes_[Size];
};

/// Writes ToString(): the derived server, clip and channel GUIDs print the same way.
PLUREXDATA_API std::ostream& operator<<(std::ostream& out, const Guid& guid);

}  // namespace Korv::Plurex::Data

namespace std {
/// Hashes through Guid::Hash, consistent with ==.
template <>
struct hash<Korv::Plurex::Data::Guid> {
    /// `guid.Hash()`.
    size_t operator()(const Korv::Plurex::Data::Guid& guid) const noexcept { return guid.Hash(); }
};
}  // namespace std
