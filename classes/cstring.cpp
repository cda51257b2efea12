// CSTRING: storage, lengths, locking, assignment, concatenation and character access.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"
#include "core/bytes.h"

#include <algorithm>
#include <cstring>
#include <new>

using charwalk::CharSize;
using charwalk::CountBytes;
using charwalk::HasNul;
using charwalk::kAll;
using charwalk::SkipChars;

namespace {

constexpr std::uint32_t kGranule = 16;
constexpr std::uint32_t kDirectWriteSize = 1024;

// Shown by every object that owns no block. Writable only because references and pointers into a text are; never
// written.
char g_emptyText[1];

// CharNextA must find a NUL behind a lead byte, hence a text of one character instead of the character alone.
struct OneCharacter {
    explicit OneCharacter(char ch) : text{ch, '\0'} {}
    char text[2];
};

char* NewBlock(std::uint64_t size) {
    return size > 0xFFFFFFFF ? nullptr
                             : static_cast<char*>(::operator new(static_cast<std::size_t>(size), std::nothrow));
}

void FreeBlock(char* block) {
    ::operator delete(block);
}

/// Size of a new block for @p size bytes: a whole granule more than fits.
std::uint64_t RoomySize(std::uint64_t size) {
    return (size & ~std::uint64_t{kGranule - 1}) + kGranule;
}

/// Size of a block that grows to @p size bytes: the last granule filled up.
std::uint64_t TightSize(std::uint64_t size) {
    return (size + kGranule - 1) & ~std::uint64_t{kGranule - 1};
}

/// Clears what may lie behind the text in a block of RoomySize(): at most one byte more than a granule. Whole granules cost
/// less than an exact length.
void ClearEnd(char* block, std::uint64_t size) {
    std::memset(block + size - kGranule, 0, kGranule);
    if (size > kGranule) {
        std::memset(block + size - 2 * kGranule, 0, kGranule);
    }
}

std::uint32_t Length(char const* text) {
    return static_cast<std::uint32_t>(std::strlen(text));
}

/// Copies bytes and tells whether there was no NUL among them: one pass where the text's length must be known anew.
bool CopyText(char* to, char const* from, std::uint32_t count) {
    if (count < sizeof(std::uint64_t)) {
        std::copy_n(from, count, to);
        return !HasNul(from, count);
    }
    std::uint64_t marks = 0;
    bytes::ForEachWord(count, [&](std::size_t at) {
        std::uint64_t const word = bytes::Word(from + at);
        std::memcpy(to + at, &word, sizeof word);
        marks |= bytes::NulMarks(word);
    });
    return !(marks & bytes::kMarks);
}

}  // namespace

void CSTRING::Init() {
    Buffer = g_emptyText;
    StrLen = ByteCount = BufLen = LockCount = 0;
    AutoLocked = 0;
}

void CSTRING::Free() {
    if (BufLen) {
        FreeBlock(Buffer);
        Init();
    }
}

CSTRING::CSTRING() {
    Init();
}

CSTRING::CSTRING(CSTRING const& other) : CBASE(other) {
    Init();
    Copy(other.Buffer, other.ByteCount);
}

CSTRING::CSTRING(char const* text) {
    Init();
    Copy(text, kAll);
}

CSTRING::CSTRING(unsigned int size) {
    Init();
    Alloc(size);
}

CSTRING::~CSTRING() {
    Free();
}

void CSTRING::vCallConstructor(CBASE* place) const {
    new (static_cast<void*>(place)) CSTRING;
}

void CSTRING::vCallDestructor() {
    this->~CSTRING();
}

void CSTRING::vCopy(CBASE const& source) {
    *this = static_cast<CSTRING const&>(source);
}

unsigned int CSTRING::vGetSize() const {
    return sizeof(CSTRING);
}

int CSTRING::IsValid() const {
    // The whole object first; its head lies inside it, so that the base's own probe would find nothing new.
    static_assert(sizeof(CSTRING) > sizeof(CBASE));
    if (IsBadWritePtr(const_cast<CSTRING*>(this), sizeof(CSTRING))) {
        return 0;
    }
    return std::memcmp(&signature, "BASE", sizeof signature) == 0 ? 1 : 0;
}

int CSTRING::StandardEntry() const {
    if (!IsValid()) {
        return 0;
    }
    if (AutoLocked) {
        const_cast<CSTRING*>(this)->AutoUnlock();
    }
    return 1;
}

void CSTRING::AutoUnlock() {
    StrLen = Length(Buffer);
    ByteCount = CountBytes(Buffer, kAll);
    AutoLocked = 0;
}

// Always empties the text, also when the block is kept and when a needed growth failed. Adds a granule even to a
// multiple of one, unlike Resize: a text that was just assigned is likely to be appended to.
int CSTRING::Alloc(unsigned int size) {
    if (LockCount) {
        return BufLen >= size;
    }
    if (BufLen < size) {
        std::uint64_t const wanted = RoomySize(size);
        if (char* block = NewBlock(wanted)) {
            if (BufLen) {
                FreeBlock(Buffer);
            }
            Buffer = block;
            BufLen = static_cast<std::uint32_t>(wanted);
        }
    }
    if (BufLen) {
        std::memset(Buffer, 0, BufLen);
        StrLen = ByteCount = 0;
    }
    return BufLen >= size;
}

// Keeps the walked part of the text only: what lies behind a byte of 0x80 or above is lost on growth, as everywhere.
int CSTRING::Resize(unsigned int size) {
    if (LockCount || BufLen >= size) {
        return BufLen >= size;
    }
    std::uint64_t const wanted = TightSize(size);
    char* block = NewBlock(wanted);
    if (!block) {
        return 0;
    }
    // The cached count can be out of date, but what it counted lay in the old block.
    std::uint32_t const kept = BufLen ? std::min(ByteCount + 1, BufLen) : 0;
    std::memcpy(block, Buffer, kept);
    std::memset(block + kept, 0, static_cast<std::size_t>(wanted) - kept);
    if (BufLen) {
        FreeBlock(Buffer);
    }
    Buffer = block;
    BufLen = static_cast<std::uint32_t>(wanted);
    return 1;
}

void CSTRING::Copy(char const* source, unsigned int count) {
    if (!source || LockCount) {
        return;
    }
    bool const walked = count == kAll;
    if (walked) {
        count = CountBytes(source, kAll);
    }
    if (source >= Buffer && source < Buffer + BufLen) {
        CopyWithin(source, count);
        return;
    }
    if (BufLen > count) {
        std::memset(Buffer + count, 0, BufLen - count);
    } else {
        std::uint64_t const size = RoomySize(std::uint64_t{count} + 1);
        char* const block = NewBlock(size);
        if (!block) {
            Alloc(0);
            return;
        }
        if (BufLen) {
            FreeBlock(Buffer);
        }
        Buffer = block;
        BufLen = static_cast<std::uint32_t>(size);
        ClearEnd(block, size);
    }
    bool whole = walked;
    if (walked) {
        bytes::Copy(Buffer, source, count);
    } else {
        whole = CopyText(Buffer, source, count);
    }
    StrLen = whole ? count : Length(Buffer);
    ByteCount = count;
}

// A part of the own text moves to the front. The byte right behind it keeps what it held and so becomes part of the
// text when the part is shorter than the text before it; callers rely on it. Bytes that the walk does not reach arrive
// as zeros.
void CSTRING::CopyWithin(char const* source, unsigned int count) {
    count = std::min(count, BufLen - 1);
    std::uint32_t const moved = CountBytes(source, count);
    std::memmove(Buffer, source, moved);
    std::memset(Buffer + moved, 0, count - moved);
    if (count + 1 < BufLen) {
        std::memset(Buffer + count + 1, 0, BufLen - count - 1);
    }
    StrLen = Length(Buffer);
    ByteCount = count;
}

// Writes no terminator: blocks are zero behind their text. Where stale bytes lie there instead, the append shows them.
void CSTRING::Concat(char const* source, unsigned int count) {
    if (LockCount) {
        return;
    }
    bool const walked = count == kAll;
    if (walked) {
        count = CountBytes(source, kAll);
    }
    // Never read behind the own block, however much is asked for.
    bool const own = source >= Buffer && source < Buffer + BufLen;
    if (own) {
        count = std::min(count, static_cast<std::uint32_t>(Buffer + BufLen - source));
    }
    std::uint32_t const sum = ByteCount + count;
    if (sum < count) {
        return;
    }
    bool whole = walked || !HasNul(source, count);
    if (BufLen > sum) {
        whole = whole && !HasNul(Buffer, ByteCount);
        if (own) {
            std::memmove(Buffer + ByteCount, source, count);
        } else if (count) {
            bytes::Copy(Buffer + ByteCount, source, count);
        }
    } else {
        std::uint64_t const size = TightSize(std::uint64_t{sum} + 1);
        char* const block = NewBlock(size);
        if (!block) {
            return;
        }
        // The text ends in the last granule.
        std::memset(block + size - kGranule, 0, kGranule);
        whole = CopyText(block, Buffer, ByteCount) && whole;
        if (count) {
            bytes::Copy(block + ByteCount, source, count);
        }
        if (BufLen) {
            FreeBlock(Buffer);
        }
        Buffer = block;
        BufLen = static_cast<std::uint32_t>(size);
    }
    StrLen = whole && !Buffer[sum] ? sum : Length(Buffer);
    ByteCount = sum;
}

unsigned int CSTRING::GetStrLen() {
    if (!StandardEntry()) {
        return 0;
    }
    return LockCount ? Length(Buffer) : StrLen;
}

unsigned int CSTRING::GetByteCount() {
    if (!StandardEntry()) {
        return 0;
    }
    return LockCount ? CountBytes(Buffer, kAll) : ByteCount;
}

unsigned int CSTRING::GetBufLen(unsigned int size) {
    Resize(size);
    return BufLen;
}

char* CSTRING::BufferLock(unsigned int size) {
    if (!StandardEntry()) {
        return nullptr;
    }
    if (Resize(std::max<unsigned int>(size, kDirectWriteSize))) {
        ++LockCount;
    }
    return LockCount ? Buffer : nullptr;
}

unsigned int CSTRING::BufferUnlock() {
    if (!StandardEntry()) {
        return 0;
    }
    StrLen = Length(Buffer);
    ByteCount = CountBytes(Buffer, kAll);
    if (LockCount) {
        --LockCount;
    }
    return LockCount;
}

char* CSTRING::operator++() {
    return BufferLock(kDirectWriteSize);
}

char* CSTRING::operator--(int) {
    BufferUnlock();
    return nullptr;
}

CSTRING::operator char*() {
    if (!StandardEntry() || !Resize(kDirectWriteSize)) {
        return nullptr;
    }
    AutoLocked = 1;
    return Buffer;
}

CSTRING::operator char const*() const {
    return IsValid() ? Buffer : nullptr;
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): Copy() takes parts of its own buffer too.
CSTRING const& CSTRING::operator=(CSTRING const& other) {
    if (StandardEntry() && other.IsValid()) {
        Copy(other.Buffer, other.AutoLocked ? kAll : other.ByteCount);
    }
    return *this;
}

CSTRING const& CSTRING::operator=(char const* text) {
    if (StandardEntry()) {
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::operator=(char ch) {
    if (StandardEntry()) {
        OneCharacter const one(ch);
        Copy(one.text, CharSize(one.text));
    }
    return *this;
}

CSTRING const& CSTRING::Append(CSTRING const& other) {
    if (StandardEntry() && other.IsValid()) {
        Concat(other.Buffer, other.AutoLocked ? kAll : other.ByteCount);
    }
    return *this;
}

CSTRING const& CSTRING::Append(char const* text) {
    if (StandardEntry()) {
        Concat(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::Append(char ch) {
    if (StandardEntry()) {
        OneCharacter const one(ch);
        Concat(one.text, CharSize(one.text));
    }
    return *this;
}

CSTRING const& CSTRING::operator+=(CSTRING const& other) {
    return Append(other);
}

CSTRING const& CSTRING::operator+=(char const* text) {
    return Append(text);
}

CSTRING const& CSTRING::operator+=(char ch) {
    return Append(ch);
}

// Takes two texts over as one, into a block of the size that a copy of their sum has. Without memory for both, as much as
// there is room for.
void CSTRING::Join(char const* first, unsigned int firstCount, char const* second, unsigned int secondCount) {
    std::uint64_t const sum = std::uint64_t{firstCount} + secondCount;
    std::uint64_t const size = RoomySize(sum + 1);
    char* const block = NewBlock(size);
    if (!block) {
        Copy(first, firstCount);
        Concat(second, secondCount);
        return;
    }
    ClearEnd(block, size);
    bool whole = CopyText(block, first, firstCount);
    whole = CopyText(block + firstCount, second, secondCount) && whole;
    Buffer = block;
    BufLen = static_cast<std::uint32_t>(size);
    ByteCount = static_cast<std::uint32_t>(sum);
    StrLen = whole ? ByteCount : Length(block);
}

// Every result owns a block, an empty one too: callers may write into it.

CSTRING CSTRING::operator+(CSTRING const& other) const {
    CSTRING sum;
    if (StandardEntry() && other.IsValid()) {
        sum.Join(Buffer, ByteCount, other.Buffer, other.AutoLocked ? CountBytes(other.Buffer, kAll) : other.ByteCount);
    } else {
        sum.Copy("", 0);
    }
    return sum;
}

CSTRING CSTRING::operator+(char const* text) const {
    CSTRING sum;
    if (StandardEntry()) {
        sum.Join(Buffer, ByteCount, text, CountBytes(text, kAll));
    } else {
        sum.Copy("", 0);
    }
    return sum;
}

CSTRING CSTRING::operator+(char ch) const {
    CSTRING sum;
    if (StandardEntry()) {
        OneCharacter const one(ch);
        sum.Join(Buffer, ByteCount, one.text, CharSize(one.text));
    } else {
        sum.Copy("", 0);
    }
    return sum;
}

char CSTRING::GetChar(unsigned int index) {
    if (!StandardEntry()) {
        return '\0';
    }
    return *SkipChars(Buffer, index == kAll ? GetStrLen() - 1 : index);
}

char& CSTRING::GetRef(unsigned int index) {
    if (!StandardEntry()) {
        return g_emptyText[0];
    }
    if (index == kAll) {
        index = GetStrLen() - 1;
    }
    std::size_t at = CountBytes(Buffer, index);
    if (at + 1 >= BufLen) {
        Resize(BufLen + 1);
        at = CountBytes(Buffer, index);
    }
    AutoLocked = index >= StrLen;
    return Buffer[at];
}

CSTRING const& CSTRING::SetChar(unsigned int index, char ch) {
    if (StandardEntry()) {
        char* place = SkipChars(Buffer, index);
        if (*place) {
            *place = ch;
        }
    }
    return *this;
}
