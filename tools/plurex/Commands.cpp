// What every verb shares: its name, its example, how it runs; and plurex help [VERB...].
#include "Commands.h"
#include "Output.h"

#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace PlurexTool {

std::string FullName(const CLI::App& verb) {
    std::string name = verb.get_name();
    for (const CLI::App* parent = verb.get_parent(); parent != nullptr; parent = parent->get_parent()) {
        name = parent->get_name() + " " + name;
    }
    return name;
}

void Example(CLI::App& verb, const std::string& lines) {
    std::string text = "Example:";
    std::size_t start = 0;
    while (start < lines.size()) {
        const std::size_t end = std::min(lines.find('\n', start), lines.size());
        text += "\n  " + lines.substr(start, end - start);
        start = end + 1;
    }
    verb.footer(text);
}

void OnRunWithStatus(CLI::App& verb, Options& options, std::function<int()> work) {
    verb.callback([&options, work = std::move(work)] { options.action = work; });
}

void OnRun(CLI::App& verb, Options& options, std::function<void()> work) {
    OnRunWithStatus(verb, options, std::function<int()>([work = std::move(work)] {
              work();
              return 0;
          }));
}

void AddHelpCommand(CLI::App& root, Options& options) {
    auto* help = root.add_subcommand("help", "Print the help of plurex or of a verb");
    auto words = std::make_shared<std::vector<std::string>>();
    help->add_option("VERB", *words, "The verb, as typed: clip decode");
    Example(*help, "plurex help clip decode");
    OnRun(*help, options, [&root, words] {
            const CLI::App* at = &root;
            for (const std::string& word : *words) {
                const CLI::App* next = nullptr;
                for (const CLI::App* verb : at->get_subcommands({})) {
                    if (verb->get_name() == word) {
                        next = verb;
                    }
                }
                if (next == nullptr) {
                    throw Failure("unknown verb \"" + word + "\"", "help", 2);
                }
                at = next;
            }
            // Through the formatter: the root's own help() would show the help verb's, the verb chosen.
            std::cout << std::static_pointer_cast<CLI::Formatter>(at->get_formatter())
                             ->make_help(at, FullName(*at), CLI::AppFormatMode::Normal);
    });
}

}  // namespace PlurexTool
