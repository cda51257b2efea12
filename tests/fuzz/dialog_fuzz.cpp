// Dialog templates: any bytes as a dialog of a module. What can be made of them is shown, used a little and closed.
#include "tests/fuzz/input.h"
#include "tests/fuzz/module.h"

#include <cvplatform.h>

namespace {

INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

void Use(HWND dialog) {
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (WPARAM const key : {VK_TAB, VK_DOWN, VK_RETURN}) {
        MSG message = {dialog, WM_KEYDOWN, key, 1, 0, {0, 0}};
        IsDialogMessageA(dialog, &message);
    }
    MSG message;
    for (int left = 100; left > 0 && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); --left) {
        if (!IsDialogMessageA(dialog, &message)) {
            DispatchMessageA(&message);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::ResourceFile file;
    file.Add(5, 1, data, size);
    fuzz::Module const module(file);
    DWORD const windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    if (HWND const dialog = CreateDialogParamA(module.instance(), MAKEINTRESOURCEA(1), nullptr, Procedure, 0)) {
        Use(dialog);
        DestroyWindow(dialog);
    }
    FUZZ_CHECK(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS) == windows);
    return 0;
}
