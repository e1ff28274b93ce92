#include "HexDump.h"

#include "Output.h"

#include <algorithm>
#include <cstdio>

namespace PlurexTool {

namespace {

int DigitValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

// A character as a message shows it: itself when printable, else its byte in hex.
std::string Shown(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F) {
        return std::string("'") + c + "'";
    }
    char text[8];
    std::snprintf(text, sizeof text, "0x%02X", byte);
    return text;
}

// Where the digits of a line start and end. In xxd's layout ("00000000: 0007 ...  text") they start
// after the offset's colon and end at the two spaces before the text column; any other line is digits
// throughout.
std::pair<std::size_t, std::size_t> DigitsOf(const std::string& line) {
    std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {0, 0};
    }
    std::size_t colon = first;
    while (colon < line.size() && DigitValue(line[colon]) >= 0) {
        ++colon;
    }
    if (colon == first || colon >= line.size() || line[colon] != ':') {
        return {0, line.size()};
    }
    const std::size_t start = colon + 1;
    const std::size_t text = line.find("  ", start + 1);
    return {start, text == std::string::npos ? line.size() : text};
}

}  // namespace

std::string ParseHexDump(const std::string& text) {
    std::string bytes;
    int high = -1;  // the first digit of a byte, while its second is awaited
    std::size_t digits = 0;
    std::size_t lineNumber = 0;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        std::string line = text.substr(start, end - start);
        start = end + 1;
        ++lineNumber;
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const auto [from, to] = DigitsOf(line);
        for (std::size_t i = from; i < to; ++i) {
            const char c = line[i];
            if (c == ' ' || c == '\t' || c == ',') {
                continue;
            }
            // "0x" and one or two digits: one byte, as a C array writes it ("0x7" too).
            if (c == '0' && i + 1 < to && (line[i + 1] == 'x' || line[i + 1] == 'X') && high < 0 &&
                (i == from || line[i - 1] == ' ' || line[i - 1] == '\t' || line[i - 1] == ',')) {
                std::size_t last = i + 2;  // one past the byte's digits
                int value = 0;
                while (last < to && last < i + 4 && DigitValue(line[last]) >= 0) {
                    value = value * 16 + DigitValue(line[last++]);
                }
                if (last == i + 2 || (last < to && DigitValue(line[last]) >= 0)) {
                    throw Failure("0x takes one or two hex digits",
                                  "line " + std::to_string(lineNumber) + ", column " + std::to_string(i + 1));
                }
                bytes += static_cast<char>(value);
                digits += 2;
                i = last - 1;
                continue;
            }
            const int value = DigitValue(c);
            if (value < 0) {
                throw Failure("not a hex digit: " + Shown(c),
                              "line " + std::to_string(lineNumber) + ", column " + std::to_string(i + 1));
            }
            ++digits;
            if (high < 0) {
                high = value;
            } else {
                bytes += static_cast<char>(high * 16 + value);
                high = -1;
            }
        }
    }
    if (high >= 0) {
        throw Failure("an odd number of hex digits (" + std::to_string(digits) + "): the last byte is cut short");
    }
    return bytes;
}

std::string ToHex(const unsigned char* bytes, std::size_t size) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * size);
    for (std::size_t i = 0; i < size; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

std::string FormatHexLines(const unsigned char* bytes, std::size_t size) {
    constexpr std::size_t BytesPerLine = 30;
    std::string text;
    for (std::size_t at = 0; at < size; at += BytesPerLine) {
        text += ToHex(bytes + at, std::min(BytesPerLine, size - at)) + '\n';
    }
    return text;
}

}  // namespace PlurexTool
