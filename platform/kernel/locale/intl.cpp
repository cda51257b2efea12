#include "kernel/locale/intl.h"

#include <windows.h>

#include <map>
#include <mutex>
#include <string_view>

#include "kernel/locale/locale_values.h"

namespace platform::kernel {
namespace {

struct Key {
    const char* name;
    LCTYPE type;
};

constexpr Key kKeys[] = {
    {"sThousand", LOCALE_STHOUSAND},
    {"sDate", LOCALE_SDATE},
    {"sTime", LOCALE_STIME},
    {"sShortDate", LOCALE_SSHORTDATE},
    {"sTimeFormat", LOCALE_STIMEFORMAT},
    {"iDate", LOCALE_IDATE},
    {"iTime", LOCALE_ITIME},
    {"iTLZero", LOCALE_ITLZERO},
};

const Key* FindKey(LPCSTR name) {
    for (const Key& key : kKeys) {
        if (lstrcmpiA(key.name, name) == 0) {
            return &key;
        }
    }
    return nullptr;
}

}  // namespace

const char* IntlKey(LCTYPE type) {
    for (const Key& key : kKeys) {
        if (key.type == type) {
            return key.name;
        }
    }
    return nullptr;
}

const std::string* HostIntlValue(const std::string& name) {
    static std::mutex lock;
    static auto& known = *new std::map<LCTYPE, std::string>;
    const Key* key = FindKey(name.c_str());
    if (!key) {
        return nullptr;
    }
    const std::lock_guard guard(lock);
    const auto found = known.find(key->type);
    if (found != known.end()) {
        return &found->second;
    }
    return &(known[key->type] = LocaleValue(key->type).value_or(std::string()));
}

}  // namespace platform::kernel
