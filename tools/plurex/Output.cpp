#include "Output.h"

#include <algorithm>
#include <iostream>

namespace PlurexTool {

std::string JsonText(const nlohmann::ordered_json& json, bool oneLine) {
    return json.dump(oneLine ? -1 : 2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

int Report(bool json, const Failure& failure) {
    if (json) {
        nlohmann::ordered_json context = nullptr;
        if (!failure.Context().empty()) {
            context = failure.Context();
        }
        std::cerr << JsonText({{"error", failure.what()}, {"context", context}}, true) << '\n';
    } else {
        std::cerr << "plurex: " << (failure.Context().empty() ? "" : failure.Context() + ": ") << failure.what()
                  << '\n';
    }
    return failure.Status();
}

void Print(const Options& options, const nlohmann::ordered_json& json, const std::string& text) {
    std::cout << (options.json ? JsonText(json) : text) << '\n';
}

void Print(const Options& options, const nlohmann::ordered_json& json, const Rows& rows) {
    if (options.json) {
        std::cout << JsonText(json) << '\n';
    } else {
        PrintRows(rows);
    }
}

void PrintRows(const Rows& rows) {
    std::size_t width = 0;
    for (const auto& row : rows) {
        width = std::max(width, row.first.size());
    }
    for (const auto& row : rows) {
        std::cout << row.first << std::string(width - row.first.size() + 2, ' ') << row.second << '\n';
    }
}

void PrintLine(const nlohmann::ordered_json& json) {
    std::cout << JsonText(json, true) << '\n';
}

std::string YesNo(bool value) {
    return value ? "yes" : "no";
}

}  // namespace PlurexTool
