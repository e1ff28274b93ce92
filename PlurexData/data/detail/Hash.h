#pragma once

// The hash behind the identifiers' Hash members: 64-bit FNV-1a over the fields their == compares,
// folded to std::size_t. The same figures on every platform before the fold. Internal to the library.

#include <cstddef>
#include <cstdint>

namespace Korv::Plurex::Data::Detail {

class Hasher {
public:
    // Feeds `size` bytes.
    Hasher& Bytes(const unsigned char* data, std::size_t size) noexcept {
        for (std::size_t i = 0; i < size; ++i) {
            state_ = (state_ ^ data[i]) * Prime;
        }
        return *this;
    }

    // Feeds the four bytes of `value`, low byte first, whatever the platform's byte order.
    Hasher& Int(std::int32_t value) noexcept {
        const auto bits = static_cast<std::uint32_t>(value);
        const unsigned char bytes[4] = {
            static_cast<unsigned char>(bits), static_cast<unsigned char>(bits >> 8),
            static_cast<unsigned char>(bits >> 16), static_cast<unsigned char>(bits >> 24)};
        return Bytes(bytes, sizeof bytes);
    }

    // Both halves count where std::size_t has 32 bits.
    std::size_t Get() const noexcept { return static_cast<std::size_t>(state_ ^ (state_ >> 32)); }

private:
    static constexpr std::uint64_t Prime = 0x100000001B3;
    std::uint64_t state_ = 0xCBF29CE484222325;
};

}  // namespace Korv::Plurex::Data::Detail
