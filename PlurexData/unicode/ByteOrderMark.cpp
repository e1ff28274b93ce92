#include "PlurexData/unicode/ByteOrderMark.h"

#include "PlurexData/unicode/detail/CharsetName.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Korv::Plurex::Unicode {

namespace {

constexpr std::string_view Utf8Mark("\xEF\xBB\xBF", 3);
constexpr std::string_view Utf16LEMark("\xFF\xFE", 2);
constexpr std::string_view Utf16BEMark("\xFE\xFF", 2);
constexpr std::string_view Utf32LEMark("\xFF\xFE\x00\x00", 4);
constexpr std::string_view Utf32BEMark("\x00\x00\xFE\xFF", 4);

bool StartsWith(std::string_view text, std::string_view prefix) noexcept {
    return text.substr(0, prefix.size()) == prefix;
}

ByteOrderMark Read(std::string_view input, Charset little, std::string_view littleMark, Charset big,
                   std::string_view bigMark) noexcept {
    if (StartsWith(input, littleMark)) {
        return {little, littleMark.size()};
    }
    if (StartsWith(input, bigMark)) {
        return {big, bigMark.size()};
    }
    return {big, 0};
}

}  // namespace

std::optional<Charset> ToMarkedCharset(std::string_view name) {
    const std::string folded = Detail::FoldCharsetName(name);
    if (folded == "utf16") {
        return Charset::Utf16BE;
    }
    if (folded == "utf32") {
        return Charset::Utf32BE;
    }
    return std::nullopt;
}

ByteOrderMark ReadByteOrderMark(std::string_view input, Charset charset) {
    switch (charset) {
        case Charset::Utf16LE:
        case Charset::Utf16BE:
            return Read(input, Charset::Utf16LE, Utf16LEMark, Charset::Utf16BE, Utf16BEMark);
        case Charset::Utf32LE:
        case Charset::Utf32BE:
            return Read(input, Charset::Utf32LE, Utf32LEMark, Charset::Utf32BE, Utf32BEMark);
        default:
            throw std::invalid_argument("Not a UTF-16 or UTF-32 charset: " + ToString(charset));
    }
}

std::string_view GetByteOrderMark(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
        case Charset::CodePage437:
        case Charset::CodePage28591:
        case Charset::CodePage28592:
            return {};
        case Charset::Utf8:
            return Utf8Mark;
        case Charset::Utf16LE:
            return Utf16LEMark;
        case Charset::Utf16BE:
            return Utf16BEMark;
        case Charset::Utf32LE:
            return Utf32LEMark;
        case Charset::Utf32BE:
            return Utf32BEMark;
    }
    throw std::invalid_argument("Unknown charset: " + std::to_string(static_cast<std::int32_t>(charset)));
}

}  // namespace Korv::Plurex::Unicode
