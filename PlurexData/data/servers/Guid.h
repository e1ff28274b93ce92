#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/Guid.h"

namespace Korv::Plurex::Data::Servers {

/// The 128-bit identity of a server. Its bytes carry the server's type and machine serial:
/// - byte 7: the type marker, 0x64 ('d') for type 1, 0x65 ('e') for type 2, else 0;
/// - byte 8: 1 when a machine serial is present;
/// - byte 9: the serial's low 8 bits (binary, never read back);
/// - bytes 10-15: the serial as 12 packed decimal digits, so the last text group reads as the serial.
class PLUREXDATA_API Guid : public Data::Guid {
public:
    /// The kind of server. What the two kinds stand for is the installation's business; the
    /// identity only tells them apart.
    enum class Type : int {
        None = 0,       ///< no type: marker 0
        Primary = 1,    ///< marker 0x64
        Secondary = 2,  ///< marker 0x65
    };

    /// Marks a Guid made without a machine serial.
    static constexpr unsigned int NoMachineSerial = 0xFFFFFFFF;

    /// The all-zero identity.
    Guid() noexcept;
    /// The type marker and, unless the type is invalid or the serial is NoMachineSerial, the serial.
    Guid(Type type, unsigned int machineSerial) noexcept;
    /// The same 16 bytes, read as a server identity (for GUIDs received as text or bytes).
    explicit Guid(const Data::Guid& bytes) noexcept : Data::Guid(bytes) {}

    /// 1 or 2 from the type marker, else 0.
    Type ServerType() const noexcept;
    /// The last text group read as a base-10 number of 32 bits (saturating at 2147483647).
    unsigned int MachineSerial() const noexcept;

    /// Writes the type marker into byte 7; false (and 0) for a type other than 1 or 2.
    bool InitializeTypeInArray(Type type) noexcept;
    /// Writes bytes 10-15 as packed decimal and byte 9 as the serial's low byte.
    void InsertMachineSerialInArray(unsigned int serial) noexcept;
};

}  // namespace Korv::Plurex::Data::Servers

namespace std {
/// Hashes as the base Guid does (Guid::Hash), consistent with the inherited ==.
template <>
struct hash<Korv::Plurex::Data::Servers::Guid> : hash<Korv::Plurex::Data::Guid> {};
}  // namespace std
