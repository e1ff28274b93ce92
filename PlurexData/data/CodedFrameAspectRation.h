#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The aspect ratio of the coded frame.
enum class CodedFrameAspectRatio : std::int32_t { Unknown = 0, FourThirds = 1, SixteenNinths = 2 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(CodedFrameAspectRatio value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); CodedFrameAspectRatio::Unknown for any
/// other text.
PLUREXDATA_API CodedFrameAspectRatio ToCodedFrameAspectRatio(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<CodedFrameAspectRatio>() returns.
PLUREXDATA_API const std::vector<EnumRow<CodedFrameAspectRatio>>& RowsOf(
    EnumTag<CodedFrameAspectRatio>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
