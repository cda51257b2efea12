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
        std::string text = cvreg::kHeading + cvreg::FormatKey(entry.key);
        bool const isValue = entry.kind == cvreg::Entry::Value;
        if (isValue) {
            text += cvreg::FormatValue(entry.name, entry.type, entry.data);
        }
        std::vector<cvreg::Entry> again;
        if (!cvreg::Parse(text, &again, &error) || again.size() != (isValue ? 2 : 1) || again[0].key != entry.key) {
            std::abort();
        }
        if (isValue && (again[1].name != entry.name || again[1].type != entry.type || again[1].data != entry.data)) {
            std::abort();
        }
    }
    return 0;
}
