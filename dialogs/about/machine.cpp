#include "dialogs/about/machine.h"

#include "cvutil32/util.h"
#include "dialogs/about/resource.h"

namespace about {

namespace {

struct Processor {
    DWORD type;
    UINT string;
};

constexpr Processor kProcessors[] = {
    {386, CVAB_CPU_386},    {486, CVAB_CPU_486},    {586, CVAB_CPU_PENTIUM}, {860, CVAB_CPU_860},
    {2000, CVAB_CPU_R2000}, {3000, CVAB_CPU_R3000}, {4000, CVAB_CPU_R4000},  {21064, CVAB_CPU_ALPHA},
};

constexpr int kNumberSize = 32;
constexpr int kLineSize = 1024;  // that wsprintfA writes at most
constexpr int kKilobyteShift = 10;

}  // namespace

UINT ProcessorString(DWORD type) {
    for (Processor const& processor : kProcessors) {
        if (processor.type == type) {
            return processor.string;
        }
    }
    return CVAB_CPU_UNKNOWN;
}

std::string MemoryLine(char const* format, SIZE_T bytes) {
    char number[kNumberSize] = {};
    UTIL_LongToStringWithCommas(static_cast<long>(bytes >> kKilobyteShift), number, kNumberSize);
    char line[kLineSize + 1] = {};
    wsprintfA(line, format, number);
    return line;
}

}  // namespace about
