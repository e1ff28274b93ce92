#pragma once

#include "PlurexData/data/Guid.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace PlurexTool {

struct Options;

// Each area of the library adds its verbs to the root command. A verb's callback records its action in
// Options::action, which main() runs; it throws the library's exception or a Failure.
void AddIdentifierCommands(CLI::App& root, Options& options);
void AddChannelCommands(CLI::App& root, Options& options);
void AddClipCommands(CLI::App& root, Options& options);
void AddTimecodeCommands(CLI::App& root, Options& options);
void AddEnumCommands(CLI::App& root, Options& options);
void AddTextCommands(CLI::App& root, Options& options);
// plurex help [VERB...]: the help of the root or of a verb, as VERB --help prints it.
void AddHelpCommand(CLI::App& root, Options& options);

// "plurex clip decode" for the verb clip decode.
std::string FullName(const CLI::App& verb);
// Makes `work` the run's action when `verb` is chosen; its result is the exit status (0 for the void
// form).
void OnRunWithStatus(CLI::App& verb, Options& options, std::function<int()> work);
void OnRun(CLI::App& verb, Options& options, std::function<void()> work);
// Ends the verb's help with an example: each line of `lines` a command, shown indented.
void Example(CLI::App& verb, const std::string& lines);

// The GUID a text names. The library reads malformed text as the empty GUID; the tool tells the two
// apart by the text and fails with "not a GUID: TEXT".
Korv::Plurex::Data::Guid ParseGuid(const std::string& text);

}  // namespace PlurexTool
