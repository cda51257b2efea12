// Compiled resources: any bytes as the resources of a module, which is then asked for all kinds of them.
#include "tests/fuzz/input.h"
#include "tests/fuzz/module.h"

namespace {

// Every byte of a resource can be read, and is told of.
void Read(HINSTANCE module, LPCSTR name, LPCSTR type) {
    HRSRC const found = FindResourceA(module, name, type);
    if (!found) {
        return;
    }
    DWORD const size = SizeofResource(module, found);
    auto const* const data = static_cast<std::uint8_t const*>(LockResource(LoadResource(module, found)));
    FUZZ_CHECK(data || size == 0);
    unsigned sum = 0;
    for (DWORD i = 0; i < size; ++i) {
        sum += data[i];
    }
    FUZZ_CHECK(sum <= size * 255u);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::Module const module(data, size);
    HINSTANCE const instance = module.instance();
    LPCSTR const names[] = {MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(2), "A", "#3", "name"};
    LPCSTR const types[] = {RT_STRING, RT_DIALOG, RT_BITMAP, RT_RCDATA, "A", "#1"};
    for (LPCSTR const name : names) {
        for (LPCSTR const type : types) {
            Read(instance, name, type);
        }
        DeleteObject(LoadBitmapA(instance, name));
        DestroyIcon(LoadIconA(instance, name));
        DestroyCursor(LoadCursorA(instance, name));
    }
    char text[64];
    for (UINT const id : {0u, 1u, 15u, 16u, 0xFFFFu}) {
        for (int const room : {1, 5, static_cast<int>(sizeof text)}) {
            int const length = LoadStringA(instance, id, text, room);
            FUZZ_CHECK(length >= 0 && length < room);
            FUZZ_CHECK(length == 0 || text[length] == '\0');
        }
    }
    return 0;
}
