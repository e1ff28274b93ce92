#include "PlurexData/data/PrimaryTimecode.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<PrimaryTimecode> converter(
    {
        {PrimaryTimecode::NotSet, "NotSet"},
        {PrimaryTimecode::Tod, "Tod"},
        {PrimaryTimecode::User, "User"},
        {PrimaryTimecode::Unknown, "Unknown"},
    },
    PrimaryTimecode::Unknown);
}  // namespace

const std::string& ToString(PrimaryTimecode value) noexcept {
    return converter.ToString(value);
}

PrimaryTimecode ToPrimaryTimecode(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<PrimaryTimecode>>& RowsOf(EnumTag<PrimaryTimecode>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
