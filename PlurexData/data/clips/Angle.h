#pragma once

#include "PlurexData/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Korv::Plurex::Data::Clips {

/// One camera angle of an angles group, carried as five opaque 32-bit words.
struct PLUREXDATA_API Angle {
    /// The number of words.
    static constexpr std::size_t WordCount = 5;

    /// The words, carried as they arrive; all zero by default.
    std::array<std::uint32_t, WordCount> words{};

    /// Every word equal.
    ///@{
    bool operator==(const Angle& other) const noexcept { return words == other.words; }
    bool operator!=(const Angle& other) const noexcept { return !(*this == other); }
    ///@}
};

}  // namespace Korv::Plurex::Data::Clips
