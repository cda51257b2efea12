// Compiled resources: any bytes as the resources of a module, which is then asked for all kinds of them.
#include "tests/fuzz/input.h"
#include "tests/fuzz/module.h"

namespace {

INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

void LoadAll(HINSTANCE module, LPCSTR name) {
    DeleteObject(LoadBitmapA(module, name));
    LoadIconA(module, name);
    LoadCursorA(module, name);
    if (HWND const dialog = CreateDialogParamA(module, name, nullptr, Procedure, 0)) {
        DestroyWindow(dialog);
    }
}

void LoadTexts(HINSTANCE module) {
    char text[64];
    for (UINT const id : {0u, 1u, 15u, 16u, 0xFFFFu}) {
        for (int const room : {1, 5, static_cast<int>(sizeof text)}) {
            int const length = LoadStringA(module, id, text, room);
            FUZZ_CHECK(length >= 0 && length < room);
            FUZZ_CHECK(length == 0 || text[length] == '\0');
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::Module const module(data, size);
    LPCSTR const names[] = {MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(2), "A", "#3", "name"};
    for (LPCSTR const name : names) {
        LoadAll(module.instance(), name);
    }
    LoadTexts(module.instance());
    return 0;
}
