// plurex timecode check: whether calendar and clock fields build into a timecode, and its count.
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <charconv>
#include <memory>
#include <string>
#include <vector>

namespace PlurexTool {

namespace {

using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;

// The whole of `text` as a number of type Number (decimal, optional minus sign).
template <class Number>
bool ParseNumber(const std::string& text, Number& number) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

// `text` cut at each of `separators` in turn, each part a number; false if the shape differs.
bool ParseFields(const std::string& text, const std::string& separators, std::vector<int>& fields) {
    fields.clear();
    std::size_t start = 0;
    for (char separator : separators) {
        const std::size_t at = text.find(separator, start);
        if (at == std::string::npos) {
            return false;
        }
        fields.emplace_back();
        if (!ParseNumber(text.substr(start, at - start), fields.back())) {
            return false;
        }
        start = at + 1;
    }
    fields.emplace_back();
    return ParseNumber(text.substr(start), fields.back());
}

bool ParseDate(const std::string& text, std::vector<int>& fields) {
    return ParseFields(text, "--", fields);
}

// HH:MM:SS:FF, or HH:MM:SS;FF for a drop-frame timecode.
bool ParseTime(const std::string& text, std::vector<int>& fields, bool& drop) {
    const std::size_t last = text.find_last_of(":;");
    if (last == std::string::npos) {
        return false;
    }
    drop = text[last] == ';';
    std::string colons = text;
    colons[last] = ':';
    return ParseFields(colons, ":::", fields);
}

bool ParseRate(const std::string& text, long long& numerator, long long& denominator) {
    const std::size_t slash = text.find('/');
    denominator = 1;
    if (slash == std::string::npos) {
        return ParseNumber(text, numerator);
    }
    return ParseNumber(text.substr(0, slash), numerator) && ParseNumber(text.substr(slash + 1), denominator);
}

CLI::Validator Shape(bool (*parse)(const std::string&), const std::string& form) {
    return CLI::Validator(
        [parse, form](std::string& text) {
            return parse(text) ? std::string() : "expected " + form + ": " + text;
        },
        form);
}

void AddCheck(CLI::App& timecode, const Options& options) {
    struct Values {
        std::string date, time, rate;
        bool drop = false;
    };
    auto values = std::make_shared<Values>();
    auto* check = timecode.add_subcommand(
        "check",
        "Check that a date and time build into a timecode, and print its count of samples since 1900");
    check->add_option("DATE", values->date, "YYYY-MM-DD")
        ->required()
        ->check(Shape(
            [](const std::string& text) {
                std::vector<int> fields;
                return ParseDate(text, fields);
            },
            "YYYY-MM-DD"));
    check->add_option("TIME", values->time, "HH:MM:SS:FF, or HH:MM:SS;FF for drop-frame")
        ->required()
        ->check(Shape(
            [](const std::string& text) {
                std::vector<int> fields;
                bool drop = false;
                return ParseTime(text, fields, drop);
            },
            "HH:MM:SS:FF or HH:MM:SS;FF"));
    check->add_option("--rate", values->rate, "Samples per second, N or N/D")
        ->required()
        ->check(Shape(
            [](const std::string& text) {
                long long numerator = 0, denominator = 0;
                return ParseRate(text, numerator, denominator);
            },
            "N or N/D"));
    check->add_flag("--drop", values->drop, "Drop-frame timecode (as ;FF does)");
    check->callback([&options, values] {
        std::vector<int> date, time;
        bool semicolon = false;
        long long numerator = 0, denominator = 0;
        ParseDate(values->date, date);
        ParseTime(values->time, time, semicolon);
        ParseRate(values->rate, numerator, denominator);
        const bool drop = values->drop || semicolon;
        const TimeCodeBuilder builder(date[0], date[1], date[2], time[0], time[1], time[2], time[3],
                                      Rate(numerator, denominator), drop);
        builder.IsValidToBuildWithexception();
        // The builder counts a negative frame back into the previous second; no timecode is written so.
        // Checked after the builder's own checks, whose messages keep their order.
        if (time[3] < 0) {
            throw Failure("frame " + std::to_string(time[3]) + " must not be negative");
        }
        const TimeCode timeCode = builder.Build();
        Print(options,
              nlohmann::json{{"valid", true},
                             {"total_sample", timeCode.GetTotalSample()},
                             {"rate", std::to_string(numerator) + "/" + std::to_string(denominator)},
                             {"drop", drop}},
              "valid\ntotal sample " + std::to_string(timeCode.GetTotalSample()));
    });
}

}  // namespace

void AddTimecodeCommands(CLI::App& root, const Options& options) {
    auto* timecode = root.add_subcommand("timecode", "Check timecodes as the library builds them");
    timecode->require_subcommand(1);
    AddCheck(*timecode, options);
}

}  // namespace PlurexTool
