// CDATASTR: lists of file specifications.
#include "cvutil32/cdatastr.h"

#include <algorithm>

#include "classes/charwalk.h"

namespace {

using charwalk::kNone;

}  // namespace

// Only a quoted specification at the very start of a list, with no space before the quote, keeps its spaces, and the
// position behind an unquoted one is counted in the cleaned list. Callers know both.
int CDATASTR::EnumFileSpecs(unsigned int* position, CSTRING* specification, int* quoted) const {
    if (!IsValid() || !position || !specification->IsValid()) {
        return 0;
    }
    auto& self = const_cast<CDATASTR&>(*this);  // searching takes in what was written through a pointer, and no more
    int found = 0;
    unsigned int const quote = self.Find('"', *position);
    bool const isQuoted = quote != kNone && self.Find(' ', 0) > quote;
    if (*position != kNone && *position >= self.GetStrLen()) {
        // The end of the list. Where the character walk ends early, a quote behind it would be found again and again.
    } else if (isQuoted) {
        *specification = static_cast<CSTRING const&>(*this);
        if (specification->GetStrLen()) {
            unsigned int const closing = specification->Find('"', quote + 1);
            if (closing != kNone) {
                specification->Delete(closing + 1, kNone);
            }
            *position += specification->GetStrLen();
            found = 1;
        }
    } else {
        CDATASTR rest(*this);
        rest.Delete(0, *position);
        rest.NormalizeDelimiters(' ', DATASTR_DELIMITERS);
        rest.CleanDelimiters(' ');
        unsigned int first = 0;
        found = rest.EnumDataItems(&first, specification, ' ');
        if (found) {
            *position += specification->GetStrLen() + 1;
        }
    }
    if (!found) {
        *specification = "";
        return 0;
    }
    specification->Replace("\"", "", 1);
    if (quoted) {
        *quoted = isQuoted;
    }
    return 1;
}

// Nothing can be taken out of a text that was written under a lock which is still held.
bool CDATASTR::Shortened(unsigned int position) {
    unsigned int const before = GetStrLen();
    Delete(position, 1);
    return GetStrLen() < before;
}

void CDATASTR::NormalizeFileSpecs() {
    if (!IsValid() || GetStrLen() == 0) {
        return;
    }
    // One pass in the order of the set: what a later character uncovers at an end stays.
    for (char const* delimiter = DATASTR_DELIMITERS; *delimiter; ++delimiter) {
        while (GetChar(0) == *delimiter && Shortened(0)) {
        }
        while (GetStrLen() && GetChar(kNone) == *delimiter && Shortened(kNone)) {
        }
    }
    CSTRING out;
    if (GetStrLen()) {
        CSTRING specification;
        int quoted = 0;
        for (unsigned int position = 0; EnumFileSpecs(&position, &specification, &quoted);) {
            if (specification.GetStrLen() == 0) {
                continue;
            }
            if (quoted) {
                out.Append('"');
            }
            out.Append(specification);
            out.Append(quoted ? "\" " : " ");
        }
    }
    if (out.GetStrLen() && out.GetChar(kNone) == ' ') {
        out.Delete(kNone, 1);
    }
    char const* const text = static_cast<CSTRING const&>(out);
    *this = CDATASTR(text);
}
