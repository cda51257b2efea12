#include <cstdlib>
#include <cstring>

#include "kernel/text/encoding.h"
#include "kernel/modules/resource.h"

namespace platform::kernel {
namespace {

class Cursor {
  public:
    explicit Cursor(Bytes bytes) : bytes_(bytes) {}

    template <class Number>
    bool Read(Number* number) {
        if (at_ > bytes_.size() || bytes_.size() - at_ < sizeof(Number)) {
            return false;
        }
        std::memcpy(number, bytes_.data() + at_, sizeof(Number));
        at_ += sizeof(Number);
        return true;
    }

    /// A number behind 0xFFFF, or a zero-terminated UTF-16 text.
    bool Read(ResourceName* name) {
        WORD unit = 0;
        if (!Read(&unit)) {
            return false;
        }
        if (unit == 0xFFFF) {
            return Read(&name->number);
        }
        std::u16string wide;
        while (unit) {
            wide += static_cast<char16_t>(unit);
            if (!Read(&unit)) {
                return false;
            }
        }
        name->text = Upper(AnsiFromWide(wide));
        return true;
    }

    void Align() {
        at_ = (at_ + 3) & ~std::size_t{3};
    }
    std::size_t at() const {
        return at_;
    }

  private:
    Bytes bytes_;
    std::size_t at_ = 0;
};

}  // namespace

ResourceName ResourceName::FromArgument(LPCSTR argument) {
    ResourceName name;
    if (IS_INTRESOURCE(argument)) {
        name.number = static_cast<WORD>(reinterpret_cast<ULONG_PTR>(argument));
    } else if (argument[0] == '#') {
        name.number = static_cast<WORD>(std::strtoul(argument + 1, nullptr, 10));
    } else {
        name.text = Upper(argument);
    }
    return name;
}

std::vector<ResourceEntry> ReadResources(Bytes file, bool* damaged) {
    std::vector<ResourceEntry> entries;
    *damaged = false;
    std::size_t at = 0;
    while (file.size() - at >= 8) {
        const Bytes rest = file.subspan(at);
        Cursor header(rest);
        DWORD dataSize = 0;
        DWORD headerSize = 0;
        DWORD ignored = 0;
        WORD flags = 0;
        ResourceEntry entry;
        header.Read(&dataSize);
        header.Read(&headerSize);
        bool good = header.Read(&entry.type) && header.Read(&entry.name);
        header.Align();
        good = good && header.Read(&ignored) && header.Read(&flags) && header.Read(&entry.language) &&
               header.Read(&ignored) && header.Read(&ignored) && headerSize >= header.at() &&
               headerSize <= rest.size() && dataSize <= rest.size() - headerSize;
        if (!good) {
            *damaged = true;
            break;
        }
        entry.data = rest.subspan(headerSize, dataSize);
        // The file begins with an empty entry of type 0, which only tells the format.
        if (entry.type.number != 0 || !entry.type.text.empty()) {
            entries.push_back(std::move(entry));
        }
        const std::size_t next = (at + headerSize + dataSize + 3) & ~std::size_t{3};
        if (next >= file.size()) {
            return entries;
        }
        at = next;
    }
    *damaged = *damaged || at < file.size();
    return entries;
}

}  // namespace platform::kernel
