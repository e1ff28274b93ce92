// plurex channel-guid make | read
#include "Commands.h"
#include "Output.h"

#include "PlurexData/channels/Guid.h"

#include <memory>
#include <string>

namespace PlurexTool {

namespace {

using ChannelGuid = Korv::Plurex::Data::Channels::Guid;

void AddChannelGuid(CLI::App& root, Options& options) {
    auto* channelGuid =
        root.add_subcommand("channel-guid", "Make and read channel GUIDs (type, index and machine serial)");
    channelGuid->require_subcommand(1);

    auto* make = channelGuid->add_subcommand("make", "Print the GUID of a channel");
    struct Values {
        int type = 0, index = 0;
        unsigned int serial = 0;
    };
    auto values = std::make_shared<Values>();
    make->add_option("--type", values->type, "Channel type")->required()->check(CLI::IsMember({0, 1}));
    make->add_option("--index", values->index, "Channel index (four digits are kept)")->required();
    make->add_option("--serial", values->serial, "Machine serial of the server")->required();
    Example(*make, "plurex channel-guid make --type 0 --index 12 --serial 123456");
    OnRun(*make, options, [&options, values] {
        const ChannelGuid guid(static_cast<ChannelGuid::Type>(values->type), values->index, values->serial);
        Print(options, nlohmann::ordered_json{{"guid", guid.ToString()}}, guid.ToString());
    });

    auto* read =
        channelGuid->add_subcommand("read", "Print the type, index and serial a channel GUID carries");
    auto text = std::make_shared<std::string>();
    read->add_option("TEXT", *text, "The channel GUID")->required();
    Example(*read, "plurex --json channel-guid read 00000000-0000-0001-0012-000000123456");
    OnRun(*read, options, [&options, text] {
        const ChannelGuid guid(ParseGuid(*text));
        const int type = static_cast<int>(guid.ChannelType());
        Print(options,
              nlohmann::ordered_json{
                  {"type", type}, {"index", guid.ChannelIndex()}, {"serial", guid.MachineSerial()}},
              Rows{{"type", std::to_string(type)},
                   {"index", std::to_string(guid.ChannelIndex())},
                   {"serial", std::to_string(guid.MachineSerial())}});
    });
}

}  // namespace

void AddChannelCommands(CLI::App& root, Options& options) {
    AddChannelGuid(root, options);
}

}  // namespace PlurexTool
