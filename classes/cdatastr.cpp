#include "cvutil32/cdatastr.h"

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <new>
#include <utility>

#include "classes/charwalk.h"

namespace {

constexpr std::uint32_t kMarkSignature = 0x5A535444;  // "DTSZ" in memory
using charwalk::kNone;

}  // namespace

// Tells a CDATASTR from a plain CSTRING. The copies of an object share one; the last of them to go takes it along, so
// that it never reads as anything but valid while somebody holds it. Copies may live on different threads, which know
// nothing of each other.
class CDATASTRMARK {
  public:
    virtual ~CDATASTRMARK() = default;

    std::uint32_t signature = kMarkSignature;
    std::atomic<std::uint32_t> holders = 1;
};

CDATASTR::CDATASTR() : marker(nullptr) {
    if (!IsBadWritePtr(this, sizeof *this)) {
        marker = new (std::nothrow) CDATASTRMARK;
    }
}

CDATASTR::CDATASTR(char const* text) : CSTRING(text), marker(nullptr) {
    if (!IsBadWritePtr(this, sizeof *this)) {
        marker = new (std::nothrow) CDATASTRMARK;
    }
}

CDATASTR::CDATASTR(CDATASTR const& other) : CSTRING(other), marker(nullptr) {
    if (other.IsValid()) {
        marker = other.marker;
        ++marker->holders;
    }
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): equal markers say that there is nothing to take over.
CDATASTR& CDATASTR::operator=(CDATASTR const& other) {
    CSTRING::operator=(other);
    if (IsValid() && other.IsValid() && marker != other.marker) {
        CDATASTRMARK* const old = std::exchange(marker, other.marker);
        ++marker->holders;
        if (--old->holders == 0) {
            delete old;
        }
    }
    return *this;
}

CDATASTR::~CDATASTR() {
    if (IsValid() && --marker->holders == 0) {
        delete marker;
    }
    marker = nullptr;
}

int CDATASTR::IsValid() const {
    return !IsBadWritePtr(const_cast<CDATASTR*>(this), sizeof *this) && IsValidcBase() &&
           !IsBadWritePtr(marker, sizeof *marker) && marker->signature == kMarkSignature;
}

void CDATASTR::CleanDelimiters(char delimiter) {
    if (!IsValid()) {
        return;
    }
    char const one[] = {delimiter, '\0'};
    char const two[] = {delimiter, delimiter, '\0'};
    while (Find(two, 0) != kNone) {
        unsigned int const length = GetStrLen();
        unsigned int const bytes = GetByteCount();
        Replace(two, one, 1);
        if (GetStrLen() == length && GetByteCount() == bytes) {
            break;  // bytes that the character walk does not reach cannot be replaced
        }
    }
    if (Find(delimiter, 0) == 0) {
        Delete(0, 1);
    }
    unsigned int const last = Find(delimiter, kNone);
    if (last != kNone && last == GetStrLen() - 1) {
        Delete(last, 1);
    }
}

void CDATASTR::NormalizeDelimiters(char delimiter, char const* set) {
    if (!IsValid() || !set) {
        return;
    }
    for (; *set; ++set) {
        if (*set != delimiter) {
            Replace(*set, delimiter, 1);
        }
    }
}

void CDATASTR::RemoveBackslashes(char delimiter) {
    if (IsValid()) {
        char const escaped[] = {'\\', delimiter, '\0'};
        char const plain[] = {delimiter, '\0'};
        Replace(escaped, plain, 1);
    }
}

void CDATASTR::RemoveDuplicates(char delimiter) {
    if (!IsValid()) {
        return;
    }
    CSTRING item;
    for (unsigned int position = 0; EnumDataItems(&position, &item, delimiter);) {
        unsigned int const length = item.GetStrLen();
        char const* const text = std::as_const(item);
        for (unsigned int at; (at = FindNoCase(text, position)) != kNone;) {
            unsigned int const before = GetStrLen();
            Delete(at, length);
            if (GetStrLen() == before) {
                break;  // written under a lock that is still held
            }
        }
    }
}

int CDATASTR::EnumDataItems(unsigned int* position, CSTRING* item, char delimiter) const {
    if (!IsValid() || !position || !item->IsValid()) {
        return 0;
    }
    *item = static_cast<CSTRING const&>(*this);
    if (item->GetStrLen() > *position) {
        if (*position) {
            item->Delete(0, *position);
        }
        if (item->GetStrLen()) {
            unsigned int const end = item->Find(delimiter, 0);
            if (end != kNone) {
                item->Delete(end, kNone);
            }
            *position += item->GetStrLen() + 1;  // the 1 steps over the delimiter, also behind the last item
            return 1;
        }
    }
    *item = "";
    return 0;
}

#include "classes/charwalk.h"

namespace {

enum class Number { None, Blank, Read };

// What a scan for a signed decimal number makes of a text: white space is passed, the rest is read as far as it fits.
Number ReadNumber(char const* text, unsigned int* value) {
    while (*text == ' ' || (*text >= '\t' && *text <= '\r')) {
        ++text;
    }
    if (!*text) {
        return Number::Blank;
    }
    bool const negative = *text == '-';
    if (*text == '-' || *text == '+') {
        ++text;
    }
    if (*text < '0' || *text > '9') {
        return Number::None;
    }
    std::uint32_t number = 0;
    for (; *text >= '0' && *text <= '9'; ++text) {
        number = number * 10 + static_cast<std::uint32_t>(*text - '0');
    }
    *value = negative ? 0 - number : number;
    return Number::Read;
}

}  // namespace

int CDATASTR::EnumDataItems(unsigned int* position, unsigned int* value, char delimiter) const {
    CSTRING item;
    if (!value || !EnumDataItems(position, &item, delimiter)) {
        return 0;
    }
    if (ReadNumber(std::as_const(item), value) == Number::None) {
        *value = 0;
        return 0;
    }
    return 1;
}
