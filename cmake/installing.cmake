# What "cmake --install" installs where, for programs that find the library with CMake or pkg-config.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/pondiff)
# The installed tree can be moved: its files refer to one another by relative paths.
file(RELATIVE_PATH libraries_from_programs /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
file(RELATIVE_PATH prefix_from_pkgconfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})

foreach(folder CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR)
    if(IS_ABSOLUTE "${${folder}}")
        message(FATAL_ERROR "${folder} is ${${folder}}. Give a folder under the prefix, such as lib64.")
    endif()
endforeach()

# The build folder has the layout of an installation, so that programs find their libraries in both with the same RPATH. If
# CMake had to change the RPATH during installation, it would pad it with an empty path, which means the current folder. A
# platform library outside the loader's search path is found where it was linked.
function(build_as_installed target rpath)
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "${rpath}")
    if(PONDIFF_PLATFORM_LIBRARY)
        set_target_properties(${target} PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
    endif()
endfunction()

build_as_installed(pondiff-library "$ORIGIN")
set_target_properties(pondiff-library PROPERTIES EXPORT_NAME pondiff)
build_as_installed(pondiff-platform "")
set_target_properties(pondiff-platform PROPERTIES EXPORT_NAME platform)
install(TARGETS pondiff-library pondiff-platform
    EXPORT pondiff
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN *.h)
install(FILES
    pon/DataToCommandsConvertor.h pon/command_file_generator.h pon/diff_builder.h pon/visibility.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/pon COMPONENT development)
install(FILES platform/platform.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/pondiff COMPONENT development)

install(EXPORT pondiff
    NAMESPACE pondiff:: FILE pondiff-targets.cmake DESTINATION ${package_folder} COMPONENT development)
configure_package_config_file(cmake/pondiff-config.cmake.in pondiff-config.cmake
    INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(pondiff-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pondiff-config.cmake ${CMAKE_CURRENT_BINARY_DIR}/pondiff-config-version.cmake
    DESTINATION ${package_folder} COMPONENT development)
configure_file(cmake/pondiff.pc.in pondiff.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pondiff.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TARGET pondiff)
    build_as_installed(pondiff "$ORIGIN/${libraries_from_programs}")
    install(TARGETS pondiff RUNTIME COMPONENT program)
endif()
