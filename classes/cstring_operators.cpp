// CSTRING: indexing, comparison and conversion operators.
#include "cvutil32/cstring.h"

char& CSTRING::operator[](short index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

char& CSTRING::operator[](unsigned short index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

char& CSTRING::operator[](int index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

char& CSTRING::operator[](unsigned int index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

char& CSTRING::operator[](long index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

char& CSTRING::operator[](unsigned long index) {
    return GetRef(static_cast<std::uint32_t>(index));
}

// Numbers are compared with the length, never with a value that the text might spell.

int CSTRING::operator==(int length) {
    return GetStrLen() == static_cast<std::uint32_t>(length);
}

int CSTRING::operator==(unsigned int length) {
    return GetStrLen() == static_cast<std::uint32_t>(length);
}

int CSTRING::operator==(long length) {
    return GetStrLen() == static_cast<std::uint32_t>(length);
}

int CSTRING::operator==(unsigned long length) {
    return GetStrLen() == static_cast<std::uint32_t>(length);
}

int CSTRING::operator!=(int length) {
    return GetStrLen() != static_cast<std::uint32_t>(length);
}

int CSTRING::operator!=(unsigned int length) {
    return GetStrLen() != static_cast<std::uint32_t>(length);
}

int CSTRING::operator!=(long length) {
    return GetStrLen() != static_cast<std::uint32_t>(length);
}

int CSTRING::operator!=(unsigned long length) {
    return GetStrLen() != static_cast<std::uint32_t>(length);
}

int CSTRING::operator<(int length) {
    return GetStrLen() < static_cast<std::uint32_t>(length);
}

int CSTRING::operator<(unsigned int length) {
    return GetStrLen() < static_cast<std::uint32_t>(length);
}

int CSTRING::operator<(long length) {
    return GetStrLen() < static_cast<std::uint32_t>(length);
}

int CSTRING::operator<(unsigned long length) {
    return GetStrLen() < static_cast<std::uint32_t>(length);
}

int CSTRING::operator>(int length) {
    return GetStrLen() > static_cast<std::uint32_t>(length);
}

int CSTRING::operator>(unsigned int length) {
    return GetStrLen() > static_cast<std::uint32_t>(length);
}

int CSTRING::operator>(long length) {
    return GetStrLen() > static_cast<std::uint32_t>(length);
}

int CSTRING::operator>(unsigned long length) {
    return GetStrLen() > static_cast<std::uint32_t>(length);
}

int CSTRING::operator<=(int length) {
    return GetStrLen() <= static_cast<std::uint32_t>(length);
}

int CSTRING::operator<=(unsigned int length) {
    return GetStrLen() <= static_cast<std::uint32_t>(length);
}

int CSTRING::operator<=(long length) {
    return GetStrLen() <= static_cast<std::uint32_t>(length);
}

int CSTRING::operator<=(unsigned long length) {
    return GetStrLen() <= static_cast<std::uint32_t>(length);
}

int CSTRING::operator>=(int length) {
    return GetStrLen() >= static_cast<std::uint32_t>(length);
}

int CSTRING::operator>=(unsigned int length) {
    return GetStrLen() >= static_cast<std::uint32_t>(length);
}

int CSTRING::operator>=(long length) {
    return GetStrLen() >= static_cast<std::uint32_t>(length);
}

int CSTRING::operator>=(unsigned long length) {
    return GetStrLen() >= static_cast<std::uint32_t>(length);
}

CSTRING::operator int() {
    return static_cast<int>(GetStrLen());
}

CSTRING::operator long() {
    return static_cast<long>(GetStrLen());
}

CSTRING::operator unsigned int() {
    return GetStrLen();
}

CSTRING::operator unsigned long() {
    return GetStrLen();
}

int CSTRING::operator==(char const* text) {
    return Compare(text) == 0;
}

int CSTRING::operator!=(char const* text) {
    return Compare(text) != 0;
}
