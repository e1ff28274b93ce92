#include "PlurexData/data/servers/Guid.h"

#include "PlurexData/data/detail/PackedDecimal.h"

namespace Korv::Plurex::Data::Servers {

namespace {
constexpr unsigned char MarkerType1 = 0x64;
constexpr unsigned char MarkerType2 = 0x65;
}  // namespace

Guid::Guid() noexcept : Data::Guid(nullptr, 0) {
    InitializeTypeInArray(Type::None);
}

Guid::Guid(Type type, unsigned int machineSerial) noexcept : Data::Guid(nullptr, 0) {
    if (InitializeTypeInArray(type) && machineSerial != NoMachineSerial) {
        bytes_[8] = 1;
        InsertMachineSerialInArray(machineSerial);
    }
}

bool Guid::InitializeTypeInArray(Type type) noexcept {
    switch (type) {
        case Type::Primary:
            bytes_[7] = MarkerType1;
            return true;
        case Type::Secondary:
            bytes_[7] = MarkerType2;
            return true;
        default:
            bytes_[7] = 0;
            return false;
    }
}

void Guid::InsertMachineSerialInArray(unsigned int serial) noexcept {
    Detail::WritePackedDecimal(bytes_, 10, 6, serial);
    bytes_[9] = static_cast<unsigned char>(serial & 0xFF);
}

Guid::Type Guid::ServerType() const noexcept {
    switch (bytes_[7]) {
        case MarkerType1:
            return Type::Primary;
        case MarkerType2:
            return Type::Secondary;
        default:
            return Type::None;
    }
}

unsigned int Guid::MachineSerial() const noexcept {
    return static_cast<unsigned int>(Detail::ReadDecimalNibbles(bytes_, 20, 12));
}

}  // namespace Korv::Plurex::Data::Servers
