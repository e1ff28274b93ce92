#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace PlurexTool {

struct Options {
    bool json = false;
};

// A failure of the tool's own (not the library's): printed as its message, exit status 1.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Rows of a human-readable report: a label and its value, printed as aligned columns.
using Rows = std::vector<std::pair<std::string, std::string>>;

// Prints `json` under --json, else `text` followed by a line end.
void Print(const Options& options, const nlohmann::json& json, const std::string& text);
// Prints `json` under --json, else `rows` as aligned "label  value" lines.
void Print(const Options& options, const nlohmann::json& json, const Rows& rows);

std::string YesNo(bool value);

}  // namespace PlurexTool
