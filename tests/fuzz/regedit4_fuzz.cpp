// REGEDIT4 text: what is understood is written and read again the same.
#include <cstdlib>
#include <string>
#include <vector>

#include "tools/cvreg/regedit4.h"

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size) {
    std::vector<cvreg::Entry> entries;
    std::string error;
    if (!cvreg::Parse({reinterpret_cast<char const*>(data), size}, &entries, &error)) {
        return 0;
    }
    for (cvreg::Entry const& entry : entries) {
        // Names that hold line ends cannot be written; they cannot be read either.
        if (entry.kind != cvreg::Entry::Value) {
            continue;
        }
        std::vector<cvreg::Entry> again;
        std::string const text =
            std::string(cvreg::kHeading) + "[k]\n" + cvreg::FormatValue(entry.name, entry.type, entry.data);
        if (!cvreg::Parse(text, &again, &error) || again.size() != 2 || again[1].name != entry.name ||
            again[1].type != entry.type || again[1].data != entry.data) {
            std::abort();
        }
    }
    return 0;
}
