/// @file cstring.h
/// `CSTRING`: the string value of the library.
///
/// A CSTRING owns a text of the ANSI code page in a heap block of its own, in granules of 16 bytes, and knows the
/// text's length without counting. An object that never held a text owns no block and shows a shared empty text.
///
/// Validity. Every member first checks that the object is sound (see cbase.h). On anything else it does nothing and
/// returns what its description names: the object itself, 0, NUL or null. No member throws, and none reports an error:
/// when memory runs out an assignment leaves an empty text, a sum lacks the part that there was no room for, and
/// everything else leaves the text as it was.
///
/// Positions and counts are unsigned 32-bit numbers of characters from 0; 0xFFFFFFFF (~0) stands for all of the text or
/// for its last character, where a member says so. They are counted by walking the text from its start, a double-byte
/// character as one, and the walk ends at the NUL and at the first byte of 0x80 or above. A text assigned or appended
/// by pointer ends there too: the bytes "ab\xE9" "cd" become "ab". Two lengths follow from this: GetStrLen() counts the
/// bytes up to the NUL, GetByteCount() those of the walk, and it is the second one that copies and appends move.
///
/// Bytes of 0x80 and above, such as the letter in "M\xFCller", end the text in every member that takes over, inserts,
/// loads, formats or splits: "M" is left. What the system writes into the block itself keeps them (GetWindowTextA(),
/// GetDlgItemTextA(), GetWindowsDirectoryA(), the members for the registry), and so does what the caller writes there:
///
///     CSTRING name;
///     char const* text = "M\xFCller";
///     if (char* block = name.BufferLock(lstrlenA(text) + 1)) lstrcpyA(block, text);
///     name.BufferUnlock();
///
/// Such a text can be read, compared, searched and put into capitals. Copying it, appending to it, taking it apart and
/// growing its block lose that byte or what lies behind it, and a position behind it means the byte itself;
/// GetByteCount() is below GetStrLen() then. Hand such texts on as `char const*`, not as objects.
///
/// Writing into the buffer. A platform call can fill the text in place between BufferLock() and BufferUnlock() (or
/// `++s` and `s--`), which guarantee a writable block of at least 1024 bytes; until the last unlock the text can be
/// neither replaced, appended to nor moved, and the lengths are counted afresh whenever they are asked for. A plain
/// conversion to `char*` gives the same block for one call, and the next use of the object takes the new length in. A
/// reference from GetRef() or an index that lies at or behind the end does that too; writing a NUL through a reference
/// inside the text is not noticed.
///
/// Paths and texts of the system. Some members take the text as a path, and some get it from the system: a window, a
/// module, a profile file, the registry. Those of the latter that find nothing leave the text as it was, except the
/// members for the registry, which make it empty.
///
/// Comparisons and conversions with numbers concern the length: `s == 0` asks whether the text is empty, `s > 5`
/// whether it is longer than five, `int(s)` is its length. Both sides are compared as unsigned numbers, so nothing is
/// greater than -1. `s == "text"` compares the texts in the system's word order.
///
/// Numbers that are no lengths. `CSTRING(65)` is an empty text with room for 65 bytes, while `s = 65`, `s += 65` and the
/// sum `s + 65` concern the one character "A". A position is an `unsigned int`: an index or a length of the type `size_t`
/// compiles on Linux and is ambiguous on 64-bit Windows, and where it has 64 bits no position equals
/// `std::string::npos`.
///
/// Constant objects, and with them the result of an assignment, have no comparisons; `lstrcmpA(s, "text") == 0` serves
/// there, and wherever texts are put in order: `s < t` would compare addresses, so that a `std::map` of strings needs a
/// comparison of its own. The compiler refuses all these, a sum that begins with a `char const*`, and an object among the
/// arguments of a format: `"%s"` wants `(char const*)name`.
///
/// Reading as `char const*`. An object that is not constant becomes a `char*` on the way, which makes its block 1024
/// bytes large for good. Where many strings are kept, read them through a `CSTRING const&`.
///
///     CSTRING path("C:\\DATA");
///     path += '\\';
///     path += "ADDRESS.TXT";
///     GetWindowsDirectoryA(++path, 1024);
///     path--;
///     if (path[-1] != '\\') path += '\\';
///
/// Editing and searching. The same members look forwards from a position and, from ~0, for the last occurrence:
///
///     CSTRING file("LETTERS.OLD\\JUNE.TXT");
///     unsigned int const dot = file.Find('.', ~0u);
///     if (dot != ~0u) file.Delete(dot, ~0u);
///     file.Insert(".DOC", file.GetStrLen(), ~0u);
///     CSTRING name = file.Mid(file.Find('\\', ~0u) + 1, ~0u);
///     if (name == "JUNE.DOC") file.Replace("OLD", "NEW", 1);
///
/// Objects are not shared between threads without a lock of the caller's.
#pragma once

#include "cbase.h"

#include <type_traits>

/// Chooses a member for arguments of which one at least is an object of the family: for others there is no such type.
template <class... Arguments>
struct CVOBJECTS : std::false_type {};
/// The first argument is one, or one of those that follow is.
template <class First, class... Others>
struct CVOBJECTS<First, Others...>
    : std::integral_constant<bool, std::is_base_of<CBASE, First>::value || CVOBJECTS<Others...>::value> {};
/// @p Result, where one of the arguments is an object.
template <class Result, class... Arguments>
using CVANYOBJECT = typename std::enable_if<CVOBJECTS<Arguments...>::value, Result>::type;

/// A text of the ANSI code page with cached lengths, in a heap block of its own.
class CVCLASS CSTRING : public CBASE {
  public:
    // --- construction and lifetime

    /// An empty text that owns no block.
    CSTRING();

    /// A copy of the bytes that @p other has counted last, up to its first byte of 0x80 or above if it was filled through
    /// its block. Neither its validity nor a write that it has not taken in yet is looked at (unlike the assignment); the
    /// signature is copied as it stands.
    CSTRING(CSTRING const& other);

    /// A copy of a text.
    /// @param text  ends at the NUL or at the first byte of 0x80 or above; null gives an empty object.
    CSTRING(char const* text);

    /// An empty text with a block already owned.
    /// @param size  bytes that the block holds at least; there is always more room than that. No character: see the
    ///              assignment of one.
    CSTRING(unsigned int size);

    /// Refused: a character would be taken for a size. Assign it. A template, so that numbers do not look for it.
    template <int = 0>
    CSTRING(char ch) = delete;

    ~CSTRING() override;

    void vCallConstructor(CBASE* place) const override;
    void vCallDestructor() override;
    void vCopy(CBASE const& source) override;
    unsigned int vGetSize() const override;

    /// Tells whether this is a sound object. Any address may be asked.
    /// @return 1 if the whole object is writable memory and carries the signature, else 0.
    int IsValid() const;

    // --- lengths

    /// @return bytes up to the NUL, counted afresh while locked; 0 on an invalid object.
    unsigned int GetStrLen();

    /// @return bytes that the character walk spans, counted afresh while locked; 0 on an invalid object.
    unsigned int GetByteCount();

    /// Makes the block at least @p size bytes large, keeping the text, and tells its size. The object is not checked:
    /// it must be sound.
    /// @return the block's size in bytes, less than @p size if the growth failed or the object is locked; 0 for none.
    unsigned int GetBufLen(unsigned int size);

    // --- locking and raw access

    /// Hands out the buffer for writing until the matching BufferUnlock(). Locks nest.
    /// @param size  bytes wanted; at least 1024 are given. A locked block cannot grow.
    /// @return the buffer; null if it could not be made large enough (unless it is locked already) or on an invalid
    /// object.
    char* BufferLock(unsigned int size);

    /// Ends one BufferLock() and takes the new lengths in; without a lock it only does the latter.
    /// @return the number of locks that remain; 0 on an invalid object.
    unsigned int BufferUnlock();

    /// Same as BufferLock(1024).
    char* operator++();

    /// Same as BufferUnlock(), but the result is always null, also while a lock remains.
    char* operator--(int);

    /// A buffer of at least 1024 bytes to write into until the next use of the object, which takes the new lengths in.
    /// An object that is not constant comes here also where a `char const*` is wanted.
    /// @return null on an invalid object or if the block could not grow.
    operator char*();

    /// The text to read, of a constant object; null on an invalid one.
    operator char const*() const;

    // --- assignment and concatenation; all of them do nothing while the object is locked

    /// Takes over the text of @p other, up to its first byte of 0x80 or above if it was filled through its block; an
    /// invalid one changes nothing.
    CSTRING const& operator=(CSTRING const& other);

    /// Takes over a text, up to its first byte of 0x80 or above; null changes nothing. A tail of the object's own text
    /// may be assigned; one stale character then stays behind it.
    CSTRING const& operator=(char const* text);

    /// Becomes the text of one character, of any value; the NUL gives an empty text whose GetByteCount() is 1. A number
    /// comes here too: `s = 65` is "A".
    CSTRING const& operator=(char ch);

    /// Appends the text of @p other, up to its first byte of 0x80 or above if it was filled through its block; an invalid
    /// one appends nothing. What this text holds from such a byte on is written over.
    CSTRING const& Append(CSTRING const& other);

    /// Appends a text, up to its first byte of 0x80 or above; null appends nothing.
    CSTRING const& Append(char const* text);

    /// Appends one character, of any value.
    CSTRING const& Append(char ch);

    /// Same as Append().
    CSTRING const& operator+=(CSTRING const& other);
    /// Same as Append().
    CSTRING const& operator+=(char const* text);
    /// Same as Append().
    CSTRING const& operator+=(char ch);

    /// Both texts in a new object, each up to its first byte of 0x80 or above as for Append(); empty if either object is
    /// invalid.
    CSTRING operator+(CSTRING const& other) const CVRESULT;
    /// Both texts in a new object, as above, which is empty if this object is invalid; null adds nothing.
    CSTRING operator+(char const* text) const CVRESULT;
    /// The text and one character in a new object, which is empty if this object is invalid.
    CSTRING operator+(char ch) const CVRESULT;
    /// Refused: it would move the pointer by the text's length. Begin with `CSTRING(text)`.
    friend CSTRING operator+(char const* text, CSTRING const& string) = delete;

    // --- character access

    /// Reads one character.
    /// @param index  position; ~0 is the last character; behind the end lies the NUL.
    /// @return the byte there; NUL on an invalid object.
    char GetChar(unsigned int index);

    /// Gives write access to one character; one at or behind the end has room for itself and for a NUL after it.
    /// @param index  position; ~0 is the last character, in an empty text the terminator; one behind the end is the
    /// terminator.
    /// @return a reference that holds until the object is used again. On an invalid object it leads into the empty text
    /// that
    ///         all objects without a block share, and must not be written to.
    char& GetRef(unsigned int index);

    /// Same as GetRef(); a negative index is counted as the unsigned number of the same bits, so -1 is the last
    /// character.
    char& operator[](short index);
    /// Same as GetRef().
    char& operator[](unsigned short index);
    /// Same as GetRef(); -1 is the last character.
    char& operator[](int index);
    /// Same as GetRef().
    char& operator[](unsigned int index);
    /// Same as GetRef() with the low 32 bits; -1 is the last character.
    char& operator[](long index);
    /// Same as GetRef() with the low 32 bits.
    char& operator[](unsigned long index);

    /// Overwrites one character inside the text; at the end or behind it nothing happens. ~0 has no special meaning.
    /// The cached lengths stay, even when @p ch is NUL.
    CSTRING const& SetChar(unsigned int index, char ch);

    // --- comparison of the length, as unsigned 32-bit numbers; 1 or 0

    /// Whether the text is @p length bytes long.
    int operator==(int length);
    /// Whether the text is @p length bytes long.
    int operator==(unsigned int length);
    /// Whether the text is @p length bytes long.
    int operator==(long length);
    /// Whether the text is @p length bytes long.
    int operator==(unsigned long length);
    /// Whether the text is not @p length bytes long.
    int operator!=(int length);
    /// Whether the text is not @p length bytes long.
    int operator!=(unsigned int length);
    /// Whether the text is not @p length bytes long.
    int operator!=(long length);
    /// Whether the text is not @p length bytes long.
    int operator!=(unsigned long length);
    /// Whether the text is shorter than @p length.
    int operator<(int length);
    /// Whether the text is shorter than @p length.
    int operator<(unsigned int length);
    /// Whether the text is shorter than @p length.
    int operator<(long length);
    /// Whether the text is shorter than @p length.
    int operator<(unsigned long length);
    /// Whether the text is longer than @p length.
    int operator>(int length);
    /// Whether the text is longer than @p length.
    int operator>(unsigned int length);
    /// Whether the text is longer than @p length.
    int operator>(long length);
    /// Whether the text is longer than @p length.
    int operator>(unsigned long length);
    /// Whether the text is @p length bytes long or shorter.
    int operator<=(int length);
    /// Whether the text is @p length bytes long or shorter.
    int operator<=(unsigned int length);
    /// Whether the text is @p length bytes long or shorter.
    int operator<=(long length);
    /// Whether the text is @p length bytes long or shorter.
    int operator<=(unsigned long length);
    /// Whether the text is @p length bytes long or longer.
    int operator>=(int length);
    /// Whether the text is @p length bytes long or longer.
    int operator>=(unsigned int length);
    /// Whether the text is @p length bytes long or longer.
    int operator>=(long length);
    /// Whether the text is @p length bytes long or longer.
    int operator>=(unsigned long length);

    // --- refused by the compiler: these would compare addresses

    int operator==(char const* text) const = delete;      ///< Refused for a constant object; use lstrcmpA().
    int operator!=(char const* text) const = delete;      ///< Refused for a constant object; use lstrcmpA().
    int operator==(CSTRING const& other) const = delete;  ///< Refused; use Compare().
    int operator!=(CSTRING const& other) const = delete;  ///< Refused; use Compare().
    int operator<(char const* text) const = delete;       ///< Refused; use Compare() or lstrcmpA().
    int operator>(char const* text) const = delete;       ///< Refused; use Compare() or lstrcmpA().
    int operator<=(char const* text) const = delete;      ///< Refused; use Compare() or lstrcmpA().
    int operator>=(char const* text) const = delete;      ///< Refused; use Compare() or lstrcmpA().
    int operator<(CSTRING const& other) const = delete;   ///< Refused; use Compare() or lstrcmpA().
    int operator>(CSTRING const& other) const = delete;   ///< Refused; use Compare() or lstrcmpA().
    int operator<=(CSTRING const& other) const = delete;  ///< Refused; use Compare() or lstrcmpA().
    int operator>=(CSTRING const& other) const = delete;  ///< Refused; use Compare() or lstrcmpA().
    /// Refused: write the object first.
    friend int operator==(char const* text, CSTRING const& string) = delete;
    /// Refused: write the object first.
    friend int operator!=(char const* text, CSTRING const& string) = delete;

    /// The length, as GetStrLen().
    operator int();
    /// The length, as GetStrLen().
    operator long();
    /// The length, as GetStrLen().
    operator unsigned int();
    /// The length, as GetStrLen().
    operator unsigned long();

    // --- editing; all of them work on the text in place

    /// Small letters for capitals, as the code page in use pairs them.
    CSTRING const& MakeLower();
    /// Capitals for small letters.
    CSTRING const& MakeUpper();

    /// Takes characters out. The bytes behind the new end are not cleared: they come back with the next append, which
    /// callers rely on.
    /// @param pos  the first one; ~0 takes out the last @p count. At or behind the end nothing happens. Behind a byte of
    ///             0x80 or above only the length shrinks.
    /// @param count  how many; more than there are, and ~0, are all of them.
    CSTRING const& Delete(unsigned int pos, unsigned int count);

    /// Inserts the beginning of a text.
    /// @param text  ends at its first byte of 0x80 or above; null inserts nothing.
    /// @param pos  the character to insert in front of; behind the end nothing happens. In a text with a
    ///             byte of 0x80 or above, the bytes behind that one are partly written over.
    /// @param count  characters of @p text; ~0 is all of them.
    CSTRING const& Insert(char const* text, unsigned int pos, unsigned int count);

    /// Inserts one character. A NUL and a byte of 0x80 or above insert nothing.
    CSTRING const& Insert(char ch, unsigned int pos);

    /// Replaces a byte by another one, everywhere or where it stands first.
    ///
    /// The length stays, also when @p to is NUL: that is how a text becomes a list of parts, which a NUL as @p from
    /// turns back into a text (the last NUL before two of them stays its end).
    CSTRING const& Replace(char from, char to, int all);

    /// Overwrites characters with as many of a text.
    /// @param text  what is put in, up to its first byte of 0x80 or above.
    /// @param pos  where to begin; with ~0 the last @p count characters are taken out and nothing is put in.
    /// @param count  how many; fewer if either text ends before.
    CSTRING const& Replace(char const* text, unsigned int pos, unsigned int count);

    /// Replaces a text by another one, everywhere or where it is found first. The search goes on behind what was put in.
    /// @param find  what Find() looks for; null and an empty text change nothing.
    /// @param with  null changes nothing; an empty text takes out. It ends at its first byte of 0x80 or above, and in a
    ///              text that has such a byte itself the wrong place is replaced.
    /// @param all  nonzero for everywhere, 0 for the first place alone.
    CSTRING const& Replace(char const* find, char const* with, int all);

    // --- extracting; the results are new objects, empty ones of an invalid object. They end at a byte of 0x80 or above.

    /// The first @p count characters.
    CSTRING Left(unsigned int count) const CVRESULT;
    /// @p count characters from @p pos on, as many as there are.
    CSTRING Mid(unsigned int pos, unsigned int count) const CVRESULT;
    /// The last @p count characters.
    CSTRING Right(unsigned int count) const CVRESULT;

    // --- searching, as the system's locale compares

    /// Finds a character.
    /// @param ch  one of the code page in use.
    /// @param start  where to begin; ~0 looks for the last one in the whole text.
    /// @return its position; ~0 if there is none; 0 on an invalid object.
    unsigned int Find(char ch, unsigned int start);
    /// Finds a text; an empty one is never found. Arguments and result as above.
    unsigned int Find(char const* text, unsigned int start);
    /// As Find(), in whatever case.
    unsigned int FindNoCase(char ch, unsigned int start);
    /// As Find(), in whatever case.
    unsigned int FindNoCase(char const* text, unsigned int start);

    // --- comparison of the text

    /// Compares with a text as `lstrcmpA` does: in the word order of the user's locale, capitals apart from small
    /// letters.
    /// @return below 0, 0 or above 0; 0 on an invalid object, which therefore equals everything.
    int Compare(char const* text);

    /// Compares as Compare() does, in whatever case.
    int CompareNoCase(char const* text);

    /// Whether Compare() finds the texts equal.
    int operator==(char const* text);
    /// Whether Compare() finds the texts different.
    int operator!=(char const* text);

    // --- paths: the separator is the backslash, a drive ends with a colon, an extension begins at the last dot of the
    // last element. What they take in and hand out ends at its first byte of 0x80 or above, also in the middle of a name.

    /// Appends an element of a path with a backslash before it, unless the text ends or @p part begins with one. Only
    /// one side is looked at for each: two backslashes that meet both stay, and an empty text gets one in front.
    /// @param part  null appends nothing.
    CSTRING const& AppendSubdir(char const* part);

    /// Same as AppendSubdir().
    CSTRING const& AppendFile(char const* part);

    /// Becomes a path made of its parts, each of which may be null or empty.
    /// @param drive  its first character counts; a colon follows it.
    /// @param dir    a backslash follows it, unless it ends with one.
    /// @param name   appended as it is.
    /// @param ext    appended behind a dot, also if it begins with one, unless the text built so far begins with a dot.
    CSTRING const& MakePath(char const* drive, char const* dir, char const* name, char const* ext);

    /// Takes this path apart: X:\\dir\\file.txt is the drive X:, the directory \\dir\\, the name file and the extension
    /// .txt. Double quotes are dropped first; a directory, name or extension that holds a space or a semicolon comes
    /// out in double quotes. A path without a colon has no drive. This object stays as it is.
    /// @param drive  receives the drive with its colon. Null and an invalid object are skipped, here and below.
    /// @param dir    receives the directory with both its backslashes.
    /// @param name   receives the name without the extension.
    /// @param ext    receives the extension with its dot.
    CSTRING const& SplitPath(CSTRING* drive, CSTRING* dir, CSTRING* name, CSTRING* ext) const;

    /// Becomes the name and the extension of a path, the name as SplitPath() gives it.
    CSTRING const& GetFileName(char const* path);

    /// Becomes the drive and the directory of a path, the directory as SplitPath() gives it.
    CSTRING const& GetFilePath(char const* path);

    // --- texts of the system, of at most 255 characters and up to the first byte of 0x80 or above; where there is none,
    // the text stays as it was. The system's own functions fill a block from BufferLock() with the whole text.

    /// Becomes the name of a window's class. Null changes nothing.
    CSTRING const& GetClassNameA(HWND window);

    /// Becomes the path of a module's file; null is the process's program.
    CSTRING const& GetModuleFileNameA(HINSTANCE module);

    /// Becomes a value of a profile file. A value that is empty changes nothing.
    /// @param file      null is the user's own profile; a bare name lies in the Windows folder.
    /// @param section   the name in brackets, without them.
    /// @param key       the name before the equals sign.
    /// @param fallback  used if there is no such key.
    CSTRING const& GetProfileStringA(char const* file, char const* section, char const* key, char const* fallback);

    /// Becomes a string of a module's resources. A null module, a missing string and an empty one change nothing.
    CSTRING const& LoadStringA(HINSTANCE module, unsigned int id);

    // --- formatted text of at most 1023 characters, as the system's wsprintfA makes it, up to the first byte of 0x80 or
    // above of the result; an empty result changes nothing

    /// @param format  as wsprintfA takes it.
    /// @param args  the list of a function with variable arguments: a `va_list`, or its address where a list is not a
    ///              pointer.
    CSTRING const& wvsprintfA(char const* format, void* args);
    /// Formats the arguments that follow. A string goes in as `(char const*)name`.
    CSTRING const& wsprintfA(char const* format, ...);
    /// Formats the arguments that follow by a string of a module's resources. A string goes in as `(char const*)name`.
    CSTRING const& IDsprintf(HINSTANCE module, unsigned int id, ...);

    /// Refused: one of the arguments is an object, which is not its text.
    template <class... Arguments>
    CVANYOBJECT<CSTRING const&, Arguments...> wsprintfA(char const* format, Arguments const&... arguments) = delete;
    /// Refused: one of the arguments is an object, which is not its text.
    template <class... Arguments>
    CVANYOBJECT<CSTRING const&, Arguments...> IDsprintf(HINSTANCE module, unsigned int id,
                                                        Arguments const&... arguments) = delete;

    // --- texts of the system, of any length and with bytes of any value

    /// Becomes a window's text; an empty one changes nothing.
    CSTRING const& GetWindowTextA(HWND window);

    /// Becomes the text of a dialog's control; an empty one changes nothing.
    CSTRING const& GetDlgItemTextA(HWND dialog, int id);

    /// Becomes the path of the Windows folder.
    CSTRING const& GetWindowsDirectoryA();

    // --- the registry, with bytes of any value; where there is nothing, the text becomes empty

    /// Becomes the name of a key's subkey.
    CSTRING const& RegEnumKeyA(HKEY key, unsigned long index);

    /// Becomes the name of a key's value.
    /// @param key   an open key.
    /// @param index  from 0.
    /// @param data  receives the value's data as text up to its first NUL, whatever its type, if it fits into 1024
    ///              bytes or what the object holds already; else nothing is found. Null: only the name is wanted.
    CSTRING const& RegEnumValueA(HKEY key, unsigned long index, CSTRING* data);

    /// Becomes the data of a key's value as text up to its first NUL, whatever its type.
    /// @param key        an open key.
    /// @param valueName  null is the unnamed value.
    CSTRING const& RegQueryValueA(HKEY key, char const* valueName);

  private:
    int Alloc(unsigned int size);
    int Resize(unsigned int size);
    void Copy(char const* source, unsigned int count);
    void CopyWithin(char const* source, unsigned int count);
    void Concat(char const* source, unsigned int count);
    void Join(char const* first, unsigned int firstCount, char const* second, unsigned int secondCount);
    void Free();
    void Init();
    unsigned int Search(char const* text, unsigned int length, unsigned int start, unsigned long flags) const;
    int StandardEntry() const;
    void AutoUnlock();
    void TakeLengths();
    void CopyPart(CSTRING const& from, unsigned int start, unsigned int end);
    void QuotePart();
    void EndData(unsigned int size);

    char* Buffer;
    std::uint32_t StrLen;
    std::uint32_t ByteCount;
    std::uint32_t BufLen;
    std::uint32_t LockCount;
    int AutoLocked;
};
