#include "PlurexData/data/Rating.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<Rating> converter(
    {
        {Rating::None, "None"},
        {Rating::Poor, "Poor"},
        {Rating::Good, "Good"},
        {Rating::Best, "Best"},
        {Rating::Unknown, "Unknown"},
    },
    Rating::Unknown);
}  // namespace

const std::string& ToString(Rating value) noexcept {
    return converter.ToString(value);
}

Rating ToRating(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<Rating>>& RowsOf(EnumTag<Rating>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
