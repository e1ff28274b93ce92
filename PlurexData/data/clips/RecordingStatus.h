#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips::Essences {

/// How far the recording of an essence has got.
enum class RecordingStatus : std::int32_t {
    NotPresent = 0,
    Reserved = 1,
    InCreation = 2,
    RecordInProgress = 3,
    OnDisk = 4,
    Unknown = 5
};

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(RecordingStatus value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); RecordingStatus::Unknown for any other
/// text.
PLUREXDATA_API RecordingStatus ToRecordingStatus(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<RecordingStatus>() returns.
PLUREXDATA_API const std::vector<EnumRow<RecordingStatus>>& RowsOf(EnumTag<RecordingStatus>) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Essences
