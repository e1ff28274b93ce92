#include "PlurexData/data/PreferentialCamera.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<PreferentialCamera> converter(
    {
        {PreferentialCamera::None, "None"},
        {PreferentialCamera::Main, "Main"},
        {PreferentialCamera::Secondary, "Secondary"},
        {PreferentialCamera::Unknown, "Unknown"},
    },
    PreferentialCamera::Unknown);
}  // namespace

const std::string& ToString(PreferentialCamera value) noexcept {
    return converter.ToString(value);
}

PreferentialCamera ToPreferentialCamera(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<PreferentialCamera>>& RowsOf(EnumTag<PreferentialCamera>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
