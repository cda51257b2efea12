/// @file tree.h
/// Keys by their full paths.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace cvreg {

/// Splits "HKCU\Software" into a root and the path below it. The roots have their long names and HKCR, HKCU, HKLM.
bool SplitRoot(std::string_view path, HKEY* root, std::string* below);

/// @returns the path with its root's long name, or as it is when it has none.
std::string FullPath(std::string_view path);

/// An open key, closed when this goes.
class OpenKey {
  public:
    OpenKey() = default;
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (key_) {
            RegCloseKey(key_);
        }
    }

    LONG Open(std::string_view path);
    LONG Create(std::string_view path);
    operator HKEY() const {
        return key_;
    }

  private:
    HKEY key_ = nullptr;
};

struct NamedValue {
    std::string name;
    DWORD type = REG_NONE;
    std::string data;
};

LONG ListSubkeys(HKEY key, std::vector<std::string>* names);
LONG ListValues(HKEY key, std::vector<NamedValue>* values);

/// Fills in the type and data of a value that has its name.
LONG ReadValue(HKEY key, NamedValue* value);
/// Stores a value byte by byte: a text without a NUL stays one.
LONG WriteValue(HKEY key, const NamedValue& value);

/// Deletes a key with all its subkeys. A key that always exists is refused as a whole with ERROR_ACCESS_DENIED.
LONG DeleteTree(std::string_view path);

/// Appends a key and all below it in the REGEDIT4 format.
LONG Export(const std::string& path, std::string* text);

/// Does what a REGEDIT4 text says. @param error  receives the line and what is wrong with it; nothing is changed when
/// there is a line that cannot be understood or can never be done.
bool Import(std::string_view text, std::string* error);

/// @returns what an error says of a key or value whose name comes before it.
std::string Words(LONG error);

}  // namespace cvreg
