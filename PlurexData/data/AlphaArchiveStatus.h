#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// The archive marking of a clip: none, important, or important and already stored.
enum class AlphaArchiveStatus : std::int32_t { None = 0, Important = 1, ImportantAndStored = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(AlphaArchiveStatus value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); AlphaArchiveStatus::Unknown for any
/// other text.
PLUREXDATA_API AlphaArchiveStatus ToAlphaArchiveStatus(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<AlphaArchiveStatus>() returns.
PLUREXDATA_API const std::vector<EnumRow<AlphaArchiveStatus>>& RowsOf(EnumTag<AlphaArchiveStatus>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
