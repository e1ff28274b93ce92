#pragma once

#include <cstddef>
#include <string>

namespace PlurexTool {

// The bytes a hex dump shows, in any of the forms engineers paste from a capture:
// - plain digits, as xxd -p writes them ("0007202020..."), over any number of lines;
// - bytes apart, with spaces, tabs or commas between them ("00 07 20"), or each as 0x and one or two
//   digits ("0x00, 0x7,");
// - xxd's default layout ("00000000: 0007 2020 ...  ..  ascii"): the offset before the colon and the
//   text column after the two spaces are left out.
// Throws a Failure with its line and column ("line 3, column 7") for a character that is not a hex
// digit, and one naming the count for an odd number of digits.
std::string ParseHexDump(const std::string& text);

// `size` bytes as lower-case hex digits, two a byte, nothing between them.
std::string ToHex(const unsigned char* bytes, std::size_t size);

// `size` bytes as xxd -p writes them: lower-case digits, 30 bytes a line, each line ended.
std::string FormatHexLines(const unsigned char* bytes, std::size_t size);

}  // namespace PlurexTool
