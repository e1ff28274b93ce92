// plurex timecode check: whether calendar and clock fields build into a timecode, and its count.
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <charconv>
#include <memory>
#include <string>
#include <stdexcept>

namespace PlurexTool {

namespace {

using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;

// The whole of `text` as a number of type Number (decimal, optional minus sign).
template <class Number>
bool ParseNumber(const std::string& text, Number& number) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

// Whether `text` has the shape of a timecode text; its values are the builder's to judge.
bool HasTimecodeShape(const std::string& text) {
    try {
        TimeCode::Parse(text, Rate(1, 1));
    } catch (const std::invalid_argument&) {
        return false;
    } catch (const std::out_of_range&) {
    }
    return true;
}

// HH:MM:SS:FF as HH:MM:SS;FF, for --drop (the shape is checked: the frame's separator is at 8).
std::string Dropped(std::string time) {
    time[8] = ';';
    return time;
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
        ->check(Shape([](const std::string& text) { return HasTimecodeShape(text + " 00:00:00:00"); },
                      "YYYY-MM-DD"));
    check->add_option("TIME", values->time, "HH:MM:SS:FF, or HH:MM:SS;FF for drop-frame")
        ->required()
        ->check(Shape(HasTimecodeShape, "HH:MM:SS:FF or HH:MM:SS;FF"));
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
        long long numerator = 0, denominator = 0;
        ParseRate(values->rate, numerator, denominator);
        const std::string time = values->drop ? Dropped(values->time) : values->time;
        const TimeCode timeCode = TimeCode::Parse(values->date + " " + time, Rate(numerator, denominator));
        const bool drop = timeCode.IsDropFrame();
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
