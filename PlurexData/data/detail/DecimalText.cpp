#include "PlurexData/data/detail/DecimalText.h"

#include <cstdint>

namespace Korv::Plurex::Data::Detail {

namespace {

struct Digits {
    char text[10];
    unsigned int count = 0;  // digits are stored from the end of text
    bool negative = false;

    explicit Digits(int value) noexcept : text{}, negative(value < 0) {
        // Through unsigned arithmetic, so the most negative int has its digits too.
        std::uint32_t magnitude =
            negative ? 0u - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
        do {
            text[sizeof text - 1 - count++] = static_cast<char>('0' + magnitude % 10);
            magnitude /= 10;
        } while (magnitude != 0);
    }
    const char* begin() const noexcept { return text + sizeof text - count; }
    unsigned int Length() const noexcept { return count + (negative ? 1 : 0); }
};

}  // namespace

void AppendSpacePadded(std::string& text, int value, unsigned int width) {
    const Digits digits(value);
    if (digits.Length() < width) {
        text.append(width - digits.Length(), ' ');
    }
    if (digits.negative) {
        text += '-';
    }
    text.append(digits.begin(), digits.count);
}

void AppendZeroPadded(std::string& text, int value, unsigned int width) {
    const Digits digits(value);
    if (digits.negative) {
        text += '-';
    }
    if (digits.Length() < width) {
        text.append(width - digits.Length(), '0');
    }
    text.append(digits.begin(), digits.count);
}

}  // namespace Korv::Plurex::Data::Detail
