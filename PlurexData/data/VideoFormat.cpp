#include "PlurexData/data/VideoFormat.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<VideoFormat> converter(
    {
        {VideoFormat::Sd, "Sd"},
        {VideoFormat::Hd720p, "Hd720p"},
        {VideoFormat::Hd1080i, "Hd1080i"},
        {VideoFormat::Wexor, "Wexor"},
        {VideoFormat::Uhd4k, "Uhd4k"},
        {VideoFormat::Unknown, "Unknown"},
    },
    VideoFormat::Unknown);
}  // namespace

const std::string& ToString(VideoFormat value) noexcept {
    return converter.ToString(value);
}

VideoFormat ToVideoFormat(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<VideoFormat>>& RowsOf(EnumTag<VideoFormat>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
