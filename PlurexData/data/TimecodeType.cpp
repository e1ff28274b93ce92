#include "PlurexData/data/TimecodeType.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<TimecodeType> converter(
    {
        {TimecodeType::AnalogLtc, "AnalogLtc"},
        {TimecodeType::AtcLtc, "AtcLtc"},
        {TimecodeType::AtcVitc, "AtcVitc"},
        {TimecodeType::Unknown, "Unknown"},
    },
    TimecodeType::Unknown);
}  // namespace

const std::string& ToString(TimecodeType value) noexcept {
    return converter.ToString(value);
}

TimecodeType ToTimecodeType(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<TimecodeType>>& RowsOf(EnumTag<TimecodeType>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
