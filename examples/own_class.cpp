// CBASE: a class of the program's own that a CLIST holds whole.
#include <cvutil32.h>

#include <new>

#include "check.h"

class POINT3 : public CBASE {
  public:
    void vCallConstructor(CBASE* place) const override {
        new (static_cast<void*>(place)) POINT3;
    }
    void vCallDestructor() override {
        this->~POINT3();
    }
    void vCopy(CBASE const& source) override {
        *this = static_cast<POINT3 const&>(source);
    }
    unsigned int vGetSize() const override {
        return sizeof(POINT3);
    }
    int x = 0, y = 0, z = 0;
};

int main() {
    POINT3 point;
    point.x = 3;
    CLIST points(point);  // every new element is a copy of this one
    points.Append(&point);
    POINT3* const added = static_cast<POINT3*>(points.New());
    CHECK(added->x == 3);
    CHECK(added->IsValidcBase());

    int number = 7;
    CHECK(!reinterpret_cast<CBASE*>(&number)->IsValidcBase());
    CHECK(!points.Append(&number));  // no object of the family
    CHECK(points.GetCount() == 2);
    return wrong;
}
