#include "PlurexData/data/clips/RecordingStatus.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<RecordingStatus> converter(
    {
        {RecordingStatus::NotPresent, "NotPresent"},
        {RecordingStatus::Reserved, "Reserved"},
        {RecordingStatus::InCreation, "InCreation"},
        {RecordingStatus::RecordInProgress, "RecordInProgress"},
        {RecordingStatus::OnDisk, "OnDisk"},
        {RecordingStatus::Unknown, "Unknown"},
    },
    RecordingStatus::Unknown);
}  // namespace

const std::string& ToString(RecordingStatus value) noexcept {
    return converter.ToString(value);
}

RecordingStatus ToRecordingStatus(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<RecordingStatus>>& RowsOf(EnumTag<RecordingStatus>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
