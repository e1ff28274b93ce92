#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/Guid.h"

#include <cstdint>
#include <string>

namespace Korv::Plurex::Data::Channels {

/// The GUID of a record or play channel. Its bytes carry, as packed decimal digits so that the text
/// form reads as decimal, the channel's type, index and the machine serial of its server:
/// - byte 7: the type code, 1 for Type::First, 2 for Type::Second;
/// - bytes 8-9: the channel index, four digits (thousands to units);
/// - bytes 10-15: the machine serial, twelve digits.
class PLUREXDATA_API Guid : public Data::Guid {
public:
    /// The kind of channel a GUID names.
    enum class Type : std::int32_t {
        First = 0,   ///< the first kind of channel (type code 1)
        Second = 1,  ///< the second kind of channel (type code 2)
        None = 2,    ///< no channel: the all-zero GUID
    };

    /// All zero, as Guid(Type::None, 0, 0).
    Guid() noexcept;
    /// The layout above. Type::None or a negative index gives the all-zero GUID; any other type value
    /// counts as Second. Index digits above the thousands are dropped.
    Guid(Type type, int channelIndex, unsigned int machineSerial) noexcept;
    /// The same 16 bytes, read as a channel GUID.
    explicit Guid(const Data::Guid& bytes) noexcept : Data::Guid(bytes) {}

    /// Whatever Data::Guid::FromString parses; nothing checks the channel layout.
    static Guid FromString(const std::string& text);

    /// Read back from the text form as base-10 numbers that stop at the first non-digit, with 32-bit
    /// results on every platform (a serial above 2147483647 reads as 2147483647): the type from
    /// character 17 (1 First, 2 Second, else None), the index from characters 19-22, the serial from
    /// characters 24-35.
    ///@{
    Type ChannelType() const noexcept;
    int ChannelIndex() const noexcept;
    int MachineSerial() const noexcept;
    ///@}
};

}  // namespace Korv::Plurex::Data::Channels

namespace std {
/// Hashes as the base Guid does (Guid::Hash), consistent with the inherited ==.
template <>
struct hash<Korv::Plurex::Data::Channels::Guid> : hash<Korv::Plurex::Data::Guid> {};
}  // namespace std
