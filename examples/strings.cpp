// CSTRING: texts that grow, are searched, edited and taken apart; and what to do about bytes of 0x80 and above.
#include <cvutil32.h>

#include "check.h"

static void FirstDay() {
    CSTRING name("Ada");
    name += ' ';
    name += "Lovelace";
    if (name == "Ada Lovelace" && name > 5) {            // the text; the length
        name.Replace("Ada", "Augusta Ada", 1);           // everywhere
        unsigned int const space = name.Find(' ', ~0u);  // from ~0: the last one
        CSTRING family = name.Mid(space + 1, ~0u);       // ~0: all that follows
        family.MakeUpper();
        name.wsprintfA("%s, %d letters", static_cast<char const*>(family), static_cast<int>(family));
    }
    CHECK(name == "LOVELACE, 8 letters");
    CHECK(name.Find('?', 0) == ~0u);
}

static void Paths() {
    CSTRING path("C:\\LETTERS");
    path.AppendFile("JUNE.TXT");
    CSTRING folder;
    CSTRING name;
    CSTRING extension;
    path.SplitPath(nullptr, &folder, &name, &extension);
    CHECK(path == "C:\\LETTERS\\JUNE.TXT");
    CHECK(folder == "\\LETTERS\\");
    CHECK(name == "JUNE");
    CHECK(extension == ".TXT");
}

static void FilledByTheSystem() {
    CSTRING folder;
    char* const block = folder.BufferLock(MAX_PATH);  // at least 1024 bytes
    if (block) {
        GetTempPathA(MAX_PATH, block);
        folder.BufferUnlock();  // takes the new length in
    }
    CHECK(folder > 0);
}

// A constant object is compared by the system's function, in whatever order is wanted.
static bool ComesBefore(CSTRING const& first, CSTRING const& second) {
    return lstrcmpA(first, second) < 0;
}

// Takes over a text with any bytes: the members that assign stop at the first of 0x80 or above.
static void Assign(CSTRING* string, char const* text) {
    if (char* const block = string->BufferLock(static_cast<unsigned int>(lstrlenA(text)) + 1)) {
        lstrcpyA(block, text);
        string->BufferUnlock();
    }
}

static void HighBytes() {
    char const* const text = "M\xFCller";
    CSTRING name(text);
    CHECK(name == "M");
    Assign(&name, text);
    CHECK(name == text);
    CHECK(name.GetStrLen() == 6 && name.GetByteCount() == 1);  // what can be read; what a copy takes
}

int main() {
    FirstDay();
    Paths();
    FilledByTheSystem();
    CHECK(ComesBefore("Ada", "Bea") && !ComesBefore("Bea", "Ada"));
    HighBytes();
    return wrong;
}
