#pragma once

#include "PlurexData/Export.h"

#include <cstdint>
#include <string>

namespace Korv::Plurex::Data::Clips {

/// The aspect ratio of the coded frame.
enum class CodedFrameAspectRatio : std::int32_t { Unknown = 0, FourThirds = 1, SixteenNinths = 2 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(CodedFrameAspectRatio value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); CodedFrameAspectRatio::Unknown for any
/// other text.
PLUREXDATA_API CodedFrameAspectRatio ToCodedFrameAspectRatio(const std::string& text) noexcept;

}  // namespace Korv::Plurex::Data::Clips
