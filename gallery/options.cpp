#include "gallery/options.h"

namespace gallery {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr std::string_view kCapture = "--capture";

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
    const std::vector<std::string> arguments = SplitArguments(commandLine);
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (argument == "--help") {
            options.action = Options::Action::Help;
            return options;
        }
        if (argument == "--version") {
            options.action = Options::Action::Version;
            return options;
        }
        if (argument == kCapture && index + 1 < arguments.size()) {
            options.captureFile = arguments[++index];
        } else if (argument.starts_with(kCapture) && argument.substr(kCapture.size()).starts_with('=')) {
            options.captureFile = argument.substr(kCapture.size() + 1);
        } else if (argument != kCapture) {
            options.action = Options::Action::UnknownOption;
            options.unknown = argument;
            return options;
        }
        if (options.captureFile.empty()) {
            options.action = Options::Action::FileMissing;
            return options;
        }
    }
    return options;
}

}  // namespace gallery
