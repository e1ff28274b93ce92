// plurex guid new | parse, server-guid make | read, server-id, kep-id, umid
#include "Commands.h"
#include "Files.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <cstddef>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace PlurexTool {

namespace {

using Korv::Plurex::Data::Guid;
using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;
namespace Servers = Korv::Plurex::Data::Servers;

// Longer lines than this are no GUID; the limit keeps an endless input (/dev/zero) from taking all memory.
constexpr std::size_t MaxGuidLine = 64 * 1024;

// Prints the canonical form of `text`, or reports it at once, as main() reports the failure that ends
// a run, and goes on; false when it is no GUID.
bool ParseOne(const Options& options, const std::string& text, const std::string& context) {
    std::string canonical;
    try {
        canonical = ParseGuid(text).ToString();
    } catch (const Failure& failure) {
        std::cout.flush();  // what came before it is seen before it
        Report(options.json, Failure(failure.what(), context));
        return false;
    }
    if (options.json) {
        PrintLine({{"input", text}, {"guid", canonical}});
    } else {
        std::cout << canonical << '\n';
    }
    return true;
}

// One GUID a line; blank lines are skipped, and a line end of \r\n is taken whole.
bool ParseLines(const Options& options) {
    Input input("-");
    std::string line;
    std::size_t number = 0;
    bool good = true;
    while (input.ReadLine(line, MaxGuidLine, "guid parse")) {
        ++number;
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (line.find_first_not_of(" \t") != std::string::npos) {
            good = ParseOne(options, line, input.Name() + " line " + std::to_string(number)) && good;
        }
    }
    return good;
}

void AddGuid(CLI::App& root, Options& options) {
    auto* guid = root.add_subcommand("guid", "Make and parse GUIDs");
    guid->require_subcommand(1);

    auto* make = guid->add_subcommand("new", "Print new random (version 4) GUIDs, one a line");
    auto count = std::make_shared<unsigned int>(1);
    make->add_option("-n,--count", *count, "How many")->check(CLI::Range(1u, 1000000u));
    Example(*make, "plurex guid new -n 3");
    OnRun(*make, options, [&options, count] {
        for (unsigned int i = 0; i < *count; ++i) {
            const std::string one = Guid().ToString();
            if (options.json) {
                PrintLine({{"guid", one}});
            } else {
                std::cout << one << '\n';
            }
        }
    });

    auto* parse = guid->add_subcommand(
        "parse",
        "Print the canonical form of each GUID text; a malformed one is reported and the rest go on");
    auto texts = std::make_shared<std::vector<std::string>>();
    parse->add_option("TEXT", *texts,
                      "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx, either case; - or none: one a line from "
                      "standard input");
    Example(*parse,
            "plurex guid parse 00112233-4455-6677-8899-AABBCCDDEEFF\n"
            "plurex --json guid parse < guids.txt");
    OnRunWithStatus(*parse, options, [&options, texts] {
        bool good = true;
        if (texts->empty()) {
            good = ParseLines(options);
        }
        for (std::size_t i = 0; i < texts->size(); ++i) {
            const std::string& text = (*texts)[i];
            good = (text == "-" ? ParseLines(options)
                                : ParseOne(options, text, "argument " + std::to_string(i + 1))) &&
                   good;
        }
        return good ? 0 : 1;
    });
}

void AddServerGuid(CLI::App& root, Options& options) {
    auto* serverGuid =
        root.add_subcommand("server-guid", "Make and read server GUIDs (type and machine serial)");
    serverGuid->require_subcommand(1);

    auto* make = serverGuid->add_subcommand("make", "Print the GUID of a server");
    auto type = std::make_shared<int>(0);
    auto serial = std::make_shared<unsigned int>(Servers::Guid::NoMachineSerial);
    make->add_option("--type", *type, "Server type")->required()->check(CLI::IsMember({1, 2}));
    make->add_option("--serial", *serial, "Machine serial (none when left out)");
    Example(*make, "plurex server-guid make --type 1 --serial 123456");
    OnRun(*make, options, [&options, type, serial] {
        const Servers::Guid guid(static_cast<Servers::Guid::Type>(*type), *serial);
        Print(options, nlohmann::ordered_json{{"guid", guid.ToString()}}, guid.ToString());
    });

    auto* read =
        serverGuid->add_subcommand("read", "Print the type and machine serial that a server GUID carries");
    auto text = std::make_shared<std::string>();
    read->add_option("TEXT", *text, "The server GUID")->required();
    Example(*read, "plurex --json server-guid read 00000000-0000-0064-0140-000000123456");
    OnRun(*read, options, [&options, text] {
        const Servers::Guid guid(ParseGuid(*text));
        const int serverType = static_cast<int>(guid.ServerType());
        const unsigned int machineSerial = guid.MachineSerial();
        Print(options, nlohmann::ordered_json{{"type", serverType}, {"serial", machineSerial}},
              Rows{{"type", std::to_string(serverType)}, {"serial", std::to_string(machineSerial)}});
    });
}

void AddServerId(CLI::App& root, Options& options) {
    auto* serverId = root.add_subcommand("server-id", "Check a server number and print its text form");
    auto number = std::make_shared<int>(0);
    serverId->add_option("N", *number, "-1, or a positive multiple of 10")
        ->required()
        ->allow_extra_args(false);
    Example(*serverId, "plurex server-id 120");
    OnRun(*serverId, options, [&options, number] {
        const ServerId id(*number);
        Print(options, nlohmann::ordered_json{{"value", id.GetValue()}, {"text", id.ToString()}},
              id.ToString());
    });
}

void AddKepId(CLI::App& root, Options& options) {
    auto* kepId = root.add_subcommand("kep-id", "Check a clip's operator address and print its text form");
    struct Values {
        int page = 0, bank = 0, clip = 0, server = -1;
        char camera = 'A';
    };
    auto values = std::make_shared<Values>();
    kepId->add_option("--page", values->page, "1 to 10")->required();
    kepId->add_option("--bank", values->bank, "1 to 10")->required();
    kepId->add_option("--clip", values->clip, "1 to 10")->required();
    kepId->add_option("--camera", values->camera, "A to L, X, Y or Z")->capture_default_str();
    kepId->add_option("--server", values->server, "Server number (-1 for none)")->capture_default_str();
    Example(*kepId, "plurex kep-id --page 1 --bank 2 --clip 3 --camera B --server 10");
    OnRun(*kepId, options, [&options, values] {
        const KepId id(values->page, values->bank, values->clip, values->camera, ServerId(values->server));
        Print(options,
              nlohmann::ordered_json{{"position", id.GetPosition()},
                                     {"page", id.GetPage()},
                                     {"bank", id.GetBank()},
                                     {"clip", id.GetClip()},
                                     {"camera", std::string(1, id.GetCamera())},
                                     {"server", id.GetServerId().GetValue()},
                                     {"text", id.ToString()}},
              id.ToString());
    });
}

void AddUmId(CLI::App& root, Options& options) {
    auto* umid = root.add_subcommand("umid", "Tell what kind of clip a material identifier names");
    auto text = std::make_shared<std::string>();
    umid->add_option("TEXT", *text, "The identifier (8 characters; longer text is cut)")->required();
    Example(*umid, "plurex umid @PLS042!");
    OnRun(*umid, options, [&options, text] {
        const UmId id(*text);
        const int editNumber = UmId::GetUmIdEditNumber(id);
        const nlohmann::ordered_json json{{"umid", id.GetUmId()},
                                          {"empty", UmId::IsNullOrEmpty(id)},
                                          {"virtual", UmId::IsVirtualClip(id)},
                                          {"white", UmId::IsWhiteClip(id)},
                                          {"black", UmId::IsBlackClip(id)},
                                          {"pattern", UmId::IsPatternClip(id)},
                                          {"macro", UmId::IsMacroClip(id)},
                                          {"editNumber", editNumber}};
        Print(options, json,
              Rows{{"umid", std::string("\"") + id.GetUmId() + "\""},
                   {"empty", YesNo(UmId::IsNullOrEmpty(id))},
                   {"virtual", YesNo(UmId::IsVirtualClip(id))},
                   {"white", YesNo(UmId::IsWhiteClip(id))},
                   {"black", YesNo(UmId::IsBlackClip(id))},
                   {"pattern", YesNo(UmId::IsPatternClip(id))},
                   {"macro", YesNo(UmId::IsMacroClip(id))},
                   {"edit number", std::to_string(editNumber)}});
    });
}

}  // namespace

Korv::Plurex::Data::Guid ParseGuid(const std::string& text) {
    const std::optional<Guid> guid = Guid::TryParse(text);
    if (!guid) {
        throw Failure("not a GUID: " + text);
    }
    return *guid;
}

void AddIdentifierCommands(CLI::App& root, Options& options) {
    AddGuid(root, options);
    AddServerGuid(root, options);
    AddServerId(root, options);
    AddKepId(root, options);
    AddUmId(root, options);
}

}  // namespace PlurexTool
