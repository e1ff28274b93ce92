#include "PlurexData/data/clips/VideoCompressionInfo.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<VideoCompressionInfo> converter(
    {
        {VideoCompressionInfo::IntraNone, "IntraNone"},
        {VideoCompressionInfo::IntraDnxHdUnknown, "IntraDnxHdUnknown"},
        {VideoCompressionInfo::IntraDnxHdLowBitrate, "IntraDnxHdLowBitrate"},
        {VideoCompressionInfo::IntraDnxHdHighBitrate, "IntraDnxHdHighBitrate"},
        {VideoCompressionInfo::IntraDnxHdHighBitrate10b, "IntraDnxHdHighBitrate10b"},
        {VideoCompressionInfo::IntraProResUnknown, "IntraProResUnknown"},
        {VideoCompressionInfo::IntraProResStandardQuality, "IntraProResStandardQuality"},
        {VideoCompressionInfo::IntraProResHighQuality, "IntraProResHighQuality"},
        {VideoCompressionInfo::IntraProResLt, "IntraProResLt"},
        {VideoCompressionInfo::LongGopNone, "LongGopNone"},
        {VideoCompressionInfo::LowResNone, "LowResNone"},
        {VideoCompressionInfo::Unknown, "Unknown"},
    },
    VideoCompressionInfo::Unknown);
}  // namespace

const std::string& ToString(VideoCompressionInfo value) noexcept {
    return converter.ToString(value);
}

VideoCompressionInfo ToVideoCompressionInfo(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<VideoCompressionInfo>>& RowsOf(EnumTag<VideoCompressionInfo>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
