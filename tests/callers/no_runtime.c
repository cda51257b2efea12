/* What a C program needs of its runtime library, where there is none: the compilers of *-windows-msvc come without. */
#include <windows.h>

int main(void);
void Start(void);
int puts(const char* line);
void* memset(void* block, int byte, size_t size);
void* memcpy(void* block, const void* from, size_t size);

void Start(void) {
    ExitProcess((UINT)main());
}

int puts(const char* line) {
    HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD written;
    return WriteFile(output, line, (DWORD)lstrlenA(line), &written, NULL) && WriteFile(output, "\n", 1, &written, NULL)
               ? 0
               : -1;
}

/* Volatile, or the compiler would make them calls of themselves. */
void* memset(void* block, int byte, size_t size) {
    volatile char* to = (volatile char*)block;
    while (size-- > 0) {
        *to++ = (char)byte;
    }
    return block;
}

void* memcpy(void* block, const void* from, size_t size) {
    volatile char* to = (volatile char*)block;
    const char* at = (const char*)from;
    while (size-- > 0) {
        *to++ = *at++;
    }
    return block;
}
