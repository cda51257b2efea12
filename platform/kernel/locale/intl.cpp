#include "kernel/locale/intl.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
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
    const auto* found = std::ranges::find_if(kKeys, [&](const Key& key) { return lstrcmpiA(key.name, name) == 0; });
    return found == std::end(kKeys) ? nullptr : found;
}

}  // namespace

const char* IntlKey(LCTYPE type) {
    const auto* found = std::ranges::find(kKeys, type, &Key::type);
    return found == std::end(kKeys) ? nullptr : found->name;
}

const std::string* HostIntlValue(const std::string& name) {
    static std::mutex lock;
    static auto& known = *new std::map<LCTYPE, std::string>;
    const Key* key = FindKey(name.c_str());
    if (!key) {
        return nullptr;
    }
    const std::lock_guard guard(lock);
    const auto [place, fresh] = known.try_emplace(key->type);
    if (fresh) {
        place->second = LocaleValue(key->type).value_or(std::string());
    }
    return &place->second;
}

}  // namespace platform::kernel
