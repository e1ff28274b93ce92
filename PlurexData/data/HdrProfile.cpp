#include "PlurexData/data/HdrProfile.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<HdrProfile> converter(
    {
        {HdrProfile::Sdr, "Sdr"},
        {HdrProfile::Pq, "Pq"},
        {HdrProfile::Hlg, "Hlg"},
        {HdrProfile::SLog3, "SLog3"},
        {HdrProfile::VLog, "VLog"},
        {HdrProfile::Unknown, "Unknown"},
    },
    HdrProfile::Unknown);
}  // namespace

const std::string& ToString(HdrProfile value) noexcept {
    return converter.ToString(value);
}

HdrProfile ToHdrProfile(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<HdrProfile>>& RowsOf(EnumTag<HdrProfile>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
