// The clip and essence enumerations as enum.IntEnum classes made from the library's tables; the
// essence ones in the submodule `essences`, which keeps the two ArchiveStatus tables apart.
#include "Bindings.h"

#include "PlurexData/PlurexData.h"

namespace PlurexPython {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

void BindEnumerations(py::module_& module) {
    MakeTableEnum<Clips::AfdAspectRatio>(module, "AfdAspectRatio");
    MakeTableEnum<Clips::AlphaArchiveStatus>(module, "AlphaArchiveStatus");
    MakeTableEnum<Clips::ArchiveStatus>(module, "ArchiveStatus");
    MakeTableEnum<Clips::AudioConfiguration>(module, "AudioConfiguration");
    MakeTableEnum<Clips::Camera>(module, "Camera");
    MakeTableEnum<Clips::CodedFrameAspectRatio>(module, "CodedFrameAspectRatio");
    MakeTableEnum<Clips::FillAndKeyStatus>(module, "FillAndKeyStatus");
    MakeTableEnum<Clips::HdrProfile>(module, "HdrProfile");
    MakeTableEnum<Clips::PreferentialCamera>(module, "PreferentialCamera");
    MakeTableEnum<Clips::PrimaryTimecode>(module, "PrimaryTimecode");
    MakeTableEnum<Clips::Rating>(module, "Rating");
    MakeTableEnum<Clips::SourceEngine>(module, "SourceEngine");
    MakeTableEnum<Clips::TimecodeType>(module, "TimecodeType");
    MakeTableEnum<Clips::TrainStatus>(module, "TrainStatus");
    MakeTableEnum<Clips::UhdDivisionMode>(module, "UhdDivisionMode");
    MakeTableEnum<Clips::UserProtect>(module, "UserProtect");
    MakeTableEnum<Clips::VideoFormat>(module, "VideoFormat");
    MakeTableEnum<Clips::VideoStandard>(module, "VideoStandard");
    MakeTableEnum<Clips::WideColorGamut>(module, "WideColorGamut");

    py::module_ essences = module.def_submodule("essences", "The enumerations of a clip's essences.");
    MakeTableEnum<Essences::ArchiveStatus>(essences, "ArchiveStatus");
    MakeTableEnum<Essences::AudioCompressionType>(essences, "AudioCompressionType");
    MakeTableEnum<Essences::BlockSize>(essences, "BlockSize");
    MakeTableEnum<Essences::Metadata>(essences, "Metadata");
    MakeTableEnum<Essences::RecordingStatus>(essences, "RecordingStatus");
    MakeTableEnum<Essences::Type>(essences, "Type");
    MakeTableEnum<Essences::VideoCompressionInfo>(essences, "VideoCompressionInfo");
    MakeTableEnum<Essences::VideoCompressionType>(essences, "VideoCompressionType");
}

}  // namespace PlurexPython
