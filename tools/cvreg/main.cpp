// cvreg: the registry for people, on hosts that have no editor for it.
#include <windows.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "regedit4.h"
#include "tree.h"

namespace {

constexpr char kUsage[] =
    "usage: cvreg list KEY                     subkeys and values of a key\n"
    "       cvreg get KEY NAME                 one value\n"
    "       cvreg set KEY NAME TEXT            stores a text, making the key if needed\n"
    "       cvreg set KEY NAME dword:N         stores a number, decimal or 0x...\n"
    "       cvreg set -t TYPE KEY NAME DATA    stores what DATA is as a TYPE:\n"
    "                                            sz         a text as it stands, also one that begins with \"dword:\"\n"
    "                                            expand_sz  a text with names of variables in it, like %PATH%\n"
    "                                            dword      a number, decimal or 0x...\n"
    "                                            binary     bytes, like 01,fF,3\n"
    "       cvreg delete KEY [NAME]            deletes a value, or a key with all below it\n"
    "       cvreg export KEY [FILE]            REGEDIT4 text, to the standard output if there is no FILE\n"
    "       cvreg import [FILE]                does what a REGEDIT4 text says, or nothing if there is an error in it\n"
    "\n"
    "KEY is a path like 'HKCU\\Software\\Calverin\\Velmora' (or HKLM, HKCR, or the roots' long names); in most shells "
    "it\n"
    "needs the quotes. NAME '' is a key's unnamed value. Texts and names hold characters of the code page in use.\n";

constexpr int kFailed = 1;
constexpr int kMisused = 2;

using Words = std::vector<std::string>;

std::string Convert(UINT from, UINT to, const std::string& text) {
    std::basic_string<WCHAR> wide(text.size(), 0);
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(from, 0, text.data(), static_cast<int>(text.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
    std::string result(wide.size() * 3, '\0');
    result.resize(
        static_cast<std::size_t>(WideCharToMultiByte(to, 0, wide.data(), static_cast<int>(wide.size()), result.data(),
                                                     static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

std::string ToTerminal(const std::string& text) {
    return Convert(CP_ACP, CP_UTF8, text);
}

int Complain(const std::string& what, int code = kFailed) {
    std::cerr << "cvreg: " << what << '\n';
    return code;
}

int Fail(const std::string& what, LONG error) {
    return Complain(ToTerminal(what + ' ' + cvreg::Words(error)));
}

/// Words of the command line in the code page in use. @returns nothing, after a line about it, when one has characters
/// that the code page lacks.
std::optional<Words> FromTerminal(const Words& words) {
    Words converted;
    for (const std::string& word : words) {
        converted.push_back(Convert(CP_UTF8, CP_ACP, word));
        if (ToTerminal(converted.back()) != word) {
            Complain("'" + word + "' has characters that the code page " + std::to_string(GetACP()) + " lacks");
            return std::nullopt;
        }
    }
    return converted;
}

// A value's line in the format of files says its type too.
void Print(const cvreg::NamedValue& value) {
    std::cout << ToTerminal(cvreg::FormatValue(value.name, value.type, value.data, "\n"));
}

int List(const std::string& path) {
    cvreg::OpenKey key;
    Words names;
    std::vector<cvreg::NamedValue> values;
    LONG error = key.Open(path);
    error = error == ERROR_SUCCESS ? cvreg::ListSubkeys(key, &names) : error;
    error = error == ERROR_SUCCESS ? cvreg::ListValues(key, &values) : error;
    if (error != ERROR_SUCCESS) {
        return Fail(path, error);
    }
    for (const std::string& name : names) {
        std::cout << ToTerminal("[" + name + "]\n");
    }
    for (const cvreg::NamedValue& value : values) {
        Print(value);
    }
    return 0;
}

int Get(const std::string& path, const std::string& name) {
    cvreg::OpenKey key;
    cvreg::NamedValue value{name, REG_NONE, {}};
    LONG error = key.Open(path);
    if (error != ERROR_SUCCESS) {
        return Fail(path, error);
    }
    error = cvreg::ReadValue(key, &value);
    if (error != ERROR_SUCCESS) {
        return Fail(path + ", " + (name.empty() ? "the unnamed value" : name), error);
    }
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ) {
        std::cout << ToTerminal(value.data.c_str()) << '\n';
    } else if (value.type == REG_DWORD && value.data.size() == sizeof(DWORD)) {
        DWORD number = 0;
        std::memcpy(&number, value.data.data(), sizeof number);
        std::cout << number << '\n';
    } else {
        Print(value);
    }
    return 0;
}

/// A number of 32 bits, decimal or hexadecimal behind "0x".
std::optional<DWORD> Number(std::string_view digits) {
    const bool hex = digits.starts_with("0x") || digits.starts_with("0X");
    digits.remove_prefix(hex ? 2 : 0);
    unsigned long long number = 0;
    for (const char digit : digits) {
        const char small = static_cast<char>(digit | 0x20);
        const int value = digit >= '0' && digit <= '9'          ? digit - '0'
                          : hex && small >= 'a' && small <= 'f' ? small - 'a' + 10
                                                                : -1;
        number = number * (hex ? 16 : 10) + static_cast<unsigned>(value);
        if (value < 0 || number > 0xFFFFFFFF) {
            return std::nullopt;
        }
    }
    return digits.empty() ? std::nullopt : std::optional(static_cast<DWORD>(number));
}

/// Makes a value's data of what was typed. @returns what is wrong with it, or nothing.
const char* MakeData(const std::string& type, const std::string& text, cvreg::NamedValue* value) {
    if (type == "sz" || type == "expand_sz") {
        value->type = type == "sz" ? REG_SZ : REG_EXPAND_SZ;
        value->data = text + '\0';
        return nullptr;
    }
    if (type == "dword") {
        const std::optional<DWORD> number = Number(text);
        const DWORD plain = number.value_or(0);
        value->type = REG_DWORD;
        value->data.assign(reinterpret_cast<const char*>(&plain), sizeof plain);
        return number ? nullptr : "is no 32-bit number";
    }
    value->type = REG_BINARY;
    return cvreg::ParseBytes(text, &value->data) ? nullptr : "is no list of bytes";
}

int Set(std::string type, const std::string& path, const std::string& name, std::string text) {
    constexpr std::string_view kNumber = "dword:";
    if (type.empty()) {
        type = text.starts_with(kNumber) ? "dword" : "sz";
        text.erase(0, type == "dword" ? kNumber.size() : 0);
    }
    cvreg::NamedValue value{name, REG_NONE, {}};
    if (const char* wrong = MakeData(type, text, &value)) {
        return Complain("'" + ToTerminal(text) + "' " + wrong, kMisused);
    }
    cvreg::OpenKey key;
    if (const LONG error = key.Create(path)) {
        return Fail(path, error);
    }
    const LONG error = cvreg::WriteValue(key, value);
    return error == ERROR_SUCCESS ? 0 : Fail(path + ", " + name, error);
}

int Delete(const std::string& path, const std::string* name) {
    LONG error = ERROR_SUCCESS;
    if (name) {
        cvreg::OpenKey key;
        error = key.Open(path);
        error = error == ERROR_SUCCESS ? RegDeleteValueA(key, name->c_str()) : error;
    } else {
        error = cvreg::DeleteTree(path);
        if (error == ERROR_ACCESS_DENIED) {
            return Complain(ToTerminal(path) + " cannot be deleted");
        }
    }
    return error == ERROR_SUCCESS ? 0 : Fail(name ? path + ", " + *name : path, error);
}

struct Closer {
    void operator()(std::FILE* file) const {
        std::fclose(file);
    }
};

int Export(const std::string& path, const char* name) {
    std::string text = cvreg::kHeading;
    if (const LONG error = cvreg::Export(cvreg::FullPath(path), &text)) {
        return Fail(path, error);
    }
    if (!name) {
        std::cout << text;
        return 0;
    }
    std::unique_ptr<std::FILE, Closer> file(std::fopen(name, "wb"));
    const bool written =
        file && std::fwrite(text.data(), 1, text.size(), file.get()) == text.size() && std::fflush(file.get()) == 0;
    return written ? 0 : Complain(std::string("cannot write ") + name + ": " + std::strerror(errno));
}

int Import(const char* name) {
    const std::unique_ptr<std::FILE, Closer> opened(name ? std::fopen(name, "rb") : nullptr);
    std::FILE* const file = name ? opened.get() : stdin;
    const std::string shown = name ? name : "the standard input";
    std::string text;
    char piece[65536];
    for (std::size_t size = 1; file && size > 0;) {
        size = std::fread(piece, 1, sizeof piece, file);
        text.append(piece, size);
    }
    if (!file || std::ferror(file)) {
        return Complain("cannot read " + shown + ": " + (errno == EISDIR ? "it is a folder" : std::strerror(errno)));
    }
    std::string error;
    return cvreg::Import(text, &error) ? 0 : Complain(shown + ": " + ToTerminal(error));
}

int Usage(bool asked) {
    (asked ? std::cout : std::cerr) << kUsage;
    return asked ? 0 : kMisused;
}

int SetOrComplain(Words words) {
    std::string type;
    if (words.size() >= 2 && words[0] == "-t") {
        type = words[1];
        if (type != "sz" && type != "expand_sz" && type != "dword" && type != "binary") {
            return Complain("there is no type '" + type + "', only sz, expand_sz, dword and binary", kMisused);
        }
        words.erase(words.begin(), words.begin() + 2);
    }
    if (words.size() != 3) {
        return Usage(false);
    }
    const std::optional<Words> own = FromTerminal(words);
    return own ? Set(type, (*own)[0], (*own)[1], (*own)[2]) : kFailed;
}

int Run(const Words& words) {
    const std::string command = words.empty() ? "" : words[0];
    const std::size_t given = words.size();
    const Words rest(words.begin() + (given > 0), words.end());
    if (command == "help" || command == "--help" || command == "-h") {
        return Usage(true);
    }
    if (command == "set") {
        return SetOrComplain(rest);
    }
    // A file's name is the host's and stays as it is.
    const char* file = nullptr;
    Words own = rest;
    if ((command == "export" && given == 3) || (command == "import" && given == 2)) {
        file = words.back().c_str();
        own.pop_back();
    }
    const std::optional<Words> names = FromTerminal(own);
    if (!names) {
        return kFailed;
    }
    const std::size_t count = names->size();
    if (command == "list" && count == 1) {
        return List((*names)[0]);
    }
    if (command == "get" && count == 2) {
        return Get((*names)[0], (*names)[1]);
    }
    if (command == "delete" && (count == 1 || count == 2)) {
        return Delete((*names)[0], count == 2 ? &(*names)[1] : nullptr);
    }
    if (command == "export" && count == 1) {
        return Export((*names)[0], file);
    }
    if (command == "import" && count == 0) {
        return Import(file);
    }
    return Usage(false);
}

}  // namespace

int main(int count, char** arguments) {
    const int code = Run(Words(arguments + (count > 0), arguments + count));
    errno = 0;
    if (!std::cout.flush()) {
        return Complain("cannot write to the standard output" +
                        (errno ? std::string(": ") + std::strerror(errno) : std::string()));
    }
    return code;
}
