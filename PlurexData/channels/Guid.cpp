#include "PlurexData/channels/Guid.h"

#include "PlurexData/data/detail/PackedDecimal.h"

namespace Korv::Plurex::Data::Channels {

Guid::Guid() noexcept : Data::Guid(nullptr, 0) {}

Guid::Guid(Type type, int channelIndex, unsigned int machineSerial) noexcept : Data::Guid(nullptr, 0) {
    if (type == Type::None || channelIndex < 0) {
        return;
    }
    bytes_[7] = type == Type::First ? 1 : 2;
    Detail::WritePackedDecimal(bytes_, 8, 2, static_cast<std::uint32_t>(channelIndex));
    Detail::WritePackedDecimal(bytes_, 10, 6, machineSerial);
}

Guid Guid::FromString(const std::string& text) {
    return Guid(Data::Guid::FromString(text));
}

// Character 17 of the text form is the low nibble of byte 7 (nibble 15), characters 19-22 are
// nibbles 16-19 and characters 24-35 nibbles 20-31.
Guid::Type Guid::ChannelType() const noexcept {
    switch (Detail::ReadDecimalNibbles(bytes_, 15, 1)) {
        case 1:
            return Type::First;
        case 2:
            return Type::Second;
        default:
            return Type::None;
    }
}

int Guid::ChannelIndex() const noexcept {
    return Detail::ReadDecimalNibbles(bytes_, 16, 4);
}

int Guid::MachineSerial() const noexcept {
    return Detail::ReadDecimalNibbles(bytes_, 20, 12);
}

}  // namespace Korv::Plurex::Data::Channels
