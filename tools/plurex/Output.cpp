#include "Output.h"

#include <algorithm>
#include <iostream>

namespace PlurexTool {

namespace {
// Text fields may hold bytes that are not UTF-8; JSON output replaces them rather than failing.
std::string Dump(const nlohmann::json& json) {
    return json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace);
}
}  // namespace

void Print(const Options& options, const nlohmann::json& json, const std::string& text) {
    if (options.json) {
        std::cout << Dump(json) << '\n';
    } else {
        std::cout << text << '\n';
    }
}

void Print(const Options& options, const nlohmann::json& json, const Rows& rows) {
    if (options.json) {
        std::cout << Dump(json) << '\n';
        return;
    }
    std::size_t width = 0;
    for (const auto& row : rows) {
        width = std::max(width, row.first.size());
    }
    for (const auto& row : rows) {
        std::cout << row.first << std::string(width - row.first.size() + 2, ' ') << row.second << '\n';
    }
}

std::string YesNo(bool value) {
    return value ? "yes" : "no";
}

}  // namespace PlurexTool
