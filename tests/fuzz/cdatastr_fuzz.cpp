// CDATASTR beside the same rules on std::string. The model takes plain characters, each of which equals itself alone
// (and its capital, where case is ignored). Other bytes, and texts under a lock, are only seen through: every member and
// every walk must end.
#include <cvutil32/cdatastr.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>
#include <utility>

#include "tests/fuzz/input.h"

namespace {

using fuzz::Input;
using std::string;

constexpr unsigned int kNone = 0xFFFFFFFF;
constexpr char kCharacters[] = "aAbBcd12-+;,;, \"\"\\.\r\n";

char const* Bytes(CSTRING const& text) {
    return text;
}

string Without(string text, string const& what, string const& instead) {
    for (std::size_t at = 0; (at = text.find(what, at)) != string::npos; at += instead.size()) {
        text.replace(at, what.size(), instead);
    }
    return text;
}

string Lower(string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char ch) { return std::tolower(ch); });
    return text;
}

string Normalized(string text, char delimiter, string const& set) {
    for (char& ch : text) {
        ch = set.find(ch) != string::npos ? delimiter : ch;
    }
    return text;
}

string Cleaned(string text, char delimiter) {
    string const two(2, delimiter);
    while (text.find(two) != string::npos) {
        text = Without(text, two, string(1, delimiter));
    }
    if (!text.empty() && text.front() == delimiter) {
        text.erase(0, 1);
    }
    if (!text.empty() && text.back() == delimiter) {
        text.pop_back();
    }
    return text;
}

bool NextItem(string const& text, unsigned int& position, string& item, char delimiter) {
    item.clear();
    if (position >= text.size()) {
        return false;
    }
    item = text.substr(position, text.find(delimiter, position) - position);
    position += static_cast<unsigned int>(item.size()) + 1;
    return true;
}

string WithoutDuplicates(string text, char delimiter) {
    unsigned int position = 0;
    for (string item; NextItem(text, position, item, delimiter);) {
        for (std::size_t at; !item.empty() && (at = Lower(text).find(Lower(item), position)) != string::npos;) {
            text.erase(at, item.size());
        }
    }
    return text;
}

bool NextSpecification(string const& text, unsigned int& position, string& specification, bool& quoted) {
    specification.clear();
    if (position >= text.size()) {
        return false;
    }
    std::size_t const quote = text.find('"', position);
    bool const isQuoted = quote != string::npos && text.find(' ') > quote;
    if (isQuoted) {
        std::size_t const closing = text.find('"', quote + 1);
        specification = text.substr(0, closing == string::npos ? closing : closing + 1);
        position += static_cast<unsigned int>(specification.size());
    } else {
        string const rest = Cleaned(Normalized(text.substr(position), ' ', DATASTR_DELIMITERS), ' ');
        unsigned int first = 0;
        if (!NextItem(rest, first, specification, ' ')) {
            return false;
        }
        position += static_cast<unsigned int>(specification.size()) + 1;
    }
    specification = Without(specification, "\"", "");
    quoted = isQuoted;
    return true;
}

string WithNormalSpecifications(string text) {
    for (char delimiter : string(DATASTR_DELIMITERS)) {
        text.erase(0, text.find_first_not_of(delimiter));
        text.erase(text.find_last_not_of(delimiter) + 1);
    }
    string out;
    unsigned int position = 0;
    bool quoted = false;
    for (string specification; NextSpecification(text, position, specification, quoted);) {
        if (!specification.empty()) {
            string const mark(quoted ? 1 : 0, '"');
            out += mark + specification + mark + ' ';
        }
    }
    if (!out.empty()) {
        out.pop_back();
    }
    return out;
}

void CheckItems(CDATASTR const& list, string const& model, char delimiter) {
    CSTRING item;
    string expected;
    unsigned int position = 0;
    unsigned int place = 0;
    for (bool more = true; more;) {
        unsigned int const start = position;
        more = list.EnumDataItems(&position, &item, delimiter) != 0;
        FUZZ_CHECK(more == NextItem(model, place, expected, delimiter));
        FUZZ_CHECK(position == place);
        FUZZ_CHECK(expected == Bytes(item));
        if (!more || expected.size() > 9) {
            continue;
        }
        unsigned int again = start;
        unsigned int value = 77;
        int number = 77;
        int const result = list.EnumDataItems(&again, &value, delimiter);
        int const read = std::sscanf(expected.c_str(), "%d", &number);
        bool const sign = expected.find_first_not_of(" \r\n") == expected.find_last_not_of(" \r\n") &&
                          expected.find_first_of("+-") != string::npos;
        FUZZ_CHECK(again == position);
        FUZZ_CHECK(result == (read == 0 || sign ? 0 : 1));
        FUZZ_CHECK(value == (read == 0 || sign ? 0 : static_cast<unsigned int>(number)));
    }
}

void CheckSpecifications(CDATASTR const& list, string const& model) {
    CSTRING item;
    string expected;
    unsigned int position = 0;
    unsigned int place = 0;
    for (bool more = true; more;) {
        int quoted = 0;
        bool expectedQuotes = false;
        more = list.EnumFileSpecs(&position, &item, &quoted) != 0;
        FUZZ_CHECK(more == NextSpecification(model, place, expected, expectedQuotes));
        FUZZ_CHECK(position == place);
        FUZZ_CHECK(expected == Bytes(item));
        FUZZ_CHECK(!more || expectedQuotes == (quoted != 0));
    }
}

void RunWithModel(Input& input) {
    string const set = kCharacters;
    string model = input.Text(60, set);
    CDATASTR list(model.c_str());
    while (!input.empty()) {
        char const delimiter = input.Character(set);
        switch (input.Pick(8)) {
            case 0:
                list.CleanDelimiters(delimiter);
                model = Cleaned(model, delimiter);
                break;
            case 1:
                list.NormalizeDelimiters(delimiter, DATASTR_DELIMITERS);
                model = Normalized(model, delimiter, DATASTR_DELIMITERS);
                break;
            case 2:
                list.RemoveBackslashes(delimiter);
                model = Without(model, string{'\\', delimiter}, string(1, delimiter));
                break;
            case 3:
                list.RemoveDuplicates(delimiter);
                model = WithoutDuplicates(model, delimiter);
                break;
            case 4:
                list.NormalizeFileSpecs();
                model = WithNormalSpecifications(model);
                break;
            case 5: {
                model = input.Text(60, set);
                list = model.c_str();
                break;
            }
            case 6: {
                CDATASTR const copy(list);
                CheckItems(copy, model, delimiter);
                break;
            }
            default:
                CheckSpecifications(list, model);
        }
        FUZZ_CHECK(list.IsValid());
        FUZZ_CHECK(model == Bytes(list));
        FUZZ_CHECK(list.GetStrLen() == model.size());
        FUZZ_CHECK(list.GetByteCount() == model.size());
    }
}

void RunThrough(Input& input) {
    CDATASTR list;
    while (!input.empty()) {
        char const delimiter = input.Character();
        CSTRING item;
        unsigned int position = 0;
        unsigned int value;
        switch (input.Pick(9)) {
            case 0:
                list.CleanDelimiters(delimiter);
                break;
            case 1:
                list.NormalizeDelimiters(delimiter, input.Text(6).c_str());
                break;
            case 2:
                list.RemoveBackslashes(delimiter);
                break;
            case 3:
                list.RemoveDuplicates(delimiter);
                break;
            case 4:
                list.NormalizeFileSpecs();
                break;
            case 5: {
                string const text = input.Text(80);
                std::memcpy(list.BufferLock(0), text.c_str(), text.size() + 1);
                break;
            }
            case 6:
                list.BufferUnlock();
                break;
            case 7:
                while (list.EnumDataItems(&position, &item, delimiter)) {
                }
                position = input.Number();
                list.EnumDataItems(&position, &value, delimiter);
                break;
            default:
                while (list.EnumFileSpecs(&position, &item, nullptr)) {
                }
                position = input.Number();
                list.EnumFileSpecs(&position, &item, nullptr);
        }
        FUZZ_CHECK(list.IsValid());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    input.Pick(3) ? RunWithModel(input) : RunThrough(input);
    return 0;
}
