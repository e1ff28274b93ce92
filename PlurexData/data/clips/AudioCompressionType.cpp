#include "PlurexData/data/clips/AudioCompressionType.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<AudioCompressionType> converter(
    {
        {AudioCompressionType::IntraNone, "IntraNone"},
        {AudioCompressionType::LongGopNone, "LongGopNone"},
        {AudioCompressionType::LowResMpeg1Layer2, "LowResMpeg1Layer2"},
        {AudioCompressionType::Unknown, "Unknown"},
    },
    AudioCompressionType::Unknown);
}  // namespace

const std::string& ToString(AudioCompressionType value) noexcept {
    return converter.ToString(value);
}

AudioCompressionType ToAudioCompressionType(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<AudioCompressionType>>& RowsOf(EnumTag<AudioCompressionType>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
