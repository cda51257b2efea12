#include "tree.h"

#include <algorithm>

#include "regedit4.h"

namespace cvreg {
namespace {

struct Root {
    const char* name;
    const char* shortName;
    HKEY key;
};

const Root kRoots[] = {{"HKEY_CURRENT_USER", "HKCU", HKEY_CURRENT_USER},
                       {"HKEY_LOCAL_MACHINE", "HKLM", HKEY_LOCAL_MACHINE},
                       {"HKEY_CLASSES_ROOT", "HKCR", HKEY_CLASSES_ROOT}};

const Root* FindRoot(std::string_view path) {
    const std::string first(path.substr(0, path.find('\\')));
    const auto* found = std::find_if(std::begin(kRoots), std::end(kRoots), [&](const Root& root) {
        return lstrcmpiA(first.c_str(), root.name) == 0 || lstrcmpiA(first.c_str(), root.shortName) == 0;
    });
    return found == std::end(kRoots) ? nullptr : found;
}

constexpr std::size_t kMostKeyName = 255;
constexpr std::size_t kMostValueName = 16383;

// The names of a path below its root. The second byte of a double-byte character may look like a backslash.
std::vector<std::string> NamesOf(const std::string& below) {
    std::vector<std::string> names;
    const char* at = below.c_str();
    while (*at) {
        const char* end = at;
        while (*end && *end != '\\') {
            end = CharNextA(end);
        }
        if (end != at) {
            names.emplace_back(at, static_cast<std::size_t>(end - at));
        }
        at = *end ? end + 1 : end;
    }
    return names;
}

// The roots and the few keys that the roots stand in.
bool AlwaysExists(HKEY root, const std::string& below) {
    const std::vector<std::string> names = NamesOf(below);
    return names.empty() || (root == HKEY_LOCAL_MACHINE && lstrcmpiA(names[0].c_str(), "SOFTWARE") == 0 &&
                             (names.size() == 1 || (names.size() == 2 && lstrcmpiA(names[1].c_str(), "Classes") == 0)));
}

}  // namespace

bool SplitRoot(std::string_view path, HKEY* root, std::string* below) {
    const Root* found = FindRoot(path);
    if (found) {
        *root = found->key;
        // Doubled backslashes mean nothing here as elsewhere in a path.
        path.remove_prefix(std::min(path.find('\\'), path.size()));
        *below = path.substr(std::min(path.find_first_not_of('\\'), path.size()));
    }
    return found;
}

std::string FullPath(std::string_view path) {
    const Root* found = FindRoot(path);
    HKEY root = nullptr;
    std::string below;
    if (!SplitRoot(path, &root, &below)) {
        return std::string(path);
    }
    std::string full = found->name;
    for (const std::string& name : NamesOf(below)) {
        full += '\\' + name;
    }
    return full;
}

LONG OpenKey::Open(std::string_view path) {
    HKEY root = nullptr;
    std::string below;
    return SplitRoot(path, &root, &below) ? RegOpenKeyExA(root, below.c_str(), 0, KEY_ALL_ACCESS, &key_) : ERROR_BADKEY;
}

LONG OpenKey::Create(std::string_view path) {
    HKEY root = nullptr;
    std::string below;
    return SplitRoot(path, &root, &below) ? RegCreateKeyExA(root, below.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                            KEY_ALL_ACCESS, nullptr, &key_, nullptr)
                                          : ERROR_BADKEY;
}

LONG ListSubkeys(HKEY key, std::vector<std::string>* names) {
    for (DWORD index = 0;; ++index) {
        char name[256 * 2];
        DWORD size = sizeof name;
        const LONG error = RegEnumKeyExA(key, index, name, &size, nullptr, nullptr, nullptr, nullptr);
        if (error != ERROR_SUCCESS) {
            return error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error;
        }
        names->emplace_back(name, size);
    }
}

LONG ReadValue(HKEY key, NamedValue* value) {
    LONG error = ERROR_MORE_DATA;
    // Another program may store a longer one between the two questions.
    while (error == ERROR_MORE_DATA) {
        DWORD bytes = 0;
        error = RegQueryValueExA(key, value->name.c_str(), nullptr, &value->type, nullptr, &bytes);
        value->data.resize(bytes);
        if (error == ERROR_SUCCESS) {
            error = RegQueryValueExA(key, value->name.c_str(), nullptr, &value->type,
                                     reinterpret_cast<BYTE*>(value->data.data()), &bytes);
            value->data.resize(std::min<std::size_t>(bytes, value->data.size()));
        }
    }
    return error;
}

LONG WriteValue(HKEY key, const NamedValue& value) {
    // A NUL behind a text would be taken for the one that its caller forgot to count.
    const std::string bytes = value.data + '.';
    return RegSetValueExA(key, value.name.c_str(), 0, value.type, reinterpret_cast<const BYTE*>(bytes.data()),
                          static_cast<DWORD>(value.data.size()));
}

LONG ListValues(HKEY key, std::vector<NamedValue>* values) {
    for (DWORD index = 0;; ++index) {
        std::string name(kMostValueName + 1, '\0');
        auto size = static_cast<DWORD>(name.size());
        LONG error = RegEnumValueA(key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr);
        if (error != ERROR_SUCCESS) {
            return error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error;
        }
        name.resize(size);
        NamedValue value{std::move(name), REG_NONE, {}};
        error = ReadValue(key, &value);
        if (error == ERROR_SUCCESS) {
            values->push_back(std::move(value));
        } else if (error != ERROR_FILE_NOT_FOUND) {
            return error;
        }
    }
}

LONG DeleteTree(std::string_view path) {
    HKEY root = nullptr;
    std::string below;
    if (!SplitRoot(path, &root, &below)) {
        return ERROR_BADKEY;
    }
    if (AlwaysExists(root, below)) {
        return ERROR_ACCESS_DENIED;
    }
    std::vector<std::string> names;
    {
        OpenKey key;
        LONG error = key.Open(path);
        error = error == ERROR_SUCCESS ? ListSubkeys(key, &names) : error;
        if (error != ERROR_SUCCESS) {
            return error;
        }
    }
    for (const std::string& name : names) {
        if (const LONG error = DeleteTree(std::string(path) + '\\' + name)) {
            return error;
        }
    }
    return RegDeleteKeyA(root, below.c_str());
}

LONG Export(const std::string& path, std::string* text) {
    OpenKey key;
    std::vector<NamedValue> values;
    std::vector<std::string> names;
    LONG error = key.Open(path);
    error = error == ERROR_SUCCESS ? ListValues(key, &values) : error;
    error = error == ERROR_SUCCESS ? ListSubkeys(key, &names) : error;
    if (error != ERROR_SUCCESS) {
        return error;
    }
    *text += FormatKey(path);
    for (const NamedValue& value : values) {
        *text += FormatValue(value.name, value.type, value.data);
    }
    for (const std::string& name : names) {
        error = Export(path + '\\' + name, text);
        if (error != ERROR_SUCCESS) {
            return error;
        }
    }
    return ERROR_SUCCESS;
}

namespace {

// Why something can never be done, whatever the registry holds; empty when it can.
std::string Hindrance(const Entry& entry) {
    HKEY root = nullptr;
    std::string below;
    if (entry.key.find('\0') != std::string::npos || entry.name.find('\0') != std::string::npos) {
        return "a name with a zero byte in it";
    }
    if (!SplitRoot(entry.key, &root, &below)) {
        return entry.key + ' ' + Words(ERROR_BADKEY);
    }
    if (entry.kind == Entry::DeletedKey && AlwaysExists(root, below)) {
        return entry.key + " cannot be deleted";
    }
    for (const std::string& name : NamesOf(below)) {
        if (name.size() > kMostKeyName) {
            return "the name of a key is too long: " + std::to_string(name.size()) + " bytes, " +
                   std::to_string(kMostKeyName) + " at most";
        }
    }
    return entry.name.size() > kMostValueName
               ? "the name of the value is too long: " + std::to_string(entry.name.size()) + " bytes, " +
                     std::to_string(kMostValueName) + " at most"
               : std::string();
}

LONG Apply(const Entry& entry) {
    if (entry.kind == Entry::DeletedKey) {
        const LONG error = DeleteTree(entry.key);
        return error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
    }
    OpenKey key;
    LONG error = key.Create(entry.key);
    if (error == ERROR_SUCCESS && entry.kind == Entry::Value) {
        error = WriteValue(key, {entry.name, entry.type, entry.data});
    } else if (error == ERROR_SUCCESS && entry.kind == Entry::DeletedValue) {
        error = RegDeleteValueA(key, entry.name.c_str());
        error = error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
    }
    return error;
}

}  // namespace

std::string Words(LONG error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return "does not exist";
        case ERROR_BADKEY:
            return "does not begin with a root (HKCU, HKLM, HKCR)";
        case ERROR_ACCESS_DENIED:
            return "cannot be changed";
        case ERROR_INVALID_PARAMETER:
            return "is too long";
        case ERROR_KEY_DELETED:
            return "has just been deleted by another program";
        case ERROR_BUSY:
            return "cannot be reached: another program holds the registry";
        case ERROR_DISK_FULL:
            return "cannot be written: the disk is full";
        case ERROR_REGISTRY_IO_FAILED:
            return "cannot be read or written: the disk fails";
        case ERROR_REGISTRY_CORRUPT:
            return "cannot be read: the registry is damaged";
        case ERROR_OUTOFMEMORY:
            return "takes more memory than there is";
        default:
            return "failed with error " + std::to_string(error);
    }
}

bool Import(std::string_view text, std::string* error) {
    std::vector<Entry> entries;
    if (!Parse(text, &entries, error)) {
        return false;
    }
    const auto fail = [error](const Entry& entry, const std::string& why) {
        *error = "line " + std::to_string(entry.line) + ": " + why;
        return false;
    };
    for (const Entry& entry : entries) {
        if (const std::string why = Hindrance(entry); !why.empty()) {
            return fail(entry, why);
        }
    }
    for (const Entry& entry : entries) {
        if (const LONG code = Apply(entry)) {
            return fail(entry, entry.key + (entry.name.empty() ? "" : ", " + entry.name) + ' ' + Words(code));
        }
    }
    return true;
}

}  // namespace cvreg
