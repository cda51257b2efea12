// CSTRING::SplitPath() and its neighbours on any text: the parts, put together again, are the path.
#include <cvutil32/cstring.h>

#include <cstdlib>
#include <string>

namespace {

std::string Text(CSTRING const& string) {
    char const* const text = string;
    return text ? text : "";
}

std::string Unquoted(CSTRING const& string) {
    std::string text = Text(string);
    std::erase(text, '"');
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size) {
    std::string const path(reinterpret_cast<char const*>(data), size);
    CSTRING const whole(path.c_str());
    CSTRING drive, dir, name, ext, other;
    whole.SplitPath(&drive, &dir, &name, &ext);
    if (Text(drive) + Unquoted(dir) + Unquoted(name) + Unquoted(ext) != Unquoted(whole)) {
        std::abort();
    }
    other.GetFileName(path.c_str());
    other.GetFilePath(path.c_str());
    other.AppendSubdir(path.c_str());
    other.MakePath(Text(drive).c_str(), Text(dir).c_str(), Text(name).c_str(), path.c_str());
    return 0;
}
