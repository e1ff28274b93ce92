#include "PlurexData/data/SourceEngine.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<SourceEngine> converter(
    {
        {SourceEngine::None, "None"},
        {SourceEngine::EditRec, "EditRec"},
        {SourceEngine::Timeline, "Timeline"},
        {SourceEngine::Derush, "Derush"},
        {SourceEngine::Unknown, "Unknown"},
    },
    SourceEngine::Unknown);
}  // namespace

const std::string& ToString(SourceEngine value) noexcept {
    return converter.ToString(value);
}

SourceEngine ToSourceEngine(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<SourceEngine>>& RowsOf(EnumTag<SourceEngine>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
