#include "PlurexData/data/detail/PackedDecimal.h"

#include <limits>

namespace Korv::Plurex::Data::Detail {

void WritePackedDecimal(unsigned char* bytes, unsigned int first, unsigned int count,
                        std::uint32_t value) noexcept {
    for (unsigned int i = first + count; i-- > first;) {
        bytes[i] = static_cast<unsigned char>(((value / 10) % 10) << 4 | value % 10);
        value /= 100;
    }
}

std::int32_t ReadDecimalNibbles(const unsigned char* bytes, unsigned int firstNibble,
                                unsigned int nibbleCount) noexcept {
    constexpr std::int64_t max = std::numeric_limits<std::int32_t>::max();
    std::int64_t value = 0;
    for (unsigned int n = firstNibble; n < firstNibble + nibbleCount; ++n) {
        const unsigned int digit = (n % 2 == 0) ? bytes[n / 2] >> 4 : bytes[n / 2] & 0x0F;
        if (digit > 9) {
            break;
        }
        value = value * 10 + digit;
        if (value > max) {
            value = max;  // the conversion goes on consuming digits but stays saturated
        }
    }
    return static_cast<std::int32_t>(value);
}

}  // namespace Korv::Plurex::Data::Detail
