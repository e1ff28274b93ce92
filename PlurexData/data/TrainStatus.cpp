#include "PlurexData/data/TrainStatus.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<TrainStatus> converter(
    {
        {TrainStatus::NotATrain, "NotATrain"},
        {TrainStatus::InactiveTrain, "InactiveTrain"},
        {TrainStatus::ActiveTrain, "ActiveTrain"},
        {TrainStatus::Unknown, "Unknown"},
    },
    TrainStatus::Unknown);
}  // namespace

const std::string& ToString(TrainStatus value) noexcept {
    return converter.ToString(value);
}

TrainStatus ToTrainStatus(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<TrainStatus>>& RowsOf(EnumTag<TrainStatus>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
