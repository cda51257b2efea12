# cvutil32_resources(<target> <script.rc> [pattern...]): compiles a resource script into the module <target>, anew when a file
# of these patterns changes.
#
# On Windows the linker does it. Elsewhere windres compiles the same script to a .res file, which is placed in the module's
# read-only data together with a small start-up object that announces the module to the platform layer (and calls its
# DllMain, where it has one, when it is loaded and unloaded).
#
# cvutil32_module_start(<target>): the same for a module without resources.
# cvutil32_windows_application(<target>): an executable that starts in WinMain.

get_filename_component(CVUTIL32_ROOT ${CMAKE_CURRENT_LIST_DIR} DIRECTORY CACHE)

if(NOT WIN32)
    find_program(CVUTIL32_WINDRES NAMES x86_64-w64-mingw32-windres i686-w64-mingw32-windres REQUIRED)
endif()

function(cvutil32_module_start target)
    if(NOT WIN32)
        target_sources(${target} PRIVATE ${CVUTIL32_ROOT}/platform/kernel/start/module_start.cpp)
        target_include_directories(${target} PRIVATE ${CVUTIL32_ROOT}/platform/include)
    endif()
endfunction()

function(cvutil32_resources target script)
    get_filename_component(script ${script} ABSOLUTE)
    get_filename_component(folder ${script} DIRECTORY)
    file(GLOB parts CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.bmp ${folder}/*.ico ${folder}/*/*.bmp ${folder}/*/*.ico
         ${ARGN})
    if(WIN32)
        target_sources(${target} PRIVATE ${script})
        # The target's own include paths serve its resource script too (windres takes no generator expressions).
        set_property(SOURCE ${script} APPEND PROPERTY INCLUDE_DIRECTORIES ${CVUTIL32_ROOT}/include ${CVUTIL32_ROOT})
        set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${parts})
        return()
    endif()
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${target}.res)
    add_custom_command(
        OUTPUT ${compiled}
        COMMAND ${CVUTIL32_WINDRES} -I ${CVUTIL32_ROOT}/platform/include -I ${CVUTIL32_ROOT}/include -I ${CVUTIL32_ROOT}
                -I ${folder} -O res -i ${script} -o ${compiled}
        DEPENDS ${script} ${parts}
        COMMENT "Compiling resources of ${target}"
        VERBATIM)
    set(embed ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.c)
    file(
        CONFIGURE
        OUTPUT ${embed}
        CONTENT
            [[__asm__(
    ".pushsection .rodata\n.balign 16\n"
    ".hidden cvModuleResources\n.global cvModuleResources\ncvModuleResources:\n"
    ".incbin \"@compiled@\"\n"
    ".hidden cvModuleResourcesEnd\n.global cvModuleResourcesEnd\ncvModuleResourcesEnd:\n.byte 0\n"
    ".popsection\n");
]]
        @ONLY)
    set_source_files_properties(${embed} PROPERTIES OBJECT_DEPENDS ${compiled})
    target_sources(${target} PRIVATE ${embed})
    target_compile_definitions(${target} PRIVATE CV_MODULE_HAS_RESOURCES)
    cvutil32_module_start(${target})
endfunction()

function(cvutil32_windows_application target)
    if(WIN32)
        set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
    else()
        target_sources(${target} PRIVATE ${CVUTIL32_ROOT}/platform/kernel/start/application_start.cpp)
        cvutil32_module_start(${target})
    endif()
endfunction()
