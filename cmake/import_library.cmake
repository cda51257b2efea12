# cmake -DDEFINITIONS=<.def with all names> -DMACHINE=<i386|i386:x86-64> -DTOOL=<llvm-dlltool> -DLIBRARY=<.lib> -P import_library.cmake
#
# Makes an import library in the format of Microsoft's linker. It holds the flat functions; names of classes are those of the
# compiler that built the library and mean nothing to others. On 32 bits the names in the list are decorated, as compilers emit
# them for __stdcall, and lead to exports without decoration (--kill-at).
file(STRINGS ${DEFINITIONS} lines REGEX "^[ \t]+[A-Za-z]+_[A-Za-z]+(@[0-9]+)? @")
list(TRANSFORM lines REPLACE "^[ \t]+([^ ]+) .*" "    \\1")
list(JOIN lines "\n" names)
set(flat ${LIBRARY}.def)
file(WRITE ${flat} "LIBRARY CVUTIL32.dll\nEXPORTS\n${names}\n")
execute_process(COMMAND ${TOOL} -m ${MACHINE} --kill-at -d ${flat} -l ${LIBRARY} COMMAND_ERROR_IS_FATAL ANY)
