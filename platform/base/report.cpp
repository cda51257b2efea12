#include "base/report.h"

#include <cstdio>
#include <mutex>
#include <set>
#include <string>

namespace platform::base {

void ReportOnce(const char* text) {
    static std::mutex lock;
    static std::set<std::string>& said = *new std::set<std::string>;
    try {
        const std::lock_guard guard(lock);
        if (!said.insert(text).second) {
            return;
        }
    } catch (...) {
        // Said twice is better than not at all.
    }
    std::fprintf(stderr, "cvutil32: %s\n", text);
}

}  // namespace platform::base
