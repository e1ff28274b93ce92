// plurex guid | server-guid | server-id | kep-id | umid
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <memory>
#include <optional>
#include <string>

namespace PlurexTool {

namespace {

using Korv::Plurex::Data::Guid;
using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;
namespace Servers = Korv::Plurex::Data::Servers;

void AddGuid(CLI::App& root, const Options& options) {
    auto* guid = root.add_subcommand("guid", "Make and parse GUIDs");
    guid->require_subcommand(1);

    auto* make = guid->add_subcommand("new", "Print new random (version 4) GUIDs");
    auto count = std::make_shared<unsigned int>(1);
    make->add_option("-n,--count", *count, "How many")->check(CLI::Range(1u, 1000000u));
    make->callback([&options, count] {
        nlohmann::json json = nlohmann::json::array();
        std::string text;
        for (unsigned int i = 0; i < *count; ++i) {
            const std::string one = Guid().ToString();
            json.push_back(one);
            text += (i == 0 ? "" : "\n") + one;
        }
        Print(options, json, text);
    });

    auto* parse = guid->add_subcommand("parse", "Print the canonical form of a GUID text");
    auto text = std::make_shared<std::string>();
    parse->add_option("TEXT", *text, "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx, either case")->required();
    parse->callback([&options, text] {
        const std::string canonical = ParseGuid(*text).ToString();
        Print(options, nlohmann::json{{"guid", canonical}}, canonical);
    });
}

void AddServerGuid(CLI::App& root, const Options& options) {
    auto* serverGuid =
        root.add_subcommand("server-guid", "Make and read server GUIDs (type and machine serial)");
    serverGuid->require_subcommand(1);

    auto* make = serverGuid->add_subcommand("make", "Print the GUID of a server");
    auto type = std::make_shared<int>(0);
    auto serial = std::make_shared<unsigned int>(Servers::Guid::NoMachineSerial);
    make->add_option("--type", *type, "Server type")->required()->check(CLI::IsMember({1, 2}));
    make->add_option("--serial", *serial, "Machine serial (none when left out)");
    make->callback([&options, type, serial] {
        const Servers::Guid guid(static_cast<Servers::Guid::Type>(*type), *serial);
        Print(options, nlohmann::json{{"guid", guid.ToString()}}, guid.ToString());
    });

    auto* read =
        serverGuid->add_subcommand("read", "Print the type and machine serial that a server GUID carries");
    auto text = std::make_shared<std::string>();
    read->add_option("TEXT", *text, "The server GUID")->required();
    read->callback([&options, text] {
        const Servers::Guid guid(ParseGuid(*text));
        const int serverType = static_cast<int>(guid.ServerType());
        const unsigned int machineSerial = guid.MachineSerial();
        Print(options, nlohmann::json{{"type", serverType}, {"serial", machineSerial}},
              Rows{{"type", std::to_string(serverType)}, {"serial", std::to_string(machineSerial)}});
    });
}

void AddServerId(CLI::App& root, const Options& options) {
    auto* serverId = root.add_subcommand("server-id", "Check a server number and print its text form");
    auto number = std::make_shared<int>(0);
    serverId->add_option("N", *number, "-1, or a positive multiple of 10")
        ->required()
        ->allow_extra_args(false);
    serverId->callback([&options, number] {
        const ServerId id(*number);
        Print(options, nlohmann::json{{"value", id.GetValue()}, {"text", id.ToString()}}, id.ToString());
    });
}

void AddKepId(CLI::App& root, const Options& options) {
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
    kepId->callback([&options, values] {
        const KepId id(values->page, values->bank, values->clip, values->camera, ServerId(values->server));
        Print(options,
              nlohmann::json{{"position", id.GetPosition()},
                             {"page", id.GetPage()},
                             {"bank", id.GetBank()},
                             {"clip", id.GetClip()},
                             {"camera", std::string(1, id.GetCamera())},
                             {"server", id.GetServerId().GetValue()},
                             {"text", id.ToString()}},
              id.ToString());
    });
}

void AddUmId(CLI::App& root, const Options& options) {
    auto* umid = root.add_subcommand("umid", "Tell what kind of clip a material identifier names");
    auto text = std::make_shared<std::string>();
    umid->add_option("TEXT", *text, "The identifier (8 characters; longer text is cut)")->required();
    umid->callback([&options, text] {
        const UmId id(*text);
        const int editNumber = UmId::GetUmIdEditNumber(id);
        const nlohmann::json json{{"umid", id.GetUmId()},
                                  {"empty", UmId::IsNullOrEmpty(id)},
                                  {"virtual", UmId::IsVirtualClip(id)},
                                  {"white", UmId::IsWhiteClip(id)},
                                  {"black", UmId::IsBlackClip(id)},
                                  {"pattern", UmId::IsPatternClip(id)},
                                  {"macro", UmId::IsMacroClip(id)},
                                  {"edit_number", editNumber}};
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

void AddIdentifierCommands(CLI::App& root, const Options& options) {
    AddGuid(root, options);
    AddServerGuid(root, options);
    AddServerId(root, options);
    AddKepId(root, options);
    AddUmId(root, options);
}

}  // namespace PlurexTool
