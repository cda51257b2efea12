// Profile files of any bytes: they come back unchanged, what is set is found, and what is removed is gone.
#include <cstdlib>
#include <string>

#include "kernel/profiles/ini_file.h"

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size) {
    using platform::kernel::IniFile;
    std::string const text(reinterpret_cast<char const*>(data), size);
    IniFile file(text);
    if (file.Text() != text) {
        std::abort();
    }
    file.Find(text, text);
    file.Set("section", "key", "value");
    IniFile again(file.Text());
    std::string const* const value = again.Find("SECTION", "KEY");
    if (!value || *value != "value" || !again.RemoveKey("section", "key")) {
        std::abort();
    }
    while (again.RemoveSection("section")) {
    }
    if (again.Find("section", "key")) {
        std::abort();
    }
    return 0;
}
