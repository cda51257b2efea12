# The library for Windows by a compiler of the GNU kind.
set_target_properties(cvutil32 PROPERTIES PREFIX "")
target_compile_definitions(
    cvutil32
    PRIVATE "CVEXPORT=__declspec(dllexport)"
    INTERFACE "CVEXPORT=__declspec(dllimport)")

# The list of exported names, for the tools of other compilers.
set(definitions $<TARGET_LINKER_FILE_DIR:cvutil32>/CVUTIL32.def)
add_custom_command(
    TARGET cvutil32
    POST_BUILD
    COMMAND ${CMAKE_DLLTOOL} --output-def ${definitions} --dllname CVUTIL32.dll $<TARGET_OBJECTS:cvutil32>
    COMMAND_EXPAND_LISTS VERBATIM)
install(FILES ${definitions} DESTINATION ${CMAKE_INSTALL_LIBDIR})
set(machine i386:x86-64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(machine i386)
    # Exported names carry no decoration, but a caller's object files ask for the decorated ones. The linker's own import
    # library knows only one kind, so it is made anew from the list.
    target_link_options(cvutil32 PRIVATE -Wl,--kill-at)
    add_custom_command(
        TARGET cvutil32
        POST_BUILD
        COMMAND ${CMAKE_DLLTOOL} --kill-at --input-def ${definitions} --dllname CVUTIL32.dll --output-lib
                $<TARGET_LINKER_FILE:cvutil32>
        VERBATIM)
endif()

# And for Microsoft's linker, where LLVM's tool for it is at hand.
find_program(CVUTIL32_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
if(CVUTIL32_LLVM_DLLTOOL)
    set(library $<TARGET_LINKER_FILE_DIR:cvutil32>/CVUTIL32.lib)
    add_custom_command(
        TARGET cvutil32
        POST_BUILD
        COMMAND ${CMAKE_COMMAND} -DDEFINITIONS=${definitions} -DMACHINE=${machine} -DTOOL=${CVUTIL32_LLVM_DLLTOOL}
                -DLIBRARY=${library} -P ${PROJECT_SOURCE_DIR}/cmake/import_library.cmake
        VERBATIM)
    install(FILES ${library} DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()
