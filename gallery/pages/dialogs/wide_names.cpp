#include "gallery/pages/dialogs/wide_names.h"

#include <windows.h>

#include <shlobj.h>

#include <memory>

namespace gallery {
namespace {

struct Release {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
template <class Interface>
using Owner = std::unique_ptr<Interface, Release>;

Owner<IShellFolder> Desktop() {
    IShellFolder* folder = nullptr;
    return Owner<IShellFolder>(SUCCEEDED(SHGetDesktopFolder(&folder)) ? folder : nullptr);
}

Owner<IMalloc> Allocator() {
    IMalloc* allocator = nullptr;
    return Owner<IMalloc>(SUCCEEDED(SHGetMalloc(&allocator)) ? allocator : nullptr);
}

Owner<IEnumIDList> ItemsOf(IShellFolder& folder) {
    IEnumIDList* items = nullptr;
    return Owner<IEnumIDList>(folder.EnumObjects(nullptr, SHCONTF_FOLDERS, &items) == S_OK ? items : nullptr);
}

}  // namespace

bool ShellNamesAreWide() {
    const Owner<IShellFolder> desktop = Desktop();
    const Owner<IMalloc> allocator = Allocator();
    const Owner<IEnumIDList> items = desktop ? ItemsOf(*desktop) : nullptr;
    LPITEMIDLIST first = nullptr;
    if (!allocator || !items || items->Next(1, &first, nullptr) != S_OK) {
        return false;
    }
    STRRET name = {};
    const bool isWide = desktop->GetDisplayNameOf(first, SHGDN_NORMAL, &name) == S_OK && name.uType == STRRET_WSTR;
    if (isWide) {
        allocator->Free(name.pOleStr);
    }
    allocator->Free(first);
    return isWide;
}

}  // namespace gallery
