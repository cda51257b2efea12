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

}  // namespace

bool SplitRoot(std::string_view path, HKEY* root, std::string* below) {
    const Root* found = FindRoot(path);
    if (found) {
        *root = found->key;
        *below = path.substr(std::min(path.find('\\'), path.size() - 1) + 1);
    }
    return found;
}

std::string FullPath(std::string_view path) {
    const Root* found = FindRoot(path);
    while (path.ends_with('\\')) {
        path.remove_suffix(1);
    }
    return found ? found->name + std::string(path.substr(std::min(path.find('\\'), path.size()))) : std::string(path);
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

LONG ListValues(HKEY key, std::vector<NamedValue>* values) {
    for (DWORD index = 0;; ++index) {
        std::string name(16384, '\0');
        auto size = static_cast<DWORD>(name.size());
        LONG error = RegEnumValueA(key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr);
        if (error != ERROR_SUCCESS) {
            return error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error;
        }
        name.resize(size);
        NamedValue value{name, REG_NONE, {}};
        DWORD bytes = 0;
        error = RegQueryValueExA(key, name.c_str(), nullptr, &value.type, nullptr, &bytes);
        if (error == ERROR_SUCCESS) {
            value.data.resize(bytes);
            error = RegQueryValueExA(key, name.c_str(), nullptr, &value.type,
                                     reinterpret_cast<BYTE*>(value.data.data()), &bytes);
        }
        if (error != ERROR_SUCCESS) {
            return error;
        }
        values->push_back(std::move(value));
    }
}

LONG DeleteTree(std::string_view path) {
    HKEY root = nullptr;
    std::string below;
    if (!SplitRoot(path, &root, &below)) {
        return ERROR_BADKEY;
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

LONG Apply(const Entry& entry) {
    if (entry.kind == Entry::DeletedKey) {
        const LONG error = DeleteTree(entry.key);
        return error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
    }
    OpenKey key;
    LONG error = key.Create(entry.key);
    if (error == ERROR_SUCCESS && entry.kind == Entry::Value) {
        error = RegSetValueExA(key, entry.name.c_str(), 0, entry.type, reinterpret_cast<const BYTE*>(entry.data.data()),
                               static_cast<DWORD>(entry.data.size()));
    } else if (error == ERROR_SUCCESS && entry.kind == Entry::DeletedValue) {
        error = RegDeleteValueA(key, entry.name.c_str());
        error = error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
    }
    return error;
}

}  // namespace

bool Import(std::string_view text, std::string* error) {
    std::vector<Entry> entries;
    if (!Parse(text, &entries, error)) {
        return false;
    }
    for (const Entry& entry : entries) {
        if (const LONG code = Apply(entry)) {
            *error = entry.key + (entry.name.empty() ? "" : ", " + entry.name) + ": error " + std::to_string(code);
            return false;
        }
    }
    return true;
}

}  // namespace cvreg
