#pragma once

// Charset names as the lookups by name compare them (ToCharset, ToMarkedCharset), in one place so
// that they cannot drift apart. Internal to the library.

#include <string>
#include <string_view>

namespace Korv::Plurex::Unicode::Detail {

// Lower case without the separators people spell differently ("ISO_8859-1", "iso88591", "UTF8").
inline std::string FoldCharsetName(std::string_view name) {
    std::string folded;
    for (const char c : name) {
        if (c == '-' || c == '_' || c == ' ') {
            continue;
        }
        folded += (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return folded;
}

}  // namespace Korv::Plurex::Unicode::Detail
