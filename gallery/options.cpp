#include "gallery/options.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gallery {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

std::vector<std::string> SplitArguments(std::string_view commandLine) {
    std::vector<std::string> arguments;
    std::size_t at = 0;
    for (;;) {
        while (at < commandLine.size() && IsBlank(commandLine[at])) {
            ++at;
        }
        if (at == commandLine.size()) {
            return arguments;
        }
        std::string argument;
        bool quoted = false;
        while (at < commandLine.size() && (quoted || !IsBlank(commandLine[at]))) {
            std::size_t backslashes = 0;
            while (at < commandLine.size() && commandLine[at] == '\\') {
                ++backslashes;
                ++at;
            }
            if (at < commandLine.size() && commandLine[at] == '"') {
                // Before a quote, and only there, two backslashes stand for one.
                argument.append(backslashes / 2, '\\');
                if (backslashes % 2 != 0) {
                    argument += '"';
                } else {
                    quoted = !quoted;
                }
                ++at;
                continue;
            }
            argument.append(backslashes, '\\');
            if (backslashes == 0) {
                argument += commandLine[at++];
            }
        }
        arguments.push_back(argument);
    }
}

Options ParseOptions(std::string_view commandLine) {
    Options options;
    const std::pair<std::string_view, std::string Options::*> valued[] = {{"--capture", &Options::capturePath},
                                                                          {"--page", &Options::pageName}};
    const std::vector<std::string> arguments = SplitArguments(commandLine);
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--help") {
            options.action = Options::Action::Help;
            return options;
        }
        if (argument == "--version") {
            options.action = Options::Action::Version;
            return options;
        }
        const std::string_view name = argument.substr(0, argument.find('='));
        const auto* option = std::ranges::find(valued, name, [](const auto& entry) { return entry.first; });
        if (option == std::end(valued)) {
            options.action = Options::Action::UnknownOption;
            options.wrong = argument;
            return options;
        }
        std::string& value = options.*option->second;
        if (name.size() < argument.size()) {
            value = argument.substr(name.size() + 1);
        } else if (index + 1 < arguments.size()) {
            value = arguments[++index];
        }
        if (value.empty()) {
            options.action = Options::Action::ValueMissing;
            options.wrong = name;
            return options;
        }
    }
    return options;
}

}  // namespace gallery
