# Run by cpack after it has copied the files of the packages: changes them as Debian requires.
find_program(shlibdeps dpkg-shlibdeps)
if(NOT shlibdeps)
    message(FATAL_ERROR "Packages without dpkg-shlibdeps would name no dependencies. scripts/packages installs what is needed.")
endif()

file(GLOB texts ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man*/*.1 ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/changelog)
if(texts)
    execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
endif()

# Debian's zsh looks for the completions of packages in a folder of its own.
file(GLOB folders ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/zsh/site-functions)
foreach(folder ${folders})
    string(REPLACE site-functions vendor-completions renamed ${folder})
    file(RENAME ${folder} ${renamed})
endforeach()
