// cvreg: the registry for people, on hosts that have no editor for it.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "regedit4.h"
#include "tree.h"

namespace {

constexpr char kUsage[] =
    "usage: cvreg list KEY                 subkeys and values of a key\n"
    "       cvreg get KEY NAME             one value\n"
    "       cvreg set KEY NAME TEXT        stores a text, making the key if needed\n"
    "       cvreg set KEY NAME dword:N     stores a number, decimal or 0x...\n"
    "       cvreg delete KEY [NAME]        deletes a value, or a key with all below it\n"
    "       cvreg export KEY [FILE]        REGEDIT4 text, to the standard output if there is no FILE\n"
    "       cvreg import [FILE]            does what a REGEDIT4 text says\n"
    "\n"
    "KEY is a path like 'HKCU\\Software\\Calverin\\Velmora' (or HKLM, HKCR, or the roots' long names); in most shells "
    "it\n"
    "needs the quotes. NAME '' is a key's unnamed value.\n";

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

std::string FromTerminal(const std::string& text) {
    return Convert(CP_UTF8, CP_ACP, text);
}

std::string ToTerminal(const std::string& text) {
    return Convert(CP_ACP, CP_UTF8, text);
}

int Fail(const std::string& what, LONG error) {
    const char* why = error == ERROR_FILE_NOT_FOUND      ? "does not exist"
                      : error == ERROR_BADKEY            ? "does not begin with a root (HKCU, HKLM, HKCR)"
                      : error == ERROR_ACCESS_DENIED     ? "cannot be changed"
                      : error == ERROR_REGISTRY_CORRUPT  ? "cannot be read: the registry is damaged"
                      : error == ERROR_INVALID_PARAMETER ? "is too long"
                                                         : nullptr;
    std::cerr << "cvreg: " << ToTerminal(what) << ' ' << (why ? why : "failed with error " + std::to_string(error))
              << '\n';
    return 1;
}

// A value's line in the format of files says its type too.
void Print(const cvreg::NamedValue& value) {
    std::cout << ToTerminal(cvreg::FormatValue(value.name, value.type, value.data));
}

int List(const std::string& path) {
    cvreg::OpenKey key;
    std::vector<std::string> names;
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
    LONG error = key.Open(path);
    DWORD size = 0;
    cvreg::NamedValue value{name, REG_NONE, {}};
    error = error == ERROR_SUCCESS ? RegQueryValueExA(key, name.c_str(), nullptr, &value.type, nullptr, &size) : error;
    if (error == ERROR_SUCCESS) {
        value.data.resize(size);
        error = RegQueryValueExA(key, name.c_str(), nullptr, &value.type, reinterpret_cast<BYTE*>(value.data.data()),
                                 &size);
    }
    if (error != ERROR_SUCCESS) {
        return Fail(path + ", " + name, error);
    }
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ) {
        std::cout << ToTerminal(value.data.c_str()) << '\n';
    } else if (value.type == REG_DWORD && value.data.size() == sizeof(DWORD)) {
        std::cout << *reinterpret_cast<const DWORD*>(value.data.data()) << '\n';
    } else {
        Print(value);
    }
    return 0;
}

int Set(const std::string& path, const std::string& name, const std::string& text) {
    DWORD type = REG_SZ;
    std::string data = text + '\0';
    if (text.starts_with("dword:")) {
        char* end = nullptr;
        const char* digits = text.c_str() + 6;
        const unsigned long long number = std::strtoull(digits, &end, 0);
        if (end == digits || *end || number > 0xFFFFFFFF) {
            std::cerr << "cvreg: " << ToTerminal(text) << " is no 32-bit number\n";
            return 2;
        }
        type = REG_DWORD;
        const auto value = static_cast<DWORD>(number);
        data.assign(reinterpret_cast<const char*>(&value), sizeof value);
    }
    cvreg::OpenKey key;
    LONG error = key.Create(path);
    error = error == ERROR_SUCCESS
                ? RegSetValueExA(key, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                                 static_cast<DWORD>(data.size()))
                : error;
    return error == ERROR_SUCCESS ? 0 : Fail(path, error);
}

int Delete(const std::string& path, const std::string* name) {
    LONG error = ERROR_SUCCESS;
    if (name) {
        cvreg::OpenKey key;
        error = key.Open(path);
        error = error == ERROR_SUCCESS ? RegDeleteValueA(key, name->c_str()) : error;
    } else {
        error = cvreg::DeleteTree(path);
    }
    return error == ERROR_SUCCESS ? 0 : Fail(name ? path + ", " + *name : path, error);
}

int Export(const std::string& path, const char* file) {
    std::string text = cvreg::kHeading;
    if (const LONG error = cvreg::Export(cvreg::FullPath(path), &text)) {
        return Fail(path, error);
    }
    if (!file) {
        std::cout << text << std::flush;
        return 0;
    }
    std::ofstream out(file, std::ios::binary);
    out << text << std::flush;
    if (!out) {
        std::cerr << "cvreg: cannot write " << file << '\n';
        return 1;
    }
    return 0;
}

int Import(const char* file) {
    std::ostringstream text;
    if (file) {
        std::ifstream in(file, std::ios::binary);
        if (!in) {
            std::cerr << "cvreg: cannot read " << file << '\n';
            return 1;
        }
        text << in.rdbuf();
    } else {
        text << std::cin.rdbuf();
    }
    std::string error;
    if (!cvreg::Import(text.str(), &error)) {
        std::cerr << "cvreg: " << (file ? file : "standard input") << ": " << ToTerminal(error) << '\n';
        return 1;
    }
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) {
        words.push_back(FromTerminal(arguments[i]));
    }
    const std::string command = words.empty() ? "" : words[0];
    const std::size_t given = words.size();
    if (command == "list" && given == 2) {
        return List(words[1]);
    }
    if (command == "get" && given == 3) {
        return Get(words[1], words[2]);
    }
    if (command == "set" && given == 4) {
        return Set(words[1], words[2], words[3]);
    }
    if (command == "delete" && (given == 2 || given == 3)) {
        return Delete(words[1], given == 3 ? &words[2] : nullptr);
    }
    if (command == "export" && (given == 2 || given == 3)) {
        return Export(words[1], given == 3 ? arguments[3] : nullptr);
    }
    if (command == "import" && given <= 2) {
        return Import(given == 2 ? arguments[2] : nullptr);
    }
    const bool asked = command == "help" || command == "--help" || command == "-h";
    (asked ? std::cout : std::cerr) << kUsage;
    return asked ? 0 : 2;
}
