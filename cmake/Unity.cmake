# How sources are compiled so that a build takes little time: in batches, with the headers that most of them need compiled before.
#
# Neither shows in a source: a file's own names (anonymous namespaces) are unique within its target, and each source includes
# what it uses. CVUTIL32_UNITY=OFF compiles every source by itself.
option(CVUTIL32_UNITY "Compile sources in batches and precompile headers" ON)

# cvutil32_batches(<target> [size]): so many C++ sources each are one translation unit.
function(cvutil32_batches target)
    set(size 12)
    if(ARGC GREATER 1)
        set(size ${ARGV1})
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${CVUTIL32_UNITY} UNITY_BUILD_BATCH_SIZE ${size})
endfunction()

# cvutil32_precompile(<target> <header>...): the C++ sources of the target all see these, compiled once.
function(cvutil32_precompile target)
    if(CVUTIL32_UNITY)
        set(lines "")
        foreach(header ${ARGN})
            string(APPEND lines "#include ${header}\n")
        endforeach()
        set(all ${CMAKE_CURRENT_BINARY_DIR}/${target}_headers.h)
        file(CONFIGURE OUTPUT ${all} CONTENT "${lines}" @ONLY)
        target_precompile_headers(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:${all}>)
    endif()
endfunction()
