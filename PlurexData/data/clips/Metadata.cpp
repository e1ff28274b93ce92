#include "PlurexData/data/clips/Metadata.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<Metadata> converter(
    {
        {Metadata::IntraEncodingBitLengthUnknown, "IntraEncodingBitLengthUnknown"},
        {Metadata::IntraEncodingBitLength8, "IntraEncodingBitLength8"},
        {Metadata::IntraEncodingBitLength10, "IntraEncodingBitLength10"},
        {Metadata::LongGopNone, "LongGopNone"},
        {Metadata::LowResNone, "LowResNone"},
        {Metadata::Unknown, "Unknown"},
    },
    Metadata::Unknown);
}  // namespace

const std::string& ToString(Metadata value) noexcept {
    return converter.ToString(value);
}

Metadata ToMetadata(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<Metadata>>& RowsOf(EnumTag<Metadata>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
