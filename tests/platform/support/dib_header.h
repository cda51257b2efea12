// The head of a bitmap of any depth, with room for all colours of a palette.
#pragma once

#include <windows.h>

struct DibHeader {
    BITMAPINFOHEADER header{};
    RGBQUAD colours[256]{};

    DibHeader(int width, int height, int bits) {
        header.biSize = sizeof(header);
        header.biWidth = width;
        header.biHeight = height;
        header.biPlanes = 1;
        header.biBitCount = static_cast<WORD>(bits);
    }
    BITMAPINFO* Info() {
        return reinterpret_cast<BITMAPINFO*>(this);
    }
};
