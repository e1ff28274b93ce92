#include "PlurexData/data/CodedFrameAspectRation.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<CodedFrameAspectRatio> converter(
    {
        {CodedFrameAspectRatio::Unknown, "Unknown"},
        {CodedFrameAspectRatio::FourThirds, "FourThirds"},
        {CodedFrameAspectRatio::SixteenNinths, "SixteenNinths"},
    },
    CodedFrameAspectRatio::Unknown);
}  // namespace

const std::string& ToString(CodedFrameAspectRatio value) noexcept {
    return converter.ToString(value);
}

CodedFrameAspectRatio ToCodedFrameAspectRatio(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<CodedFrameAspectRatio>>& RowsOf(EnumTag<CodedFrameAspectRatio>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
