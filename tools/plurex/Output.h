#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace PlurexTool {

// What the root command's options say, and the verb chosen. A verb's callback only records its action;
// main() runs it once standard output is in place (-o) and reports what it throws.
struct Options {
    bool json = false;
    std::string output;             // -o FILE; empty: standard output
    bool outputIsTerminal = false;  // standard output is a terminal that no -o chose: no place for bytes
    std::function<int()> action;    // the verb's work; returns the exit status
    int errorStatus = 1;            // the exit status of a failure (clip diff: 2, as cmp and diff)
};

// A failure of the tool's own or the library's, with where it happened: printed as "plurex: CONTEXT:
// MESSAGE" (or, under --json, as {"error": MESSAGE, "context": CONTEXT}) with exit status `status`.
class Failure : public std::runtime_error {
public:
    explicit Failure(const std::string& message, std::string context = std::string(), int status = 1)
        : std::runtime_error(message), context_(std::move(context)), status_(status) {}

    const std::string& Context() const noexcept { return context_; }
    int Status() const noexcept { return status_; }

private:
    std::string context_;
    int status_;
};

// Runs `work`; a failure inside it gains `context` in front of its own, and the library's exceptions
// (std::invalid_argument, std::out_of_range, ...) become Failures with `context`.
template <class Work>
decltype(auto) InContext(const std::string& context, Work&& work) {
    try {
        return work();
    } catch (const Failure& failure) {
        throw Failure(failure.what(),
                      failure.Context().empty() ? context : context + ": " + failure.Context(),
                      failure.Status());
    } catch (const std::exception& error) {
        throw Failure(error.what(), context);
    }
}

// Prints `failure` on standard error, as one line "plurex: CONTEXT: MESSAGE", or under --json (`json`)
// as {"error": MESSAGE, "context": CONTEXT or null}; returns its exit status.
int Report(bool json, const Failure& failure);

// Rows of a human-readable report: a label and its value, printed as aligned columns.
using Rows = std::vector<std::pair<std::string, std::string>>;

// JSON as the tool writes it: two-space indent (or, for one line of JSON Lines, none); bytes that are not
// UTF-8 (a clip text can hold any) replaced rather than failing.
std::string JsonText(const nlohmann::ordered_json& json, bool oneLine = false);

// Prints `json` under --json, else `text` followed by a line end.
void Print(const Options& options, const nlohmann::ordered_json& json, const std::string& text);
// Prints `json` under --json, else `rows` as aligned "label  value" lines.
void Print(const Options& options, const nlohmann::ordered_json& json, const Rows& rows);
// `rows` as aligned "label  value" lines.
void PrintRows(const Rows& rows);
// One line of JSON Lines: one item of many (records, GUIDs).
void PrintLine(const nlohmann::ordered_json& json);

std::string YesNo(bool value);

}  // namespace PlurexTool
