#include "shell/live.h"

#include <cvplatform.h>

unsigned CvPlatformFailShell(unsigned count) {
    return platform::shell::g_failure.Give(count);
}
