#include "PlurexData/data/WideColorGamut.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<WideColorGamut> converter(
    {
        {WideColorGamut::Rec709, "Rec709"},
        {WideColorGamut::Rec2020, "Rec2020"},
        {WideColorGamut::Unknown, "Unknown"},
    },
    WideColorGamut::Unknown);
}  // namespace

const std::string& ToString(WideColorGamut value) noexcept {
    return converter.ToString(value);
}

WideColorGamut ToWideColorGamut(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<WideColorGamut>>& RowsOf(EnumTag<WideColorGamut>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
