#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The camera letter of a clip. There is no value 0, and the letters jump from L to X (cameras M to W
/// do not exist): both kept for compatibility with stored clips.
enum class Camera : std::int32_t {
    A = 1,
    B = 2,
    C = 3,
    D = 4,
    E = 5,
    F = 6,
    G = 7,
    H = 8,
    I = 9,
    J = 10,
    K = 11,
    L = 12,
    X = 13,
    Y = 14,
    Z = 15,
    Unknown = 16
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(Camera value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); Camera::Unknown for any other text.
PLUREXDATA_API Camera ToCamera(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<Camera>() returns.
PLUREXDATA_API const std::vector<EnumRow<Camera>>& RowsOf(EnumTag<Camera>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
