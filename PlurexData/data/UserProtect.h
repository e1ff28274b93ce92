#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Protection bits, one per user; All is the union of the low 16 bits. Only the single values have
/// names: a combination prints as "Unknown" and no name reads back as one.
enum class UserProtect : std::int32_t {
    None = 0x0,
    Dorsel = 0x1,
    Brenix = 0x2,
    Wexor = 0x4,
    Morrit = 0x8,
    Kep = 0x10,
    Qorvane = 0x20,
    Drovik = 0x40,
    Pellawyn = 0x80,
    Talvane = 0x100,
    All = 0xFFFF,
    Unknown = 0x10000
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(UserProtect value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); UserProtect::Unknown for any other text.
PLUREXDATA_API UserProtect ToUserProtect(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<UserProtect>() returns.
PLUREXDATA_API const std::vector<EnumRow<UserProtect>>& RowsOf(EnumTag<UserProtect>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
