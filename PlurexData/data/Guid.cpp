#include "PlurexData/data/Guid.h"

#include "PlurexData/data/detail/Hash.h"

#include <boost/lexical_cast.hpp>
#include <boost/random/mersenne_twister.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <ostream>

namespace Korv::Plurex::Data {

namespace {

// The one generator of the process, seeded once from the operating system's entropy, as Boost seeds
// its own UUID generators, with the lock that lets threads draw from it at once: unguarded, two
// threads could read the same state and return the same GUID. A failure to seed propagates and leaves
// the generator unmade, so the next call tries again.
struct SharedGenerator {
    boost::random::mt19937 generator;
    std::mutex mutex;

    SharedGenerator() {
        boost::uuids::detail::random_provider entropy;
        generator.seed(entropy);
    }

    static SharedGenerator& Get() {
        static SharedGenerator shared;
        return shared;
    }
};

bool IsHexDigit(char c) noexcept {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// Exactly the texts that boost::lexical_cast<boost::uuids::uuid> accepts: 36 characters, hex digits
// of either case, hyphens after the 4th, 6th, 8th and 10th byte, nothing before or after. Checking
// first spares the conversion's exception on malformed text, which costs several times a parse.
bool HasUuidShape(std::string_view text) noexcept {
    if (text.size() != 36) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool hyphen = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphen ? text[i] != '-' : !IsHexDigit(text[i])) {
            return false;
        }
    }
    return true;
}

unsigned char HexValue(char c) noexcept {
    if (c <= '9') {
        return static_cast<unsigned char>(c - '0');
    }
    return static_cast<unsigned char>((c | 0x20) - 'a' + 10);  // either case
}

}  // namespace

Guid::Guid() {
    SharedGenerator& shared = SharedGenerator::Get();
    std::uint32_t words[4];
    {
        const std::lock_guard<std::mutex> lock(shared.mutex);
        for (std::uint32_t& word : words) {
            word = shared.generator();
        }
    }
    for (unsigned int word = 0; word < 4; ++word) {
        for (unsigned int i = 0; i < 4; ++i) {
            bytes_[4 * word + i] = static_cast<unsigned char>(words[word] >> (8 * i));
        }
    }
    // RFC 4122 variant and version 4, marked as Boost's generator marks them.
    bytes_[8] = static_cast<unsigned char>((bytes_[8] & 0xBF) | 0x80);
    bytes_[6] = static_cast<unsigned char>((bytes_[6] & 0x4F) | 0x40);
}

Guid::Guid(const unsigned char* data, unsigned int size) noexcept : bytes_{} {
    if (data != nullptr) {
        std::memcpy(bytes_, data, std::min(size, Size));
    }
}

const Guid& Guid::Empty() {
    static const Guid empty(nullptr, 0);
    return empty;
}

Guid Guid::FromString(const std::string& text) {
    if (!HasUuidShape(text)) {
        return Empty();
    }
    try {
        const auto uuid = boost::lexical_cast<boost::uuids::uuid>(text);
        return Guid(uuid.data, Size);
    } catch (const std::exception&) {
        return Empty();
    }
}

std::optional<Guid> Guid::TryParse(std::string_view text) noexcept {
    if (!HasUuidShape(text)) {
        return std::nullopt;
    }
    // The shape is the whole test: every text of that shape converts, so the digits are read here
    // rather than through the conversion FromString uses, which may throw.
    unsigned char bytes[Size];
    std::size_t at = 0;
    for (unsigned char& byte : bytes) {
        if (text[at] == '-') {
            ++at;
        }
        byte = static_cast<unsigned char>(HexValue(text[at]) << 4 | HexValue(text[at + 1]));
        at += 2;
    }
    return Guid(bytes, Size);
}

std::string Guid::ToString() const {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text(36, '-');
    std::size_t at = 0;
    for (unsigned int i = 0; i < Size; ++i) {
        text[at++] = digits[bytes_[i] >> 4];
        text[at++] = digits[bytes_[i] & 0x0F];
        if (i == 3 || i == 5 || i == 7 || i == 9) {
            ++at;  // the hyphen is already there
        }
    }
    return text;
}

unsigned char* Guid::ToBinary(unsigned char* out, unsigned int size) const noexcept {
    if (out == nullptr) {
        return nullptr;
    }
    std::memcpy(out, bytes_, std::min(size, Size));
    return out;
}

int Guid::CompareTo(const Guid& other) const noexcept {
    for (unsigned int i = 0; i < Size; ++i) {
        if (bytes_[i] != other.bytes_[i]) {
            return bytes_[i] - other.bytes_[i];
        }
    }
    return 0;
}

bool Guid::operator==(const Guid& other) const noexcept {
    return std::memcmp(bytes_, other.bytes_, Size) == 0;
}

bool Guid::operator!=(const Guid& other) const noexcept {
    return !(*this == other);
}

bool Guid::operator<(const Guid& other) const noexcept {
    return std::memcmp(bytes_, other.bytes_, Size) < 0;
}

std::size_t Guid::Hash() const noexcept {
    return Detail::Hasher().Bytes(bytes_, Size).Get();
}

std::ostream& operator<<(std::ostream& out, const Guid& guid) {
    return out << guid.ToString();
}

}  // namespace Korv::Plurex::Data
