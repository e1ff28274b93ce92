#include "PlurexData/data/Camera.h"

#include "PlurexData/data/StringAssociation.h"

namespace Korv::Plurex::Data::Clips {

namespace {
const StringAssociation<Camera> converter(
    {
        {Camera::A, "A"},
        {Camera::B, "B"},
        {Camera::C, "C"},
        {Camera::D, "D"},
        {Camera::E, "E"},
        {Camera::F, "F"},
        {Camera::G, "G"},
        {Camera::H, "H"},
        {Camera::I, "I"},
        {Camera::J, "J"},
        {Camera::K, "K"},
        {Camera::L, "L"},
        {Camera::X, "X"},
        {Camera::Y, "Y"},
        {Camera::Z, "Z"},
        {Camera::Unknown, "Unknown"},
    },
    Camera::Unknown);
}  // namespace

const std::string& ToString(Camera value) noexcept {
    return converter.ToString(value);
}

Camera ToCamera(const std::string& text) noexcept {
    return converter.ToType(text);
}

const std::vector<EnumRow<Camera>>& RowsOf(EnumTag<Camera>) noexcept {
    return converter.GetRows();
}

}  // namespace Korv::Plurex::Data::Clips
