/// @file clist.h
/// `CLIST`: a growable array of plain records or of whole objects, with searches and a sort.
///
/// What it holds. A list made with an item size holds records of that many bytes, which are copied in and out. A list
/// made with a prototype holds objects of the prototype's class, any class derived from CBASE (see cbase.h): the list
/// keeps a copy of the prototype and makes, copies and ends its elements through the virtual protocol only. What a
/// caller passes in is always copied; no pointer of the caller's is kept.
///
/// Where it holds it. CLISTTYPE_INLINE puts the elements side by side into one array: compact, but every insertion,
/// deletion and sort moves elements, and their addresses with them. CLISTTYPE_POINTER gives each element a block of its
/// own, whose address stays as long as the element does. Inline objects are moved as bytes, without their knowing.
///
///     CLIST points(sizeof(POINT));
///     POINT p = {3, 4};
///     points.Append(&p);
///     POINT* first = (POINT*)points.GetItem(0);
///
///     CLIST names(CSTRING(""), 10);
///     CSTRING name("Ada");
///     names.Append(&name);
///
/// Limits. A list holds 65535 elements at most; a further insertion fails.
///
/// Validity. Every member first checks that the object and its record are sound; on anything else it returns null or 0.
/// An item that is passed in must be writable memory, although it is only read, and in a list of objects it must be a
/// sound object. Nothing is reported otherwise, and no member throws.
///
/// Odd, and relied upon: assigning to a list that already holds k elements leaves k empty slots (null pointers or zero
/// bytes) in front of the copies. Assign to a list that was just constructed to get an equal one.
///
/// Traps. A list that is assigned to itself loses every value and doubles its count. An object of the list's own that
/// SetItem() puts where it is becomes empty. Items are passed by address: `list.Append(&name)`, never `list.Append(name)`,
/// which the compiler refuses. A constant, and a literal, is read-only memory and refused as an item: copy it into a
/// variable first. Nothing tells an empty list from an invalid one but IsValid().
///
/// A list is used by one thread at a time.
#pragma once

#include "cbase.h"

/// The storage layouts of a CLIST.
enum CLISTTYPE {
    CLISTTYPE_POINTER = 0,  ///< each slot holds a pointer to the element's own block
    CLISTTYPE_INLINE = 1    ///< the elements lie side by side in the array; so does any other value but 0
};

/// As an index of GetItem(), SetItem() and Delete(): the last element.
#define CLIST_LAST 0xFFFFFFFEu

/// What the searches store as an index where there is none.
#define CLIST_NOINDEX 0xFFFFFFFFu

/// Orders two elements, or a key and an element: negative, 0 or positive as the first comes before, equals or comes
/// after the second. The searches pass the key first.
typedef int (*CLISTCOMPARE)(void* first, void* second);

struct CLISTHEADER;

/// A growable array of records or objects.
class CVCLASS CLIST : public CBASE {
  public:
    // --- construction and lifetime

    /// A list of records.
    /// @param itemSize  bytes of a record; 0 gives a list without storage, which Init() makes usable.
    /// @param capacity  elements to make room for at first, 1 to 65535; others are taken as the nearest of these.
    /// @param type  where the elements lie.
    CLIST(unsigned int itemSize = 0, unsigned int capacity = 0, CLISTTYPE type = CLISTTYPE_INLINE);

    /// A list of objects of the prototype's class; without storage if the prototype is not a sound object.
    CLIST(CBASE const& prototype, unsigned int capacity = 0, CLISTTYPE type = CLISTTYPE_INLINE);

    /// An equal list; without storage if the other one is invalid.
    CLIST(CLIST const& other);

    ~CLIST() override;

    /// Makes a list without storage one of records. Storage that the list had is abandoned, not freed.
    /// @return 1, or 0 for an invalid list, an item size of 0 or when memory runs out.
    int Init(unsigned int itemSize, unsigned int capacity = 0, CLISTTYPE type = CLISTTYPE_INLINE);

    /// Makes a list without storage one of objects. Storage that the list had is abandoned, not freed.
    /// @return 1, or 0 for an invalid list or prototype or when memory runs out.
    int Init(CBASE const& prototype, unsigned int capacity = 0, CLISTTYPE type = CLISTTYPE_INLINE);

    /// Tells whether this is a sound list, with storage or without. Any address may be asked.
    int IsValid() const;

    // --- elements

    /// @return the number of elements; 0 for an invalid list.
    unsigned int GetCount() const;

    /// @param index  from 0; CLIST_LAST is the last element.
    /// @return the element's address; null for an invalid list or an index out of range.
    void* GetItem(unsigned int index) const;

    /// Inserts a copy of an item.
    /// @param item  the record or object; null for a record of zeros or a copy of the prototype.
    /// @param index  from 0 to the count; CLIST_LAST has no meaning here.
    /// @return the new element's address, or null on any failure. In a CLISTTYPE_POINTER list whose element block could
    /// not be
    ///         had, null is returned although the list has grown by a slot that holds null.
    void* Insert(void* item, unsigned int index);

    /// Insert() at the end.
    void* Append(void* item);

    /// Append() of a null item.
    void* New();

    /// Replaces an element in place. The old object is ended before the new one is made from @p item: an object put into
    /// its own place becomes empty.
    /// @param item  the record or object; null is refused.
    /// @param index  from 0; CLIST_LAST is the last element.
    /// @return the element's address, or null on failure, which changes nothing.
    void* SetItem(void* item, unsigned int index);

    /// Ends an element and takes it out.
    /// @param index  from 0; CLIST_LAST is the last element.
    /// @return the number of elements that remain; 0 also on failure.
    unsigned int Delete(unsigned int index);

    // --- searching and sorting

    /// Finds the first match from a start on.
    /// @param key  what @p compare gets as its first argument.
    /// @param compare  only whether its result is 0 counts; null finds nothing.
    /// @param index  in: where to start; out: the match's index or CLIST_NOINDEX. Null starts at 0. To go on
    ///               behind a match, add one to its index and call again.
    /// @return the element's address, or null.
    void* FindLinear(void* key, CLISTCOMPARE compare, unsigned int* index) const;

    /// Finds a match by halving, in a list that is in ascending order under the same comparison.
    /// @param key  what @p compare gets as its first argument.
    /// @param compare  0 for a match, below 0 where the key belongs before the element, above 0 behind it; null finds nothing.
    /// @param index  out only: the match's index, or where the key would be inserted; CLIST_NOINDEX for an invalid list
    /// or a
    ///               null comparison. May be null.
    /// @return the element's address, or null. Among equal elements, whichever the halving meets first.
    void* FindBinary(void* key, CLISTCOMPARE compare, unsigned int* index) const;

    /// Sorts in ascending order, keeping equal elements in theirs. Elements are moved as they are, none is copied or
    /// constructed. A bubble sort, meant for short lists. A null comparison or an invalid list changes nothing.
    void Sort(CLISTCOMPARE compare);

    // --- whole lists

    /// Same as vCopy(), if both lists are valid. Do not assign a list to itself: its values are gone, its count doubles.
    CLIST& operator=(CLIST const& other);

    /// Appends copies of all elements of a list with the same item size. Do not add a list to itself.
    CLIST& operator+=(CLIST const& other);

    /// Append() of an item.
    CLIST& operator+=(void* item);

    void vCallConstructor(CBASE* place) const override;
    void vCallDestructor() override;
    void vCopy(CBASE const& source) override;
    unsigned int vGetSize() const override;

    // --- refused by the compiler: an object where its address is wanted; a string would pass its text

    void* Insert(CBASE const& item, unsigned int index) = delete;   ///< Refused; pass the address.
    void* Append(CBASE const& item) = delete;                       ///< Refused; pass the address.
    void* SetItem(CBASE const& item, unsigned int index) = delete;  ///< Refused; pass the address.
    CLIST& operator+=(CBASE const& item) = delete;                  ///< Refused; add the address.

  private:
    void MakeHeader();

    CLISTHEADER* header = nullptr;
};
