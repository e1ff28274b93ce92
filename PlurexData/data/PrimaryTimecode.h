#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Which timecode of a clip (time of day or user) is the primary one.
enum class PrimaryTimecode : std::int32_t { NotSet = 0, Tod = 1, User = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(PrimaryTimecode value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); PrimaryTimecode::Unknown for any other
/// text.
PLUREXDATA_API PrimaryTimecode ToPrimaryTimecode(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<PrimaryTimecode>() returns.
PLUREXDATA_API const std::vector<EnumRow<PrimaryTimecode>>& RowsOf(EnumTag<PrimaryTimecode>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
