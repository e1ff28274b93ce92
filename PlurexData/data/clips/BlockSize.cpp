#include "PlurexData/data/clips/BlockSize.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips::Essences {

namespace {
const StringAssociation<BlockSize> converter(
    {
        {BlockSize::MB2, "MB2"},
        {BlockSize::MB8, "MB8"},
        {BlockSize::MB16, "MB16"},
        {BlockSize::Unknown, "Unknown"},
    },
    BlockSize::Unknown);
}  // namespace

const std::string& ToString(BlockSize value) noexcept {
    return converter.ToString(value);
}

BlockSize ToBlockSize(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<BlockSize>>& RowsOf(EnumTag<BlockSize>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips::Essences
