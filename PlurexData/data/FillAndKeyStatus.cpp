#include "PlurexData/data/FillAndKeyStatus.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<FillAndKeyStatus> converter(
    {
        {FillAndKeyStatus::None, "None"},
        {FillAndKeyStatus::Fill, "Fill"},
        {FillAndKeyStatus::Key, "Key"},
        {FillAndKeyStatus::Unknown, "Unknown"},
    },
    FillAndKeyStatus::Unknown);
}  // namespace

const std::string& ToString(FillAndKeyStatus value) noexcept {
    return converter.ToString(value);
}

FillAndKeyStatus ToFillAndKeyStatus(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<FillAndKeyStatus>>& RowsOf(EnumTag<FillAndKeyStatus>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
