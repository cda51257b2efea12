#include "shell/folder.h"

#include <algorithm>
#include <cstring>

#include "kernel/text/encoding.h"
#include "shell/directory.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

class Folder final : public Counted<IShellFolder> {
  public:
    explicit Folder(Place place) : place_(std::move(place)) {}

    STDMETHODIMP ParseDisplayName(HWND, IBindCtx*, LPWSTR name, ULONG* eaten, LPITEMIDLIST* item,
                                  ULONG* attributes) override {
        if (!name || eaten || attributes) {
            return E_INVALIDARG;
        }
        return HandOut(item, [&]() -> HRESULT {
            *item = ParseName(place_, kernel::AnsiFromWide(name)).release();
            return *item ? S_OK : HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
        });
    }

    STDMETHODIMP EnumObjects(HWND, SHCONTFLAGS flags, IEnumIDList** items) override {
        return HandOut(items, [&] {
            HRESULT result = S_OK;
            *items = MakeEnumerator(place_, flags, result);
            return result;
        });
    }

    STDMETHODIMP BindToObject(LPCITEMIDLIST item, IBindCtx*, REFIID asked, void** object) override {
        return HandOut(object, [&]() -> HRESULT {
            auto place = item && !IsEnd(item) ? Follow(place_, item) : std::nullopt;
            if (!place) {
                return E_INVALIDARG;
            }
            bool isFolder = true;
            const bool onDisk = place->kind != PlaceKind::Computer;
            if (!place->IsFolder() || (onDisk && (!Exists(HostDirectory(*place), isFolder) || !isFolder))) {
                return HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND);
            }
            if (asked != IID_IShellFolder) {
                return E_NOINTERFACE;
            }
            *object = MakeFolder(std::move(*place));
            return S_OK;
        });
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

    STDMETHODIMP GetDisplayNameOf(LPCITEMIDLIST item, SHGDNF form, LPSTRRET name) override {
        if (!name) {
            return E_INVALIDARG;
        }
        return Method([&]() -> HRESULT {
            const auto place = item ? Follow(place_, item) : std::nullopt;
            if (!place) {
                return E_INVALIDARG;
            }
            const std::string text = form & SHGDN_FORPARSING ? ParsingName(*place) : DisplayName(*place);
            if (text.size() >= sizeof name->cStr) {
                return HRESULT_FROM_WIN32(ERROR_FILENAME_EXCED_RANGE);
            }
            name->uType = STRRET_CSTR;
            std::memcpy(name->cStr, text.c_str(), text.size() + 1);
            return S_OK;
        });
    }

  private:
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
    return HandOut(folder, [&] {
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
