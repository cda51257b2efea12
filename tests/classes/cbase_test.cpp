#include <cvutil32/cbase.h>

#include <cvutil32/cstring.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <new>

namespace {

class Point : public CBASE {
  public:
    Point() = default;
    Point(int px, int py) : x(px), y(py) {}

    void vCallConstructor(CBASE* place) const override {
        new (static_cast<void*>(place)) Point;
    }
    void vCallDestructor() override {
        this->~Point();
    }
    void vCopy(CBASE const& source) override {
        *this = static_cast<Point const&>(source);
    }
    unsigned int vGetSize() const override {
        return sizeof(Point);
    }

    void BreakSignature() {
        signature ^= 1;
    }
    std::uint32_t Signature() const {
        return signature;
    }

    int x = 0;
    int y = 0;
};

/// An object that may be none, at an address that the compiler does not see through.
CBASE const* At(void const* address) {
    void const* volatile hidden = address;
    return static_cast<CBASE const*>(hidden);
}

TEST(CBase, SignatureSpellsBaseInMemory) {
    Point const point;
    std::uint32_t const signature = point.Signature();
    EXPECT_EQ(0, std::memcmp(&signature, "BASE", 4));
    EXPECT_EQ(1, point.IsValidcBase());
}

TEST(CBase, AnyAddressMayBeAsked) {
    static char const readOnly[sizeof(Point)] = "no object";
    char zeros[sizeof(Point)] = {};
    EXPECT_EQ(0, At(nullptr)->IsValidcBase());
    EXPECT_EQ(0, At(reinterpret_cast<void*>(static_cast<INT_PTR>(8)))->IsValidcBase());
    EXPECT_EQ(0, At(readOnly)->IsValidcBase());
    EXPECT_EQ(0, At(zeros)->IsValidcBase());
}

TEST(CBase, BrokenSignatureTravelsWithCopies) {
    Point broken(1, 2);
    broken.BreakSignature();
    EXPECT_EQ(0, broken.IsValidcBase());

    Point const copied(broken);
    EXPECT_EQ(0, copied.IsValidcBase());

    Point assigned;
    CBASE& result = static_cast<CBASE&>(assigned).operator=(broken);
    EXPECT_EQ(&assigned, &result);
    EXPECT_EQ(0, assigned.IsValidcBase());
}

TEST(CBase, EndedObjectKeepsItsSignature) {
    alignas(Point) unsigned char storage[sizeof(Point)];
    CBASE* const object = new (storage) Point;
    object->vCallDestructor();
    EXPECT_EQ(1, At(storage)->IsValidcBase());
}

TEST(CBase, PrototypeProtocolServesAContainer) {
    CSTRING const prototype("proto");
    CBASE const& known = prototype;
    ASSERT_EQ(sizeof(CSTRING), known.vGetSize());

    std::unique_ptr<unsigned char[]> const storage(new unsigned char[known.vGetSize()]);
    std::memset(storage.get(), 0xCD, known.vGetSize());
    auto* const element = reinterpret_cast<CSTRING*>(storage.get());

    known.vCallConstructor(element);
    EXPECT_EQ(1, element->IsValid());
    EXPECT_EQ(0u, element->GetStrLen());

    element->vCopy(known);
    EXPECT_STREQ("proto", static_cast<char const*>(static_cast<CSTRING const&>(*element)));

    element->vCallDestructor();
    EXPECT_EQ(1, element->IsValidcBase());
    EXPECT_EQ(0u, element->GetBufLen(0));
}

}  // namespace
