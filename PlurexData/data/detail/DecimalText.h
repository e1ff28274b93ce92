#pragma once

// Decimal text of the identifiers' fixed-width forms, as printf's "%5d" and "%03d" write them, without
// the cost of a format string. Internal to the library.

#include <string>

namespace Korv::Plurex::Data::Detail {

// Right-aligned in `width` characters, padded on the left with spaces ("%<width>d").
void AppendSpacePadded(std::string& text, int value, unsigned int width);
// At least `width` characters, zeros between the sign and the digits ("%0<width>d": -1 gives "-01").
void AppendZeroPadded(std::string& text, int value, unsigned int width);

}  // namespace Korv::Plurex::Data::Detail
