# cvutil32_batches(<target> [size]): the target's C++ sources are compiled in batches, each as one translation unit, which takes
# less than half of the time. A file's own names (anonymous namespaces) are therefore unique within its target, and each source
# still includes what it uses: CVUTIL32_UNITY=OFF compiles every source by itself.
option(CVUTIL32_UNITY "Compile the sources in batches" ON)

function(cvutil32_batches target)
    set(size 12)
    if(ARGC GREATER 1)
        set(size ${ARGV1})
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${CVUTIL32_UNITY} UNITY_BUILD_BATCH_SIZE ${size})
endfunction()
