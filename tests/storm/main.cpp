// storm [events] [seed] [--failing] [--vanishing]: a dialog with every control gets random input, messages and calls. A run is
// cut into processes of 20,000 events, each with the next seed.
#include "tests/storm/storm.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

constexpr unsigned long kInAProcess = 20000;
constexpr std::string_view kWatched = "--watched=";

}  // namespace

int main(int count, char** arguments) {
    storm::Options options;
    std::vector<char const*> modes;
    bool watched = false;
    int numbers = 0;
    for (int i = 1; i < count; ++i) {
        std::string_view const argument = arguments[i];
        if (argument.starts_with(kWatched)) {
            storm::Share(std::atoi(arguments[i] + kWatched.size()));
            watched = true;
        } else if (argument == "--here") {
            watched = true;
        } else if (argument == "--failing" || argument == "--vanishing") {
            (argument == "--failing" ? options.failing : options.vanishing) = true;
            modes.push_back(arguments[i]);
        } else if (argument.starts_with('-') || numbers == 2) {
            std::fprintf(stderr, "storm [events] [seed] [--failing] [--vanishing] [--here]\n");
            return 2;
        } else if (numbers++ == 0) {
            options.events = std::strtoul(arguments[i], nullptr, 10);
        } else {
            options.seed = std::strtoull(arguments[i], nullptr, 10);
        }
    }
    if (watched) {
        return storm::Blow(options);
    }
    modes.push_back(nullptr);
    for (unsigned long done = 0; done < options.events; done += kInAProcess) {
        storm::Run const run{std::min(kInAProcess, options.events - done), options.seed + done / kInAProcess,
                             modes.data()};
        if (!storm::Watch(arguments[0], run)) {
            return 1;
        }
    }
    return 0;
}
