/// @file cdatastr.h
/// `CDATASTR`: a string that holds a list of items, with the members that clean such lists up and walk through them.
///
/// Typical contents are what a person types into a field that takes several file names, or a list from a profile.
/// Everything is edited in place, as in any CSTRING (see cstring.h); items are walked with a position that the caller
/// keeps:
///
///     CDATASTR list("red;;green;blue");
///     list.CleanDelimiters(';');
///     CSTRING item;
///     for (unsigned int position = 0; list.EnumDataItems(&position, &item, ';');) {
///         puts((char const*)item);
///     }
///
/// Validity. Besides the signature of the family a CDATASTR has a marker ("DTSZ"), which tells it from a plain CSTRING.
/// Copies share the marker; it is kept until the last of them has gone, and goes on reading as valid for all of them.
/// Every member does nothing, or returns 0, on an object that is not sound.
///
/// The object protocol of CBASE (vCopy and so on) is that of CSTRING: what a container makes from a CDATASTR as a
/// prototype is a plain CSTRING.
///
/// Traps. A byte of 0x80 or above ends the list as it ends any CSTRING: the walks take the item with it up to that byte as
/// their last, and NormalizeFileSpecs() drops what follows. A walk for numbers ends at the first item that is none. Walk
/// lists that may hold such bytes or items by `char const*`. File specifications must be one delimiter apart: of
/// "a.txt, b.txt, c.txt" EnumFileSpecs() and NormalizeFileSpecs() make a fourth, "t". CleanDelimiters() first helps.
#pragma once

#include "cstring.h"

/// What separates file specifications: space, comma, semicolon, carriage return, line feed.
#define DATASTR_DELIMITERS " ,;\r\n"

class CDATASTRMARK;

/// A delimited list of items in one string.
class CVCLASS CDATASTR : public CSTRING {
  public:
    /// An empty list.
    CDATASTR();

    /// A list from a text, as CSTRING takes it.
    CDATASTR(char const* text);

    /// A copy, which shares the marker.
    CDATASTR(CDATASTR const& other);

    /// Takes over the text, and shares the marker from now on.
    CDATASTR& operator=(CDATASTR const& other);

    /// Takes over a text, as CSTRING does.
    using CSTRING::operator=;

    ~CDATASTR() override;

    /// Tells whether this is a sound object with a marker. Any address may be asked.
    int IsValid() const;

    /// Makes every run of delimiters one, and removes the one at either end.
    void CleanDelimiters(char delimiter);

    /// Replaces every character of a set by the delimiter.
    /// @param delimiter  what they become.
    /// @param set  zero-terminated, such as DATASTR_DELIMITERS; null changes nothing.
    void NormalizeDelimiters(char delimiter, char const* set);

    /// Removes the backslash in front of every delimiter; of two, one.
    void RemoveBackslashes(char delimiter);

    /// Removes, for each item, later occurrences of its text, in whatever case and also inside other items. The
    /// delimiters of what was removed stay: "a;b;A" becomes "a;b;".
    void RemoveDuplicates(char delimiter);

    /// Takes the next item. A byte of 0x80 or above ends the item and the walk.
    /// @param position  in: where to start, 0 for the first item; out: behind the item and its delimiter.
    /// @param item  takes the item's text, empty between two adjacent delimiters and at the end of the list.
    /// @param delimiter  what ends an item.
    /// @return 1, or 0 at the end of the list or for a null or invalid argument (nothing is written for the latter).
    int EnumDataItems(unsigned int* position, CSTRING* item, char delimiter) const;

    /// Takes the next item as a signed decimal number.
    /// @param position  as above.
    /// @param delimiter  as above.
    /// @param value  takes the number's low 32 bits; 0 if the item does not begin with one; unchanged if it is blank.
    /// @return 1, or 0 at the end of the list, for an item that is no number (the position has moved past it) or for a
    /// null
    ///         argument.
    int EnumDataItems(unsigned int* position, unsigned int* value, char delimiter) const;

    /// Takes the next file specification. One that stands at the very start of the list in double quotes may contain
    /// spaces; all others end at any of DATASTR_DELIMITERS. A byte of 0x80 or above ends the specification and the walk.
    /// @param position  in: where to start, 0 for the first; out: where the next one is looked for.
    /// @param specification  takes the specification without quotes; empty at the end.
    /// @param quoted  takes 1 if it was quoted, else 0; not written at the end; may be null.
    /// @return 1, or 0 at the end or for a null or invalid argument.
    int EnumFileSpecs(unsigned int* position, CSTRING* specification, int* quoted) const;

    /// Rewrites the list as specifications separated by one space each, with quotes around those that had them. It ends
    /// at its first byte of 0x80 or above.
    void NormalizeFileSpecs();

  private:
    bool Shortened(unsigned int position);

    CDATASTRMARK* marker;
};
