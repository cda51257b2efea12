#include "shell/folder.h"

#include <algorithm>
#include <cstring>

#include "kernel/text/encoding.h"
#include "shell/directory.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

/// Drives before folders before files, each kind by name.
int Order(const Item& a, const Item& b) {
    if (a.kind != b.kind) {
        return a.kind < b.kind ? -1 : 1;
    }
    const std::string first = kernel::AnsiFromUtf8(a.name);
    const std::string second = kernel::AnsiFromUtf8(b.name);
    const int order = lstrcmpiA(first.c_str(), second.c_str());
    return order ? order : a.name.compare(b.name);
}

class Folder final : public Counted<IShellFolder> {
  public:
    explicit Folder(Place place) : place_(std::move(place)) {}

    STDMETHODIMP QueryInterface(REFIID asked, void** object) override {
        return Answer(asked, IID_IShellFolder, object);
    }

    STDMETHODIMP ParseDisplayName(HWND, IBindCtx*, LPWSTR name, ULONG* eaten, LPITEMIDLIST* item,
                                  ULONG* attributes) override {
        if (!item || !name) {
            return E_INVALIDARG;
        }
        *item = nullptr;
        return Method([&]() -> HRESULT {
            const std::u16string_view wide(name);
            OwnedList list = ParseName(place_, kernel::AnsiFromWide(wide));
            if (!list) {
                return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
            }
            if (eaten) {
                *eaten = static_cast<ULONG>(wide.size());
            }
            if (attributes && *attributes) {
                const auto place = Follow(place_, list.get());
                *attributes = place ? Attributes(*place, *attributes) : 0;
            }
            *item = list.release();
            return S_OK;
        });
    }

    STDMETHODIMP EnumObjects(HWND, SHCONTFLAGS flags, IEnumIDList** items) override {
        if (!items) {
            return E_INVALIDARG;
        }
        *items = nullptr;
        return Method([&] {
            HRESULT result = S_OK;
            *items = MakeEnumerator(place_, flags, result);
            return result;
        });
    }

    STDMETHODIMP BindToObject(LPCITEMIDLIST item, IBindCtx*, REFIID asked, void** object) override {
        if (!object) {
            return E_INVALIDARG;
        }
        *object = nullptr;
        return Method([&]() -> HRESULT {
            auto place = item && !IsEnd(item) ? Follow(place_, item) : std::nullopt;
            if (!place) {
                return E_INVALIDARG;
            }
            bool isFolder = true;
            const bool onDisk = place->kind != PlaceKind::Computer;
            if (!place->IsFolder() || (onDisk && (!Exists(HostDirectory(*place), isFolder) || !isFolder))) {
                return HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND);
            }
            IShellFolder* const folder = MakeFolder(std::move(*place));
            const HRESULT result = folder->QueryInterface(asked, object);
            folder->Release();
            return result;
        });
    }

    STDMETHODIMP BindToStorage(LPCITEMIDLIST, IBindCtx*, REFIID, void** object) override {
        return None(object, E_NOTIMPL);
    }

    STDMETHODIMP CompareIDs(LPARAM, LPCITEMIDLIST first, LPCITEMIDLIST second) override {
        return Method([&]() -> HRESULT {
            if (!first || !second) {
                return E_INVALIDARG;
            }
            int order = 0;
            for (; order == 0 && !IsEnd(first) && !IsEnd(second); first = NextItem(first), second = NextItem(second)) {
                order = Order(ReadItem(first), ReadItem(second));
                if (order != 0) {
                    break;
                }
            }
            if (order == 0) {
                order = int{!IsEnd(first)} - int{!IsEnd(second)};
            }
            return order < 0 ? 0xFFFF : order > 0 ? 1 : 0;
        });
    }

    STDMETHODIMP CreateViewObject(HWND, REFIID, void** object) override {
        return None(object, E_NOINTERFACE);
    }

    STDMETHODIMP GetAttributesOf(UINT count, LPCITEMIDLIST* items, SFGAOF* attributes) override {
        if (!attributes || (count && !items)) {
            return E_INVALIDARG;
        }
        return Method([&]() -> HRESULT {
            SFGAOF common = count ? *attributes : Attributes(place_, *attributes);
            for (UINT i = 0; i < count; ++i) {
                const auto place = Follow(place_, items[i]);
                if (!place) {
                    return E_INVALIDARG;
                }
                common = Attributes(*place, common);
            }
            *attributes = common;
            return S_OK;
        });
    }

    STDMETHODIMP GetUIObjectOf(HWND, UINT, LPCITEMIDLIST*, REFIID, UINT*, void** object) override {
        return None(object, E_NOINTERFACE);
    }

    STDMETHODIMP GetDisplayNameOf(LPCITEMIDLIST item, SHGDNF form, LPSTRRET name) override {
        if (!name) {
            return E_INVALIDARG;
        }
        return Method([&]() -> HRESULT {
            const auto place = item ? Follow(place_, item) : std::nullopt;
            if (!place) {
                return E_INVALIDARG;
            }
            const bool whole = (form & SHGDN_FORPARSING) && !(form & SHGDN_INFOLDER);
            const std::string text = whole ? ParsingName(*place) : DisplayName(*place);
            if (text.size() >= sizeof name->cStr) {
                return HRESULT_FROM_WIN32(ERROR_FILENAME_EXCED_RANGE);
            }
            name->uType = STRRET_CSTR;
            std::memcpy(name->cStr, text.c_str(), text.size() + 1);
            return S_OK;
        });
    }

    STDMETHODIMP SetNameOf(HWND, LPCITEMIDLIST, LPCWSTR, SHGDNF, LPITEMIDLIST* changed) override {
        if (changed) {
            *changed = nullptr;
        }
        return E_NOTIMPL;
    }

  private:
    static HRESULT None(void** object, HRESULT result) {
        if (object) {
            *object = nullptr;
        }
        return result;
    }

    const Place place_;
};

}  // namespace

IShellFolder* MakeFolder(Place place) {
    return new Folder(std::move(place));
}

}  // namespace platform::shell

using namespace platform::shell;

const IID IID_IShellFolder = {0x000214E6, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

HRESULT WINAPI SHGetDesktopFolder(LPSHELLFOLDER* folder) {
    if (!folder) {
        return E_INVALIDARG;
    }
    *folder = nullptr;
    return Method([&] {
        *folder = MakeFolder(DesktopPlace());
        return S_OK;
    });
}

BOOL WINAPI SHGetPathFromIDListA(LPCITEMIDLIST item, LPSTR path) {
    if (!path) {
        return FALSE;
    }
    *path = '\0';
    return SUCCEEDED(Method([&]() -> HRESULT {
        const auto place = item ? Follow(DesktopPlace(), item) : std::nullopt;
        if (!place || place->path.empty() || place->path.size() >= MAX_PATH) {
            return E_FAIL;
        }
        std::memcpy(path, place->path.c_str(), place->path.size() + 1);
        return S_OK;
    }));
}
