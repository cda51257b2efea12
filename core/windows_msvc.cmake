# The library for Windows by a compiler of Microsoft's kind. Classes are exported by their declaration. Flat functions are exported
# by a list of their names, which the linker matches to what the compiler emits: on 32 bits a declaration would export them with
# their decoration.
target_compile_definitions(
    cvutil32
    PRIVATE "CVEXPORT=" "CVCLASS=__declspec(dllexport)"
    INTERFACE "CVEXPORT=__declspec(dllimport)")

file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/cvutil32/*.h)
list(FILTER headers EXCLUDE REGEX "/cvapi\\.h$")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${headers})
set(names "")
foreach(header ${headers})
    file(READ ${header} text)
    string(REGEX MATCHALL "CVAPI\\([A-Za-z_]+\\)[ \n]+[A-Za-z]+_[A-Za-z]+\\(" declarations "${text}")
    list(TRANSFORM declarations REPLACE "^CVAPI\\([A-Za-z_]+\\)[ \n]+([A-Za-z_]+)\\($" "    \\1\n")
    string(APPEND names ${declarations})
endforeach()
set(definitions ${CMAKE_CURRENT_BINARY_DIR}/CVUTIL32.def)
file(CONFIGURE OUTPUT ${definitions} CONTENT "LIBRARY CVUTIL32.dll\nEXPORTS\n@names@" @ONLY)
target_sources(cvutil32 PRIVATE ${definitions})
install(FILES ${definitions} DESTINATION ${CMAKE_INSTALL_LIBDIR})
