#include "controls/frame/classes.h"

namespace frame {

BOOL RegisterOwnClass(HINSTANCE instance, OwnClass const& own) {
    if (!instance) {
        return FALSE;
    }
    WNDCLASSA record = {};
    if (BOOL const known = GetClassInfoA(instance, own.name, &record)) {
        return known;
    }
    record = {};
    record.style = own.style | CS_GLOBALCLASS;
    record.lpfnWndProc = own.procedure;
    record.cbWndExtra = own.extraBytes;
    record.hInstance = instance;
    record.hCursor = LoadCursorA(nullptr, own.cursor);
    record.hbrBackground = own.background;
    record.lpszClassName = own.name;
    return RegisterClassA(&record);
}

BOOL RegisterSuperclass(HINSTANCE instance, LPCSTR name, LPCSTR baseName, WNDPROC procedure, BaseClass& base,
                        Difference const& difference) {
    if (!instance) {
        return FALSE;
    }
    WNDCLASSA record = {};
    BOOL const known = GetClassInfoA(instance, name, &record);
    if (known && base.procedure) {
        return known;
    }
    record = {};
    if (!GetClassInfoA(instance, baseName, &record) || !record.lpfnWndProc) {
        return FALSE;
    }
    BaseClass const found = {record.lpfnWndProc, record.cbWndExtra};
    if (known) {
        // The class outlived another load of this module, which took its knowledge along.
        base = found;
        return known;
    }
    record.style = (record.style & ~difference.withoutStyle) | CS_GLOBALCLASS;
    record.lpfnWndProc = procedure;
    record.cbWndExtra = found.extraBytes + difference.extraBytes;
    record.hInstance = instance;
    record.lpszMenuName = nullptr;
    record.lpszClassName = name;
    BaseClass const before = base;
    base = found;
    ATOM const atom = RegisterClassA(&record);
    if (!atom) {
        base = before;
    }
    return atom != 0;
}

}  // namespace frame
