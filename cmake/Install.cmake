# What `cmake --install` puts where, the CMake and pkg-config packages, and the Debian package (`cpack`).
#
# On Windows the same rules fill the folders of the zip (tools/package.sh): binaries, import libraries, headers and the CMake
# package; everything that only a host without the Windows API needs is left out.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/cvutil32)
if(NOT WIN32)
    set_target_properties(cvutil32 cvplatform PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    # Found beside the program or the library that asks, wherever the tree was installed to.
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(gallery cvreg PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    set_target_properties(cvutil32 cvplatform PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

install(TARGETS cvutil32 cvplatform EXPORT cvutil32Targets)
install(TARGETS gallery)
install(EXPORT cvutil32Targets NAMESPACE cvutil32:: DESTINATION ${package})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

configure_package_config_file(
    cmake/cvutil32Config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/cvutil32Config.cmake
    INSTALL_DESTINATION ${package}
    PATH_VARS CMAKE_INSTALL_INCLUDEDIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/cvutil32ConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/cvutil32Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/cvutil32ConfigVersion.cmake
              cmake/Modules.cmake DESTINATION ${package})

if(WIN32)
    # Where the presets put the two widths into one folder.
    if(CMAKE_INSTALL_LIBDIR MATCHES "^lib(64)?$")
        install(FILES cmake/either_width.cmake DESTINATION cmake RENAME cvutil32Config.cmake)
        install(FILES cmake/either_width.cmake DESTINATION cmake RENAME cvutil32ConfigVersion.cmake)
    endif()
    install(FILES gallery/help/gallery.txt DESTINATION ${CMAKE_INSTALL_BINDIR})
    return()
endif()

install(TARGETS cvdisplay_sdl DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY platform/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/cvutil32-windows)
install(DIRECTORY platform/kernel/modules/start DESTINATION ${package})
# Relative to itself, so that it holds wherever the tree is installed to.
file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/cvutil32.pc.in ${CMAKE_CURRENT_BINARY_DIR}/cvutil32.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/cvutil32.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(TARGETS cvreg)
install(FILES gallery/help/gallery.txt DESTINATION ${CMAKE_INSTALL_DATADIR}/cvutil32)
install(FILES gallery/desktop/cvutil32-gallery.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES gallery/desktop/cvutil32-gallery.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/48x48/apps)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
# The manual and the examples, where the README's links find them.
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN Doxyfile EXCLUDE)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cvutil32)
set(CPACK_PACKAGE_CONTACT "CVUTIL32 developers <cvutil32@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The module that opens the window is loaded on demand, and the bitmap faces are what dialogs are measured in.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xfonts-100dpi, binutils-mingw-w64-x86-64, g++, cmake")
include(CPack)
