# find_package(cvutil32) for Windows: passes on to the package of the width that the compiler builds for. Installed under two names:
# as cvutil32Config.cmake and, so that a version can be asked for, as cvutil32ConfigVersion.cmake.
#
# CMake itself looks for packages in lib alone when it builds for Windows, at either width.
get_filename_component(cvutil32_part ${CMAKE_CURRENT_LIST_FILE} NAME)
set(cvutil32_folder ${CMAKE_CURRENT_LIST_DIR}/../lib64/cmake/cvutil32)
if(NOT CMAKE_SIZEOF_VOID_P EQUAL 8 OR NOT EXISTS ${cvutil32_folder})
    set(cvutil32_folder ${CMAKE_CURRENT_LIST_DIR}/../lib/cmake/cvutil32)
endif()
if(EXISTS ${cvutil32_folder})
    include(${cvutil32_folder}/${cvutil32_part})
else()
    set(PACKAGE_VERSION_UNSUITABLE TRUE)
endif()
unset(cvutil32_part)
unset(cvutil32_folder)
