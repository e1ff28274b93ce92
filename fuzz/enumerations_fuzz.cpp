// Enumeration names from arbitrary text: every table answers as a linear search over its own names
// would (the name's value, else the default), whatever bytes, lengths and shared prefixes come in.
#include "PlurexData/data/Camera.h"
#include "PlurexData/data/UserProtect.h"
#include "PlurexData/data/VideoFormat.h"
#include "PlurexData/data/VideoStandard.h"
#include "PlurexData/data/clips/BlockSize.h"
#include "PlurexData/data/clips/Metadata.h"
#include "PlurexData/data/clips/VideoCompressionInfo.h"
#include "PlurexData/data/clips/VideoCompressionType.h"

#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

template <class E, E (*To)(const std::string&) noexcept>
void FuzzTable(const std::string& text, std::initializer_list<std::int32_t> values, E defaultValue) {
    E expected = defaultValue;
    for (std::int32_t value : values) {
        if (ToString(static_cast<E>(value)) == text) {
            expected = static_cast<E>(value);
            break;
        }
    }
    const E found = To(text);
    Check(found == expected);
    Check(found == defaultValue || ToString(found) == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    FuzzTable<Clips::Camera, Clips::ToCamera>(text, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16},
                                              Clips::Camera::Unknown);
    FuzzTable<Clips::UserProtect, Clips::ToUserProtect>(
        text, {0, 1, 2, 4, 8, 16, 32, 64, 128, 256, 65535, 65536}, Clips::UserProtect::Unknown);
    FuzzTable<Clips::VideoFormat, Clips::ToVideoFormat>(text, {0, 1, 2, 3, 4, 5},
                                                        Clips::VideoFormat::Unknown);
    FuzzTable<Clips::VideoStandard, Clips::ToVideoStandard>(text, {0, 1, 2}, Clips::VideoStandard::Unknown);
    FuzzTable<Essences::BlockSize, Essences::ToBlockSize>(text, {0, 1, 2, 3}, Essences::BlockSize::Unknown);
    FuzzTable<Essences::Metadata, Essences::ToMetadata>(text, {0, 1, 2, 3, 4, 5},
                                                        Essences::Metadata::Unknown);
    FuzzTable<Essences::VideoCompressionInfo, Essences::ToVideoCompressionInfo>(
        text, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, Essences::VideoCompressionInfo::Unknown);
    FuzzTable<Essences::VideoCompressionType, Essences::ToVideoCompressionType>(
        text, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21},
        Essences::VideoCompressionType::Unknown);
    return 0;
}
