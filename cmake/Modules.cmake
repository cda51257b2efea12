# cvutil32_resources(<target> <script.rc> [pattern...]): compiles a resource script into the module <target>, anew when a file
# of these patterns changes.
#
# On Windows the linker does it. Elsewhere windres compiles the same script to a .res file, which is placed in the module's
# read-only data together with a small start-up object that announces the module to the platform layer (and calls its
# DllMain, where it has one, when it is loaded and unloaded).
#
# cvutil32_module_start(<target>): the same for a module without resources.
# cvutil32_windows_application(<target>): an executable that starts in WinMain.

# The same file serves the build of the library, a project that adds it as a folder, and one that finds the installed package.
# Who includes it first says, in the global properties CVUTIL32_START_FOLDER (sources of the start-up objects) and
# CVUTIL32_SCRIPT_FOLDERS (headers for resource scripts), where things are.

if(NOT WIN32)
    find_program(CVUTIL32_WINDRES NAMES x86_64-w64-mingw32-windres i686-w64-mingw32-windres REQUIRED)
endif()

function(cvutil32_module_start target)
    if(NOT WIN32)
        get_property(start GLOBAL PROPERTY CVUTIL32_START_FOLDER)
        target_sources(${target} PRIVATE ${start}/module_start.cpp)
    endif()
endfunction()

function(cvutil32_resources target script)
    get_filename_component(script ${script} ABSOLUTE)
    get_filename_component(folder ${script} DIRECTORY)
    get_property(includes GLOBAL PROPERTY CVUTIL32_SCRIPT_FOLDERS)
    list(APPEND includes ${folder})
    file(GLOB parts CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.bmp ${folder}/*.ico ${folder}/*/*.rc ${folder}/*/*.h
         ${folder}/*/*.bmp ${folder}/*/*.ico ${ARGN})
    if(WIN32)
        target_sources(${target} PRIVATE ${script})
        # Windres takes no generator expressions, so that the target's own include paths do not serve its script.
        set_property(SOURCE ${script} APPEND PROPERTY INCLUDE_DIRECTORIES ${includes})
        set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${parts})
        return()
    endif()
    list(TRANSFORM includes PREPEND -I)
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${target}.res)
    add_custom_command(
        OUTPUT ${compiled}
        COMMAND ${CVUTIL32_WINDRES} ${includes} -O res -i ${script} -o ${compiled}
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
        get_property(start GLOBAL PROPERTY CVUTIL32_START_FOLDER)
        target_sources(${target} PRIVATE ${start}/application_start.cpp)
        cvutil32_module_start(${target})
    endif()
endfunction()
