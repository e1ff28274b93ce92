// plurex timecode check | decode: timecodes as the library builds them from their fields, and splits
// them back from a count or from the timecode word of a clip record.
#include "ClipJson.h"
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <cctype>
#include <charconv>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace PlurexTool {

namespace {

using Korv::Plurex::Data::Clips::Serializer;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;

// The whole of `text` as a number of type Number (optional minus sign), in `base`.
template <class Number>
bool ParseNumber(const std::string& text, Number& number, int base = 10) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base);
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

Rate ToRate(const std::string& text) {
    long long numerator = 0, denominator = 0;
    ParseRate(text, numerator, denominator);
    return Rate(numerator, denominator);
}

std::string RateText(const Rate& rate) {
    return std::to_string(rate.GetNumerator()) + "/" + std::to_string(rate.GetDenominator());
}

// A timecode word: up to 16 hexadecimal digits, with or without 0x. Only the digits reach from_chars,
// which would otherwise take a sign.
bool ParseWord(std::string text, std::uint64_t& word) {
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        text.erase(0, 2);
    }
    for (const char c : text) {
        if (std::isxdigit(static_cast<unsigned char>(c)) == 0) {
            return false;
        }
    }
    return text.size() <= 16 && ParseNumber(text, word, 16);
}

CLI::Validator Shape(bool (*parse)(const std::string&), const std::string& form) {
    return CLI::Validator(
        [parse, form](std::string& text) {
            return parse(text) ? std::string() : "expected " + form + ": " + text;
        },
        form);
}

CLI::Validator RateShape() {
    return Shape(
        [](const std::string& text) {
            long long numerator = 0, denominator = 0;
            return ParseRate(text, numerator, denominator);
        },
        "N or N/D");
}

void AddCheck(CLI::App& timecode, Options& options) {
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
    check->add_option("--rate", values->rate, "Samples per second, N or N/D")->required()->check(RateShape());
    check->add_flag("--drop", values->drop, "Drop-frame timecode (as ;FF does)");
    Example(*check,
            "plurex timecode check 2024-07-14 20:31:00:04 --rate 60 --drop\n"
            "plurex --json timecode check 2100-02-29 00:00:00:00 --rate 50");
    OnRunWithStatus(*check, options, [&options, values] {
        const Rate rate = ToRate(values->rate);
        const std::string time = values->drop ? Dropped(values->time) : values->time;
        long long totalSample = 0;
        bool drop = false;
        try {
            const TimeCode timeCode = TimeCode::Parse(values->date + " " + time, rate);
            totalSample = timeCode.GetTotalSample();
            drop = timeCode.IsDropFrame();
        } catch (const std::logic_error& error) {  // the builder's out_of_range, Parse's invalid_argument
            if (!options.json) {
                throw;
            }
            // Under --json an invalid timecode is an answer, not a failure of the tool: a script
            // reads it where it reads a valid one.
            Print(options, nlohmann::ordered_json{{"valid", false}, {"message", error.what()}}, "");
            return 1;
        }
        Print(options,
              nlohmann::ordered_json{
                  {"valid", true}, {"count", totalSample}, {"rate", RateText(rate)}, {"drop", drop}},
              "valid\ntotal sample " + std::to_string(totalSample));
        return 0;
    });
}

void AddDecode(CLI::App& timecode, Options& options) {
    struct Values {
        long long count = 0;
        std::string rate, word;
        bool drop = false;
    };
    auto values = std::make_shared<Values>();
    auto* decode = timecode.add_subcommand(
        "decode",
        "Print the date and time of a count of samples since 1900, or of a clip record's timecode word");
    auto* count = decode->add_option("COUNT", values->count, "Samples since 1900-01-01 00:00:00:00");
    auto* rate =
        decode->add_option("--rate", values->rate, "Samples per second, N or N/D")->check(RateShape());
    auto* drop = decode->add_flag("--drop", values->drop, "Drop-frame timecode");
    auto* word = decode->add_option(
        "--word", values->word,
        "The 64-bit timecode word of a clip record, in hexadecimal (0x optional): count in bits 0 to 61, "
        "60/1 for bit 62 (else 50/1), drop-frame for bit 63");
    word->check(Shape(
        [](const std::string& text) {
            std::uint64_t parsed = 0;
            return ParseWord(text, parsed);
        },
        "up to 16 hexadecimal digits"));
    count->needs(rate)->excludes(word);
    rate->needs(count);
    drop->needs(count);
    word->excludes(rate)->excludes(drop);
    // One of the two forms is needed, which no option says on its own.
    decode->parse_complete_callback([count, word] {
        if (count->count() == 0 && word->count() == 0) {
            throw CLI::RequiredError("COUNT or --word");
        }
    });
    Example(*decode,
            "plurex timecode decode 235562872932 --rate 60 --drop\n"
            "plurex --json timecode decode --word 0xc0000036d8a43064");
    OnRun(*decode, options, [&options, values] {
        TimeCode timeCode(Rate(0, 0), 0);
        if (values->word.empty()) {
            timeCode = TimeCode(ToRate(values->rate), values->count, values->drop);
        } else {
            std::uint64_t bits = 0;
            ParseWord(values->word, bits);
            timeCode = Serializer::FromTimecodeWord(bits);
        }
        // The builder says why a count has no date; ToString would print it without one.
        TimeCodeBuilder::FromTimeCode(timeCode);
        const std::string text = timeCode.ToString();
        nlohmann::ordered_json json{{"rate", RateText(timeCode.GetRate())},
                                    {"drop", timeCode.IsDropFrame()},
                                    {"count", timeCode.GetTotalSample()}};
        json.update(TimecodeDateJson(timeCode));
        json["text"] = text;
        Print(options, json,
              text);
    });
}

}  // namespace

void AddTimecodeCommands(CLI::App& root, Options& options) {
    auto* timecode = root.add_subcommand("timecode", "Check and decode timecodes as the library builds them");
    timecode->require_subcommand(1);
    AddCheck(*timecode, options);
    AddDecode(*timecode, options);
}

}  // namespace PlurexTool
