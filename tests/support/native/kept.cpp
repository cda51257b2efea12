// What the leak sanitizer need not tell of.

// The folder tree list keeps the binding of each folder that was opened (controls/treelist/fill.cpp). That nothing else is
// kept is counted in tests/controls/native/shell_faults_test.cpp. The host's font library keeps what it has read of its
// configuration.
extern "C" __attribute__((visibility("default"))) char const* __lsan_default_suppressions();

char const* __lsan_default_suppressions() {
    return "leak:BindToObject\nleak:libfontconfig\n";
}
