#pragma once

#include <cstdint>

namespace Korv::Plurex::Data::Channels {

/// Time values of the channel snapshots are nanoseconds of the system clock since the epoch; this bit
/// pattern (0x8000000000000001, the smallest 64-bit value plus one) means not set.
inline constexpr std::int64_t UnsetTime = -0x7FFFFFFFFFFFFFFFLL;

}  // namespace Korv::Plurex::Data::Channels
