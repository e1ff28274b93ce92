#include "PlurexData/data/AlphaArchiveStatus.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<AlphaArchiveStatus> converter(
    {
        {AlphaArchiveStatus::None, "None"},
        {AlphaArchiveStatus::Important, "Important"},
        {AlphaArchiveStatus::ImportantAndStored, "ImportantAndStored"},
        {AlphaArchiveStatus::Unknown, "Unknown"},
    },
    AlphaArchiveStatus::Unknown);
}  // namespace

const std::string& ToString(AlphaArchiveStatus value) noexcept {
    return converter.ToString(value);
}

AlphaArchiveStatus ToAlphaArchiveStatus(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<AlphaArchiveStatus>>& RowsOf(EnumTag<AlphaArchiveStatus>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
