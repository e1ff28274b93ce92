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

}  // namespace Korv::Plurex::Data::Clips::Essences
