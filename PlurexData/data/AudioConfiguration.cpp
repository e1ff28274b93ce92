#include "PlurexData/data/AudioConfiguration.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<AudioConfiguration> converter(
    {
        {AudioConfiguration::NoAudio, "NoAudio"},
        {AudioConfiguration::Mono, "Mono"},
        {AudioConfiguration::Stereo, "Stereo"},
        {AudioConfiguration::DualStereo, "DualStereo"},
        {AudioConfiguration::EightMonos, "EightMonos"},
        {AudioConfiguration::SixteenMonos, "SixteenMonos"},
        {AudioConfiguration::TwentyFourMonos, "TwentyFourMonos"},
        {AudioConfiguration::ThirtyTwoMonos, "ThirtyTwoMonos"},
        {AudioConfiguration::Unknown, "Unknown"},
    },
    AudioConfiguration::Unknown);
}  // namespace

const std::string& ToString(AudioConfiguration value) noexcept {
    return converter.ToString(value);
}

AudioConfiguration ToAudioConfiguration(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<AudioConfiguration>>& RowsOf(EnumTag<AudioConfiguration>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
