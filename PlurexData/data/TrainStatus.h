#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/EnumRow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// Whether a clip is a record train, and whether that train is recording.
enum class TrainStatus : std::int32_t { NotATrain = 0, InactiveTrain = 1, ActiveTrain = 2, Unknown = 3 };

/// The name of `value`; "Unknown" for a value without a name of its own.
PLUREXDATA_API const std::string& ToString(TrainStatus value) noexcept;
/// The value named exactly `text` (case-sensitive, nothing trimmed); TrainStatus::Unknown for any other text.
PLUREXDATA_API TrainStatus ToTrainStatus(const std::string& text) noexcept;
/// The rows of the table in table order, the default marked: what GetRows<TrainStatus>() returns.
PLUREXDATA_API const std::vector<EnumRow<TrainStatus>>& RowsOf(EnumTag<TrainStatus>) noexcept;

}  // namespace Korv::Plurex::Data::Clips
