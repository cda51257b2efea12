// Help texts: topics found in any bytes, compared with a reading of the file line by line.
#include "tests/fuzz/input.h"

#include "user/help/help_topics.h"

#include <string>
#include <vector>

namespace {

std::string Trimmed(std::string const& text) {
    std::string const blanks = " \t\r\n";
    std::size_t from = 0;
    std::size_t to = text.size();
    while (from < to && blanks.find(text[from]) != std::string::npos) {
        ++from;
    }
    while (to > from && blanks.find(text[to - 1]) != std::string::npos) {
        --to;
    }
    return text.substr(from, to - from);
}

std::vector<std::string> Lines(std::string const& file) {
    std::vector<std::string> lines(1);
    for (char const ch : file) {
        if (ch == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += ch;
        }
    }
    return lines;
}

bool IsHeading(std::string const& line) {
    return line.size() > 2 && line[0] == '[' && line[line.size() - 1] == ']' &&
           line.find_first_not_of("0123456789", 1) == line.size() - 1;
}

std::string Model(std::string const& file, DWORD topic) {
    std::string const heading = '[' + std::to_string(topic) + ']';
    std::string text;
    bool found = false;
    for (std::string const& whole : Lines(file)) {
        std::string const line = Trimmed(whole);
        if (found && IsHeading(line)) {
            break;
        }
        if (found) {
            text += line + '\n';
        }
        found = found || line == heading;
    }
    return Trimmed(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const file(reinterpret_cast<char const*>(data), size);
    for (DWORD const topic : {DWORD{0}, DWORD{1}, DWORD{12}, DWORD{0xFFFFFFFF}}) {
        FUZZ_CHECK(platform::user::FindTopic(file, topic) == Model(file, topic));
    }
    return 0;
}
