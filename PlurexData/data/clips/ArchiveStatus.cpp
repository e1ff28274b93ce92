#include "PlurexData/data/clips/ArchiveStatus.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<ArchiveStatus> converter(
    {
        {ArchiveStatus::NoStore, "NoStore"},
        {ArchiveStatus::Stored, "Stored"},
        {ArchiveStatus::Unknown, "Unknown"},
    },
    ArchiveStatus::Unknown);
}  // namespace

const std::string& ToString(ArchiveStatus value) noexcept {
    return converter.ToString(value);
}

ArchiveStatus ToArchiveStatus(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<ArchiveStatus>>& RowsOf(EnumTag<ArchiveStatus>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
