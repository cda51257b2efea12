// CSTRING: editing and extracting.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"

#include <algorithm>
#include <cstring>

using charwalk::CountBytes;
using charwalk::kAll;
using charwalk::SkipChars;

CSTRING const& CSTRING::MakeLower() {
    if (StandardEntry() && StrLen) {
        CharLowerBuffA(Buffer, StrLen);
    }
    return *this;
}

CSTRING const& CSTRING::MakeUpper() {
    if (StandardEntry() && StrLen) {
        CharUpperBuffA(Buffer, StrLen);
    }
    return *this;
}

// The bytes between the new and the old terminator stay, and come back with the next append; callers rely on it.
CSTRING const& CSTRING::Delete(unsigned int pos, unsigned int count) {
    if (!StandardEntry()) {
        return *this;
    }
    if (pos == kAll) {
        pos = StrLen > count ? StrLen - count : 0;
    }
    if (pos >= StrLen) {
        return *this;
    }
    count = std::min(StrLen - pos, count);
    char* const to = SkipChars(Buffer, pos);
    char const* const from = SkipChars(to, count);
    auto const removed = static_cast<std::uint32_t>(from - to);
    std::memmove(to, from, std::strlen(from) + 1);
    StrLen -= count;
    // The count of a joined list may be behind its text; it never passes zero.
    ByteCount -= std::min(ByteCount, removed);
    return *this;
}

CSTRING const& CSTRING::Insert(char const* text, unsigned int pos, unsigned int count) {
    if (!StandardEntry() || !text || pos > StrLen) {
        return *this;
    }
    // A part of the own text moves with the block, and again when it opens up: it is taken aside first.
    if (text >= Buffer && text < Buffer + BufLen) {
        CSTRING const copy(text);
        return Insert(copy.Buffer, pos, count);
    }
    std::uint32_t const added = CountBytes(text, count);
    // What stands behind the walked part moves along and is its NUL, or a byte of 0x80 or above, which needs one more.
    std::uint32_t const end = Buffer[ByteCount] ? 2 : 1;
    if (!Resize(ByteCount + added + end)) {
        return *this;
    }
    std::size_t const at = CountBytes(Buffer, pos);
    std::size_t const moved = ByteCount + 1 > at ? ByteCount + 1 - at : 0;
    if (at + added + moved > BufLen) {
        return *this;
    }
    std::memmove(Buffer + at + added, Buffer + at, moved);
    std::memcpy(Buffer + at, text, added);
    StrLen = static_cast<std::uint32_t>(strnlen(Buffer, BufLen));
    ByteCount += added;
    return *this;
}

CSTRING const& CSTRING::Insert(char ch, unsigned int pos) {
    char const text[2] = {ch, '\0'};
    return Insert(text, pos, 1);
}

// Every result owns a block, an empty one too: callers may write into it.

CSTRING CSTRING::Left(unsigned int count) const {
    CSTRING part;
    if (StandardEntry() && count) {
        part.Copy(Buffer, CountBytes(Buffer, std::min(count, StrLen)));
    } else {
        part.Copy("", 0);
    }
    return part;
}

CSTRING CSTRING::Mid(unsigned int pos, unsigned int count) const {
    CSTRING part;
    if (StandardEntry() && pos < StrLen) {
        char const* const from = SkipChars(Buffer, pos);
        part.Copy(from, CountBytes(from, std::min(count, StrLen - pos)));
    } else {
        part.Copy("", 0);
    }
    return part;
}

CSTRING CSTRING::Right(unsigned int count) const {
    CSTRING part;
    if (StandardEntry()) {
        std::uint32_t const at = CountBytes(Buffer, StrLen - std::min(count, StrLen));
        part.Copy(Buffer + at, ByteCount > at ? ByteCount - at : 0);
    } else {
        part.Copy("", 0);
    }
    return part;
}

namespace {

// Steps through a text and over single NULs in it. The odd rule for bytes of 0x80 and above (they are passed only when
// a plain character follows) is what callers know; `end` keeps the step inside the block.
char* StepChar(char* place, char const* end) {
    if (place + 1 >= end) {
        return place;
    }
    if (static_cast<signed char>(*place) > 0) {
        return std::min(CharNextA(place), const_cast<char*>(end) - 1);
    }
    return static_cast<signed char>(place[1]) > 0 ? place + 1 : place;
}

}  // namespace

CSTRING const& CSTRING::Replace(char from, char to, int all) {
    if (!StandardEntry()) {
        return *this;
    }
    char const* const end = Buffer + std::max<std::uint32_t>(BufLen, 1);
    char* place = Buffer;
    if (from) {
        // The lengths stay, also when `to` is NUL: that is how a text is cut into a list.
        for (std::uint32_t i = 0; i < StrLen; ++i) {
            if (*place == from) {
                *place = to;
                if (!all) {
                    break;
                }
            }
            place = StepChar(place, end);
        }
        return *this;
    }
    char* next = StepChar(place, end);
    while (*place || *next) {
        if (!*place) {
            *place = to;
            if (!all) {
                break;
            }
        }
        if (next == place) {
            break;  // a byte that is never passed
        }
        place = next;
        next = StepChar(next, end);
    }
    StrLen = static_cast<std::uint32_t>(strnlen(Buffer, static_cast<std::size_t>(end - Buffer)));
    return *this;
}

CSTRING const& CSTRING::Replace(char const* text, unsigned int pos, unsigned int count) {
    if (!StandardEntry() || !text) {
        return *this;
    }
    std::uint32_t const start = pos != kAll ? pos : count < StrLen ? StrLen - count : 0;
    if (StrLen <= start) {
        return *this;
    }
    if (text >= Buffer && text < Buffer + BufLen) {
        CSTRING const copy(text);
        return Replace(copy.Buffer, pos, count);
    }
    std::uint32_t const replaced =
        std::min({static_cast<std::uint32_t>(lstrlenA(text)), std::uint32_t{count}, StrLen - start});
    Delete(start, replaced);
    // With ~0 the position is beyond the end and nothing is inserted; callers use it to cut a tail off.
    return Insert(text, pos, replaced);
}

CSTRING const& CSTRING::Replace(char const* find, char const* with, int all) {
    if (!StandardEntry() || !find || !with || !*find) {
        return *this;
    }
    auto const inside = [this](char const* text) { return text >= Buffer && text < Buffer + BufLen; };
    if (inside(find) || inside(with)) {
        CSTRING const findCopy(find);
        CSTRING const withCopy(with);
        return Replace(findCopy.Buffer, withCopy.Buffer, all);
    }
    auto const findLength = static_cast<std::uint32_t>(lstrlenA(find));
    auto const withLength = static_cast<std::uint32_t>(lstrlenA(with));
    std::uint32_t position = 0;
    constexpr std::uint64_t kNotStuck = ~std::uint64_t{0};
    std::uint64_t stuck = kNotStuck;
    do {
        position = Find(find, position);
        std::uint32_t const left = StrLen - position;
        if (position == kAll || stuck == left) {
            break;
        }
        std::size_t const length = std::strlen(Buffer);
        std::uint32_t const bytes = ByteCount;
        Delete(position, findLength);
        bool const stays = std::strlen(Buffer) == length;
        Insert(with, position, kAll);
        position += withLength;
        // A match behind the walk's end stays where it is, and the text is put in at that end. Where that changes
        // nothing, or leads to the same match again, it would go on for ever.
        stuck = kNotStuck;
        if (stays && ByteCount == bytes) {
            break;
        }
        if (stays && std::strlen(Buffer) - length == ByteCount - bytes) {
            stuck = left;
        }
    } while (all);
    return *this;
}
