// CDATASTR: lists of items and of file names in one text, cleaned up and walked through.
#include <cvutil32.h>

#include "check.h"

static void Items() {
    CDATASTR colours("red, green; ;blue;red");
    colours.NormalizeDelimiters(';', ", ");  // each of these becomes a semicolon
    colours.CleanDelimiters(';');            // of several one, of those at the ends none
    CSTRING item;
    CSTRING last;
    unsigned int position = 0;
    while (colours.EnumDataItems(&position, &item, ';')) {
        last = item;
    }
    CHECK(colours == "red;green;blue;red");
    CHECK(last == "red");
}

static void Numbers() {
    CDATASTR const numbers("12;30;-4");
    unsigned int position = 0;
    unsigned int number;
    int sum = 0;
    while (numbers.EnumDataItems(&position, &number, ';')) {
        sum += static_cast<int>(number);
    }
    CHECK(sum == 38);
    CHECK(position > 8);  // came to the end, and not to an item that is no number
}

// One delimiter between two names, or the walk gives the tail of a name again.
static void Files() {
    CDATASTR typed("a.txt, b.txt;  c.txt");
    typed.NormalizeDelimiters(' ', DATASTR_DELIMITERS);
    typed.CleanDelimiters(' ');
    CSTRING file;
    int count = 0;
    unsigned int position = 0;
    while (typed.EnumFileSpecs(&position, &file, nullptr)) {
        ++count;
    }
    CHECK(count == 3);
    CHECK(typed == "a.txt b.txt c.txt");
}

static void QuotedFile() {
    CDATASTR const typed("\"my letter.txt\";b.txt");
    CSTRING file;
    int quoted;
    unsigned int position = 0;
    CHECK(typed.EnumFileSpecs(&position, &file, &quoted) && quoted && file == "my letter.txt");
    CHECK(typed.EnumFileSpecs(&position, &file, &quoted) && !quoted && file == "b.txt");
    CHECK(!typed.EnumFileSpecs(&position, &file, &quoted));
}

int main() {
    Items();
    Numbers();
    Files();
    QuotedFile();
    return wrong;
}
