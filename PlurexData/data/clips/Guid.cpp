#include "PlurexData/data/clips/Guid.h"

#include <algorithm>
#include <cstring>

namespace Korv::Plurex::Data::Clips {

Guid::Guid() noexcept : Data::Guid(nullptr, 0) {}

Guid::Guid(const std::string& text) noexcept
    : Data::Guid(reinterpret_cast<const unsigned char*>(text.data()),
                 static_cast<unsigned int>(std::min<std::size_t>(text.size(), Size))) {}

std::string Guid::UmId() const {
    const auto* begin = reinterpret_cast<const char*>(bytes_);
    const void* zero = std::memchr(begin, 0, Size);
    return std::string(
        begin, zero == nullptr ? Size : static_cast<std::size_t>(static_cast<const char*>(zero) - begin));
}

Guid Guid::FromString(const std::string& text) {
    return Guid(Data::Guid::FromString(text));
}

}  // namespace Korv::Plurex::Data::Clips
