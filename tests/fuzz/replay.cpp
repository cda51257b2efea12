// Runs a fuzz target over stored inputs, for builds without a fuzzer. Arguments are files and folders of inputs.
#include "tests/fuzz/input.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

unsigned Replay(std::filesystem::path const& path) {
    if (std::filesystem::is_directory(path)) {
        unsigned count = 0;
        for (auto const& entry : std::filesystem::directory_iterator(path)) {
            count += Replay(entry.path());
        }
        return count;
    }
    std::ifstream file(path, std::ios::binary);
    std::vector<char> const bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
    return 1;
}

}  // namespace

int main(int count, char** arguments) {
    unsigned inputs = 0;
    for (int i = 1; i < count; ++i) {
        inputs += Replay(arguments[i]);
    }
    std::printf("%u inputs\n", inputs);
    return inputs ? 0 : 1;
}
