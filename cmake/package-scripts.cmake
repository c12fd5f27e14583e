# Run by cpack when the packages are made: removes the call of ldconfig that CPack always adds to the library's scripts. The
# package has a trigger instead, so that ldconfig runs only once, whatever else is installed.
find_program(dpkg_deb dpkg-deb REQUIRED)
foreach(package ${CPACK_PACKAGE_FILES})
    if(package MATCHES "/libpondiff1_[^/]*$")
        set(content ${CPACK_TEMPORARY_DIRECTORY}/libpondiff1)
        execute_process(COMMAND ${dpkg_deb} --raw-extract ${package} ${content} COMMAND_ERROR_IS_FATAL ANY)
        file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
        execute_process(COMMAND ${dpkg_deb} --root-owner-group --build ${content} ${package}
            OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
