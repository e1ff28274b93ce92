// plurex text convert | charsets
#include "Commands.h"
#include "Files.h"
#include "Output.h"

#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"

#include <cstddef>
#include <iostream>
#include <memory>
#include <string>

namespace PlurexTool {

namespace {

namespace Unicode = Korv::Plurex::Unicode;

// Transcoding takes the whole text at once; beyond this an endless input (/dev/zero) would take all
// memory.
constexpr std::size_t MaxTextSize = 64 * 1024 * 1024;

// The bytes of FILE, or of standard input for "-" or no file.
std::string ReadInput(const std::string& path) {
    if (path.empty() || path == "-") {
        return Input().ReadAll(MaxTextSize, "text convert");
    }
    return Input(path).ReadAll(MaxTextSize, "text convert");
}

void AddConvert(CLI::App& text) {
    struct Values {
        std::string from, to, file;
    };
    auto values = std::make_shared<Values>();
    auto* convert = text.add_subcommand(
        "convert",
        "Convert text between charsets, standard input to standard output unless FILE is given; at "
        "most " +
            std::to_string(MaxTextSize >> 20) + " MiB");
    convert->add_option("--from", values->from, "The charset of the input (see: plurex text charsets)")
        ->required();
    convert->add_option("--to", values->to, "The charset to write")->required();
    convert->add_option("FILE", values->file, "The file to read; standard input when left out or -");
    convert->callback([values] {
        // Both names are checked before any input is read.
        const Unicode::Charset from = Unicode::ToCharset(values->from);
        const Unicode::Charset to = Unicode::ToCharset(values->to);
        const std::string output = Unicode::Transcode(ReadInput(values->file), from, to);
        std::cout.write(output.data(), static_cast<std::streamsize>(output.size()));
    });
}

void AddCharsets(CLI::App& text, const Options& options) {
    auto* charsets = text.add_subcommand("charsets", "List the charsets and the other names they go by");
    charsets->callback([&options] {
        nlohmann::json json = nlohmann::json::array();
        Rows rows;
        for (const Unicode::Charset charset : Unicode::GetCharsets()) {
            const std::vector<std::string> aliases = Unicode::GetAliases(charset);
            std::string joined;
            for (const std::string& alias : aliases) {
                joined += (joined.empty() ? "" : ", ") + alias;
            }
            json.push_back({{"name", Unicode::ToString(charset)}, {"aliases", aliases}});
            rows.emplace_back(Unicode::ToString(charset), joined.empty() ? "-" : joined);
        }
        Print(options, json, rows);
    });
}

}  // namespace

void AddTextCommands(CLI::App& root, const Options& options) {
    auto* text = root.add_subcommand("text", "Convert text between the charsets of the devices");
    text->require_subcommand(1);
    AddConvert(*text);
    AddCharsets(*text, options);
}

}  // namespace PlurexTool
