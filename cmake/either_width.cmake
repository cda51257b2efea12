# find_package(cvutil32) in the zip for Windows: the package of the width that the compiler builds for.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    include(${CMAKE_CURRENT_LIST_DIR}/../lib/cmake/cvutil32/cvutil32Config.cmake)
else()
    include(${CMAKE_CURRENT_LIST_DIR}/../lib64/cmake/cvutil32/cvutil32Config.cmake)
endif()
