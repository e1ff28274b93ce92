#include "PlurexData/data/AfdAspectRatio.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<AfdAspectRatio> converter(
    {
        {AfdAspectRatio::Unknown, "Unknown"},
        {AfdAspectRatio::FullFrame, "FullFrame"},
        {AfdAspectRatio::PillarBox, "PillarBox"},
        {AfdAspectRatio::LetterBox, "LetterBox"},
    },
    AfdAspectRatio::Unknown);
}  // namespace

const std::string& ToString(AfdAspectRatio value) noexcept {
    return converter.ToString(value);
}

AfdAspectRatio ToAfdAspectRatio(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<AfdAspectRatio>>& RowsOf(EnumTag<AfdAspectRatio>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
