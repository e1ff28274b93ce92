#include "PlurexData/data/clips/Type.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<Type> converter(
    {
        {Type::Intra, "Intra"},
        {Type::LongGop, "LongGop"},
        {Type::LowRes, "LowRes"},
        {Type::Unknown, "Unknown"},
    },
    Type::Unknown);
}  // namespace

const std::string& ToString(Type value) noexcept {
    return converter.ToString(value);
}

Type ToType(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<Type>>& RowsOf(EnumTag<Type>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
