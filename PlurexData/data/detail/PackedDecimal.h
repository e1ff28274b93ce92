#pragma once

// Packed decimal digits inside GUID bytes: the server and channel GUIDs carry machine serials and
// channel indexes this way, so that their text form reads as decimal. Internal to the library.

#include <cstdint>

namespace Korv::Plurex::Data::Detail {

// Writes `value` as 2 * count decimal digits into bytes[first] .. bytes[first + count - 1], the
// least significant pair in the last byte (tens in the high nibble). Higher digits are dropped.
void WritePackedDecimal(unsigned char* bytes, unsigned int first, unsigned int count,
                        std::uint32_t value) noexcept;

// Reads the hexadecimal digits of the nibbles [firstNibble, firstNibble + nibbleCount) (nibble 2k is
// the high half of byte k) as a base-10 signed long conversion of 32 bits would read their text:
// digits up to the first non-decimal one (none gives 0), saturating at 2147483647. The saturation is
// that of the 32-bit platform, kept on 64-bit builds so both read the same value.
std::int32_t ReadDecimalNibbles(const unsigned char* bytes, unsigned int firstNibble,
                                unsigned int nibbleCount) noexcept;

}  // namespace Korv::Plurex::Data::Detail
