#include "PlurexData/data/VideoStandard.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<VideoStandard> converter(
    {
        {VideoStandard::Pal, "Pal"},
        {VideoStandard::Ntsc, "Ntsc"},
        {VideoStandard::Unknown, "Unknown"},
    },
    VideoStandard::Unknown);
}  // namespace

const std::string& ToString(VideoStandard value) noexcept {
    return converter.ToString(value);
}

VideoStandard ToVideoStandard(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<VideoStandard>>& RowsOf(EnumTag<VideoStandard>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
