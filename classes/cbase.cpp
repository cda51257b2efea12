#include "cvutil32/cbase.h"

namespace {

constexpr std::uint32_t kBaseSignature = 0x45534142;  // "BASE"

}  // namespace

CBASE::CBASE() : signature(kBaseSignature) {}

CBASE::CBASE(CBASE const& other) = default;

CBASE& CBASE::operator=(CBASE const& other) = default;

CBASE::~CBASE() = default;

int CBASE::IsValidcBase() const {
    // A write probe although nothing is written: an object in read-only memory is no object of a caller's.
    if (IsBadWritePtr(const_cast<CBASE*>(this), sizeof(CBASE))) {
        return 0;
    }
    return signature == kBaseSignature ? 1 : 0;
}
