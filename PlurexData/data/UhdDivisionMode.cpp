#include "PlurexData/data/UhdDivisionMode.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<UhdDivisionMode> converter(
    {
        {UhdDivisionMode::None, "None"},
        {UhdDivisionMode::Square, "Square"},
        {UhdDivisionMode::SampleInterleave, "SampleInterleave"},
        {UhdDivisionMode::Unknown, "Unknown"},
    },
    UhdDivisionMode::Unknown);
}  // namespace

const std::string& ToString(UhdDivisionMode value) noexcept {
    return converter.ToString(value);
}

UhdDivisionMode ToUhdDivisionMode(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<UhdDivisionMode>>& RowsOf(EnumTag<UhdDivisionMode>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
