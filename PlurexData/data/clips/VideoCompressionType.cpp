#include "PlurexData/data/clips/VideoCompressionType.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<VideoCompressionType> converter(
    {
        {VideoCompressionType::IntraMjpegRegular, "IntraMjpegRegular"},
        {VideoCompressionType::IntraMjpegInverted, "IntraMjpegInverted"},
        {VideoCompressionType::IntraMpegIField, "IntraMpegIField"},
        {VideoCompressionType::IntraMpegIFrame, "IntraMpegIFrame"},
        {VideoCompressionType::IntraDnxHd, "IntraDnxHd"},
        {VideoCompressionType::IntraProRes, "IntraProRes"},
        {VideoCompressionType::IntraDvcPro100IField, "IntraDvcPro100IField"},
        {VideoCompressionType::IntraDvcPro100IFrame, "IntraDvcPro100IFrame"},
        {VideoCompressionType::IntraDvcPro50, "IntraDvcPro50"},
        {VideoCompressionType::IntraAvc100IntraIField, "IntraAvc100IntraIField"},
        {VideoCompressionType::IntraAvc100IntraIFrame, "IntraAvc100IntraIFrame"},
        {VideoCompressionType::IntraAvc50IntraIField, "IntraAvc50IntraIField"},
        {VideoCompressionType::IntraAvc50IntraIFrame, "IntraAvc50IntraIFrame"},
        {VideoCompressionType::IntraXAvc100IField, "IntraXAvc100IField"},
        {VideoCompressionType::IntraXAvc100IFrame, "IntraXAvc100IFrame"},
        {VideoCompressionType::IntraXAvc50IField, "IntraXAvc50IField"},
        {VideoCompressionType::IntraXAvc50IFrame, "IntraXAvc50IFrame"},
        {VideoCompressionType::IntraXAvc300, "IntraXAvc300"},
        {VideoCompressionType::LongGopXdCam, "LongGopXdCam"},
        {VideoCompressionType::LowResMjpeg, "LowResMjpeg"},
        {VideoCompressionType::LowResH264, "LowResH264"},
        {VideoCompressionType::Unknown, "Unknown"},
    },
    VideoCompressionType::Unknown);
}  // namespace

const std::string& ToString(VideoCompressionType value) noexcept {
    return converter.ToString(value);
}

VideoCompressionType ToVideoCompressionType(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<VideoCompressionType>>& RowsOf(EnumTag<VideoCompressionType>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
