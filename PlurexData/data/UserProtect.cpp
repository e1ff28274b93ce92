#include "PlurexData/data/UserProtect.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<UserProtect> converter(
    {
        {UserProtect::None, "None"},
        {UserProtect::Dorsel, "Dorsel"},
        {UserProtect::Brenix, "Brenix"},
        {UserProtect::Wexor, "Wexor"},
        {UserProtect::Morrit, "Morrit"},
        {UserProtect::Kep, "Kep"},
        {UserProtect::Qorvane, "Qorvane"},
        {UserProtect::Drovik, "Drovik"},
        {UserProtect::Pellawyn, "Pellawyn"},
        {UserProtect::Talvane, "Talvane"},
        {UserProtect::All, "All"},
        {UserProtect::Unknown, "Unknown"},
    },
    UserProtect::Unknown);
}  // namespace

const std::string& ToString(UserProtect value) noexcept {
    return converter.ToString(value);
}

UserProtect ToUserProtect(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<UserProtect>>& RowsOf(EnumTag<UserProtect>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
