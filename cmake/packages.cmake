# The Debian packages that "cpack" in the build folder makes of what is installed: see scripts/packages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The pondiff maintainers <maintainers@pondiff.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package-files.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package-scripts.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development)
if(TARGET pondiff)
    list(APPEND CPACK_COMPONENTS_ALL program)
endif()

# What every package has besides its files: copyright and changelog.
configure_file(packaging/changelog.in packaging/changelog @ONLY)
foreach(component_package library:libpondiff1 development:libpondiff-dev program:pondiff)
    string(REPLACE ":" ";" component_package ${component_package})
    list(GET component_package 0 component)
    list(GET component_package 1 package)
    install(FILES packaging/copyright ${CMAKE_CURRENT_BINARY_DIR}/packaging/changelog
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

# What the library's package provides for other packages: its libraries and, since which version, their symbols, which
# are those that tests/exports holds.
set(packaging ${CMAKE_CURRENT_BINARY_DIR}/packaging)
file(WRITE ${packaging}/triggers "activate-noawait ldconfig\n")
file(WRITE ${packaging}/shlibs
    "libpondiff-platform 1 libpondiff1 (>= ${PROJECT_VERSION})\nlibpondiff 1 libpondiff1 (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${packaging}/triggers ${packaging}/shlibs)
if(CMAKE_SIZEOF_VOID_P EQUAL 8 AND NOT PONDIFF_PLATFORM_LIBRARY) # other processors mangle some C++ names differently
    set(symbols "")
    foreach(library libpondiff-platform libpondiff)
        file(READ tests/exports/${library}.symbols names)
        string(REGEX REPLACE "[a-z]+ ([A-Za-z0-9_]+)@*([A-Za-z0-9_]*) [^\n]*" " \\1@\\2 ${PROJECT_VERSION}" names "${names}")
        string(REPLACE "@ " "@Base " names "${names}")
        string(APPEND symbols "${library}.so.1 libpondiff1 #MINVER#\n${names}")
    endforeach()
    string(APPEND symbols " PONDIFF_1@PONDIFF_1 ${PROJECT_VERSION}\n")
    file(WRITE ${packaging}/symbols "${symbols}")
    list(APPEND CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${packaging}/symbols)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own, the first line of its description
set(same_library "libpondiff1 (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libpondiff1)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "${PROJECT_DESCRIPTION} (library)
Given the configuration that a GPON OLT runs and the one wanted, the library
writes the commands of the device's CLI that turn the one into the other.

This package holds the library and the stand-in for the device's own library of
converters and CLI words, which serves where that one is not there.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libpondiff-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ${same_library})
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${PROJECT_DESCRIPTION} (development files)
Given the configuration that a GPON OLT runs and the one wanted, the library
writes the commands of the device's CLI that turn the one into the other.

This package holds the headers for C and C++ and what CMake and pkg-config need
to find the library.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME pondiff)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS ${same_library})
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "${PROJECT_DESCRIPTION}
Given the configuration that a GPON OLT runs and the one wanted, as packed
records or as JSON documents, this program writes the commands of the device's
CLI that turn the one into the other.")
include(CPack)
