/// @file cbase.h
/// `CBASE`: the root of the library's object classes.
///
/// Two things come with it. A signature word, "BASE" in memory, by which every member of every class of the family
/// tells a properly constructed object from a stray pointer before it touches anything; and a small virtual protocol by
/// which a container can make, copy, end and lay out objects of a class it does not know, given one object of it as a
/// prototype.
///
/// Lifetime. An object is valid from its constructor on. Nothing clears the signature, neither the destructor nor
/// vCallDestructor(): "valid" means constructed once and not overwritten since, not "still alive". A copy takes over
/// the signature as it stands, so that the copy of a broken object is broken too.
///
/// A list with inline elements moves them as bytes (see clist.h). A class whose objects hold addresses of themselves, as
/// `std::string` does inside, is kept in a list of pointers only. vCopy() casts without a look: what it is given must be
/// of the very class.
///
/// A class that joins the family (the `new` in a given place comes from `<new>`):
///
///     class POINT3 : public CBASE
///     {
///       public:
///         void vCallConstructor(CBASE* place) const override { new (static_cast<void*>(place)) POINT3; }
///         void vCallDestructor() override { this->~POINT3(); }
///         void vCopy(CBASE const& source) override { *this = static_cast<POINT3 const&>(source); }
///         unsigned int vGetSize() const override { return sizeof(POINT3); }
///         int x = 0, y = 0, z = 0;
///     };
#pragma once

#include "cvapi.h"

#include <cstdint>

/// Root of the exported classes: a virtual table followed by the signature "BASE".
class CVCLASS CBASE {
  public:
    /// Makes a valid object.
    CBASE();

    /// Takes over the signature word of @p other as it stands.
    CBASE(CBASE const& other);

    /// Takes over the signature word of @p other as it stands.
    CBASE& operator=(CBASE const& other);

    /// Ends the object; the signature stays. `delete` and `delete[]` through the most derived class or, for single
    /// objects, through any base of the family are well defined.
    virtual ~CBASE();

    /// Constructs a default object of this object's class in raw storage. This object only names the class; it is not
    /// read.
    /// @param place  storage of vGetSize() bytes, aligned for any object; what it holds does not matter.
    virtual void vCallConstructor(CBASE* place) const = 0;

    /// Runs this object's destructor without freeing its storage.
    virtual void vCallDestructor() = 0;

    /// Gives this object the value of another one.
    /// @param source  an object of the same class, which is not checked.
    virtual void vCopy(CBASE const& source) = 0;

    /// @return the size in bytes of an object of this class, by which a container lays objects side by side.
    virtual unsigned int vGetSize() const = 0;

    /// Tells whether this is an object of the family. Any address may be asked, null and dangling ones included.
    /// @return 1 if the object's head is writable memory and carries the signature, else 0. A read-only object fails.
    int IsValidcBase() const;

  protected:
    /// The characters "BASE" in memory order while the object is sound.
    std::uint32_t signature;
};
