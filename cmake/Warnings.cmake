# Warnings as errors for our own sources; the sanitizers where the preset asks for them.
add_library(cvwarnings INTERFACE)
if(WIN32)
    # Sources include what they use of the system; windows.h alone brings less and takes less time.
    target_compile_definitions(cvwarnings INTERFACE _WIN32_WINNT=0x0501 WINVER=0x0501 STRICT WIN32_LEAN_AND_MEAN)
endif()
if(MSVC)
    # Exported classes have members of types that are not exported; nobody outside touches them.
    target_compile_options(cvwarnings INTERFACE /W3 /wd4251)
    target_compile_definitions(cvwarnings INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
    target_compile_options(cvwarnings INTERFACE -Wall -Wextra -Wno-missing-field-initializers)
    if(PROJECT_IS_TOP_LEVEL)
        target_compile_options(cvwarnings INTERFACE -Werror)
    endif()
    if(WIN32)
        # Casting FARPROC and window procedures to what they really are is how the API is used.
        target_compile_options(cvwarnings INTERFACE -Wno-cast-function-type)
    else()
        # With -O3, gcc 12 takes what std::string does inside for copies that overlap.
        target_compile_options(cvwarnings INTERFACE $<$<CONFIG:Release>:-Wno-restrict>)
    endif()
endif()

if(CVUTIL32_FUZZ)
    set(CVUTIL32_SANITIZE ON)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(CVUTIL32_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    # Clang's alone: a hook procedure is called as the dialog procedure that it is, but for the sign of its result.
    add_compile_options($<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>)
    add_link_options(-fsanitize=address,undefined)
endif()
